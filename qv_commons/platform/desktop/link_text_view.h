// A text that is read, with links: as tall as its text at the width it has, without bars or frame.
//
// A link is chosen by a click or tap on it or close to it, by Tab and Return, or by a screen
// reader.
#pragma once

#include <QTextBrowser>
#include <vector>

#include "qv_commons/age_gate/policy_links.h"

namespace qv_commons::desktop {

class LinkTextView final : public QTextBrowser {
  Q_OBJECT

 public:
  explicit LinkTextView(QWidget* parent = nullptr);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  // What fills a link's words up to the link's range.
  static constexpr QChar kFiller = QChar(kLinkFiller);

  // What stands between these runs in its own direction, apart from the text around it.
  static constexpr QChar kIsolate = QChar(0x2068);
  static constexpr QChar kEndOfIsolate = QChar(0x2069);

  // The text without fillers and without marks of direction, as it is heard and copied.
  QString seenText() const;

  struct Link {
    int start;
    int end;
    QString target;
    QString words;  // without fillers
  };
  const std::vector<Link>& links() const { return links_; }

  int focusedLink() const { return hasFocus() ? focused_ : kNone; }
  QRect linkPlace(int link) const;        // in the viewport; around all the lines that it is on
  int linkAt(const QPoint& place) const;  // in the viewport
  void focusLink(int link);
  void pressLink(int link);

  static constexpr int kNone = -1;

 signals:
  void linkPressed(const QString& target);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool isNext) override;
  void changeEvent(QEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  void readLinks();
  void moveFocus(int link);
  QString linkNear(const QPoint& place) const;
  std::vector<QRect> linesOf(const Link& link) const;

  std::vector<Link> links_;
  int focused_ = kNone;
};

}  // namespace qv_commons::desktop
