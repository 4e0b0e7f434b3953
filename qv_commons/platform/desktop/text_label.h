// A label that works out its height at a width once: a screen's layout asks several times for each
// width, and for each answer Qt lays the text out twice.
#pragma once

#include <QFont>
#include <QLabel>
#include <QString>

namespace qv_commons::desktop {

class TextLabel final : public QLabel {
 public:
  using QLabel::QLabel;

  int heightForWidth(int width) const override {
    if (answer_.width != width || answer_.text != text() || answer_.font != font()) {
      answer_ = {width, text(), font(), QLabel::heightForWidth(width)};
    }
    return answer_.height;
  }

 private:
  struct Answer {
    int width = -1;
    QString text = {};
    QFont font = {};
    int height = -1;
  };
  mutable Answer answer_;
};

}  // namespace qv_commons::desktop
