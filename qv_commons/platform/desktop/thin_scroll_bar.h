// A scroll bar that shows how far one has come and takes no room to speak of.
#pragma once

#include <QScrollBar>

namespace qv_commons::desktop {

class ThinScrollBar final : public QScrollBar {
  Q_OBJECT

 public:
  explicit ThinScrollBar(Qt::Orientation orientation, QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qv_commons::desktop
