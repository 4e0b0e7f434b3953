// What stands in a scroll area that is resizable: a column of widgets, as wide as the area.
#pragma once

#include <QWidget>

namespace qv_commons::desktop {

// The area asks for sizes at each of its steps to the screen, and each answer lays out all texts.
// So it is told nothing before the column is shown, when neither the width nor the texts are the
// ones that will be seen; and no hint but the least, the only one that it makes use of.
class ScrolledColumn final : public QWidget {
 public:
  using QWidget::QWidget;

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    return isVisible() ? QWidget::minimumSizeHint() : QSize(0, 0);
  }
  int heightForWidth(int width) const override {
    return isVisible() ? QWidget::heightForWidth(width) : 0;
  }

 protected:
  void showEvent(QShowEvent*) override { updateGeometry(); }  // makes the area ask
};

}  // namespace qv_commons::desktop
