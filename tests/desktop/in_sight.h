// Whether all of a screen of the library can be seen.
#pragma once

#include <QScrollArea>
#include <QScrollBar>
#include <QWidget>
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace qv_commons::desktop {

// From the top down.
inline std::vector<QWidget*> viewsOf(QWidget& screen) {
  std::vector<QWidget*> views;
  for (const char* name : {"header", "subtitle", "datePicker", "confirmBtn", "contact", "tos"}) {
    if (auto* found = screen.findChild<QWidget*>(name)) views.push_back(found);
  }
  return views;
}

// Everything within its room, whole and apart; what is too high can be scrolled to.
inline void expectAllInSight(QWidget& screen) {
  const auto& scroll = *screen.findChild<QScrollArea*>("scroll");
  const QRect room = scroll.widget()->rect();
  EXPECT_EQ(scroll.horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(scroll.verticalScrollBar()->maximum(),
            std::max(0, room.height() - scroll.viewport()->height()));
  int bottom = 0;
  for (QWidget* view : viewsOf(screen)) {
    const QRect place = view->geometry();
    EXPECT_TRUE(room.contains(place)) << view->objectName().toStdString();
    EXPECT_GE(place.top(), bottom) << view->objectName().toStdString();
    if (view->hasHeightForWidth()) {
      EXPECT_GE(place.height(), view->heightForWidth(place.width()))
          << view->objectName().toStdString();
    } else {
      EXPECT_GE(place.height(), view->sizeHint().height()) << view->objectName().toStdString();
      EXPECT_GE(place.width(), view->sizeHint().width()) << view->objectName().toStdString();
    }
    bottom = place.bottom();
  }
}

}  // namespace qv_commons::desktop
