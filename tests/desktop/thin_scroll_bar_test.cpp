// The handle is where one has come to, upright and lying.
#include "qv_commons/platform/desktop/thin_scroll_bar.h"

#include <QImage>
#include <QPixmap>
#include <gtest/gtest.h>

namespace qv_commons::desktop {
namespace {

constexpr int kLength = 200;

class ThinScrollBarTest : public testing::TestWithParam<Qt::Orientation> {
 protected:
  ThinScrollBarTest() {
    bar_.setRange(0, 100);
    bar_.setPageStep(100);
    const bool isVertical = GetParam() == Qt::Vertical;
    const int width = isVertical ? bar_.sizeHint().width() : bar_.sizeHint().height();
    bar_.resize(isVertical ? QSize(width, kLength) : QSize(kLength, width));
  }

  bool isHandleAt(int place) {
    const QImage image = bar_.grab().toImage();
    const int middle = (GetParam() == Qt::Vertical ? image.width() : image.height()) / 2;
    const auto colorAt = [&](int along) {
      return GetParam() == Qt::Vertical ? image.pixel(middle, along) : image.pixel(along, middle);
    };
    return colorAt(place) != image.pixel(0, 0);
  }

  ThinScrollBar bar_{GetParam()};
};

TEST_P(ThinScrollBarTest, ShowsHowFarOneHasCome) {
  EXPECT_TRUE(isHandleAt(kLength / 4));
  EXPECT_FALSE(isHandleAt(kLength * 3 / 4));
  bar_.setValue(100);
  EXPECT_FALSE(isHandleAt(kLength / 4));
  EXPECT_TRUE(isHandleAt(kLength * 3 / 4));
}

TEST_P(ThinScrollBarTest, ShowsNothingWhereAllIsInSight) {
  bar_.setRange(0, 0);
  EXPECT_FALSE(isHandleAt(kLength / 4));
}

INSTANTIATE_TEST_SUITE_P(Both, ThinScrollBarTest, testing::Values(Qt::Vertical, Qt::Horizontal));

}  // namespace
}  // namespace qv_commons::desktop
