// Alerts as small windows.
#pragma once

#include <QDialog>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/desktop/desktop_controller.h"

class QLabel;
class QPushButton;

namespace qv_commons::desktop {

// Escape and the window's close button stand for the cancel button, or for the only one; where
// there is neither they do nothing.
class DesktopAlert final : public NativeOf<AlertController, DesktopController> {
 public:
  DesktopAlert(SharedContext context, const std::string& title, const std::string& message);

  void addAction(std::string title, AlertActionStyle style, Completion handler) override;

 protected:
  void place(QWidget& window, const QWidget& presenterWindow) override;
  void dress(UserInterfaceStyle style) override;
  void userLeaves() override;

 private:
  QLabel* addLabel(const std::string& text, const char* role);

  QDialog dialog_;
  QVBoxLayout layout_{&dialog_};
  std::vector<QPushButton*> buttons_;
  QPushButton* cancelButton_ = nullptr;
};

}  // namespace qv_commons::desktop
