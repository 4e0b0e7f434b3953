// A button of composers and alerts. Return presses it, and its focus ring is seen once the keyboard
// is in use.
#pragma once

#include <QPushButton>

namespace qv_commons::desktop {

class SheetButton final : public QPushButton {
 public:
  explicit SheetButton(const QString& text, const QKeySequence& keys = {});

  // The keys stay, as they would not with `setText`.
  void rename(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qv_commons::desktop
