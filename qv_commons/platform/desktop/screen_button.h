// The filled button of a screen: a title in the middle, on the ground that `Backdrop` paints.
#pragma once

#include <QPushButton>

namespace qv_commons::desktop {

class ScreenButton final : public QPushButton {
  Q_OBJECT

 public:
  explicit ScreenButton(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  // The title is in the palette's ButtonText, by the button's state.
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qv_commons::desktop
