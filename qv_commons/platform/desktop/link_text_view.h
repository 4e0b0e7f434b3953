// A text that is read, with links: as tall as its text at the width it has, without bars or frame.
//
// A link is chosen by a click or tap on it or close to it, or by Tab and Return.
#pragma once

#include <QTextBrowser>

namespace qv_commons::desktop {

class LinkTextView final : public QTextBrowser {
  Q_OBJECT

 public:
  explicit LinkTextView(QWidget* parent = nullptr);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QString linkNear(const QPoint& place) const;
};

}  // namespace qv_commons::desktop
