#include "qv_commons/platform/color.h"

#include <gtest/gtest.h>

namespace qv_commons {
namespace {

TEST(Colors, AreEqualInEveryComponentAndObjectOrNotAtAll) {
  const auto object = std::make_shared<const int>(1);
  const Color color{0.25, 0.5, 0.75, 0.5, object};
  EXPECT_EQ(color, (Color{0.25, 0.5, 0.75, 0.5, object}));
  EXPECT_NE(color, (Color{0.26, 0.5, 0.75, 0.5, object}));
  EXPECT_NE(color, (Color{0.25, 0.51, 0.75, 0.5, object}));
  EXPECT_NE(color, (Color{0.25, 0.5, 0.76, 0.5, object}));
  EXPECT_NE(color, (Color{0.25, 0.5, 0.75, 0.51, object}));
  EXPECT_NE(color, (Color{0.25, 0.5, 0.75, 0.5, std::make_shared<const int>(1)}));
  EXPECT_NE(color, (Color{0.25, 0.5, 0.75, 0.5}));
}

}  // namespace
}  // namespace qv_commons
