// Alerts as cards.
#pragma once

#include <QVBoxLayout>
#include <string>
#include <vector>

#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/desktop/sheet_controller.h"

class QLabel;

namespace qv_commons::desktop {

class SheetButton;

// Escape stands for the cancel button, or for the only one; where there is neither it does nothing.
class DesktopAlert final : public NativeOf<AlertController, SheetController> {
 public:
  DesktopAlert(SharedContext context, const std::string& title, const std::string& message);

  void addAction(std::string title, AlertActionStyle style, Completion handler) override;

 protected:
  void dress(UserInterfaceStyle style) override;
  void userLeaves() override;

 private:
  QLabel* addLabel(const std::string& text, const char* role);

  QVBoxLayout& layout_;
  std::vector<SheetButton*> buttons_;
  SheetButton* cancelButton_ = nullptr;
};

}  // namespace qv_commons::desktop
