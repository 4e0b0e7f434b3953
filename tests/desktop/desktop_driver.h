// What a test of the desktop adapter does as its user: looks at windows, clicks, types, waits.
//
// Clicks and keys go to the window, as the system's do, so that what blocks them does here too.
#pragma once

#include <QAbstractButton>
#include <QString>
#include <QTemporaryDir>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/outcome.h"
#include "qv_commons/platform/view_controllers.h"

namespace qv_commons::desktop {

// A folder that goes with the object, and its files.
class TestFolder {
 public:
  std::string path(const std::string& name = "") const;
  std::string write(const std::string& name, const std::string& bytes) const;  // gives the path

  // A program for /bin/sh, called as a mail program would be.
  std::string writeProgram(const std::string& name, const std::string& script) const;

  std::vector<std::string> list(const std::string& name) const;  // names in a folder, sorted

 private:
  QTemporaryDir directory_;
};

std::string readFile(const std::string& path);

inline std::string saidOf(const Failure& failure) {
  return failure ? inEnglish(*failure) : "nothing";
}

// What a controller shows: its sheet's content, or a host's window.
QWidget& windowOf(ViewController& controller);
bool isOnScreen(ViewController& controller);

// The widget of that name; a fatal error of the test where there is none.
template <class Widget>
Widget& find(ViewController& controller, const char* name) {
  auto* widget = windowOf(controller).findChild<Widget*>(name);
  if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *widget;
}

// A click, and the turn of the event loop in which it is answered.
void click(QWidget& widget);
void click(ViewController& controller, const char* name);
void press(ViewController& controller, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void type(ViewController& controller, const char* text);

// Saves the draft of a composer and goes on to Done.
void saveDraft(ViewController& composer);

// Lets the event loop run: for as long as it has something to do, or until `condition` holds, at
// most ten seconds.
void settle();
bool waitUntil(const std::function<bool()>& condition);

}  // namespace qv_commons::desktop
