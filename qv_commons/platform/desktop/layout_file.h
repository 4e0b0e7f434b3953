// Layout files (.ui) of the library's screens.
//
// Beside Qt's own classes a layout may use WheelDatePicker, ScreenButton, LinkTextView and, in a
// QScrollArea, ScrolledColumn; a QScrollArea gets a thin scroll bar. Properties that mean something
// here, all of them dynamic:
//   words                  under which key the string tables have the view's text
//   textSize, textWeight   the font, in pixels at a text size of 100 %, and from 100 to 900
//   action                 the selector of what the view triggers, for example "onConfirmPressed:"
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/icu_calendar.h"
#include "qv_commons/platform/desktop/screen_words.h"
#include "qv_commons/platform/desktop/widget_views.h"
#include "qv_commons/platform/layout_screen.h"

namespace qv_commons::desktop {

// The root widget of the words' layout, with them, its fonts multiplied by `textScale`. A fatal
// error, naming the file, where it is missing, malformed, or uses a class that nobody knows.
// `calendar` outlives the widget.
std::unique_ptr<QWidget> loadLayout(const ScreenWords& words, const IcuCalendar& calendar,
                                    double textScale);

// Connects the outlets of `screen` by object name and its actions by selector. A view of another
// class leaves its outlet empty; an action that the screen doesn't have is a fatal error, naming
// `path`. Clicks reach the screen through `later`. The views that come back keep the
// outlets connected; they refer to the widgets.
std::vector<std::shared_ptr<View>> connectScreen(QWidget& root, LayoutScreen& screen,
                                                 const LinkOpener& open, const std::string& path,
                                                 const Later& later);

}  // namespace qv_commons::desktop
