#include "tests/desktop/desktop_driver.h"

#include <QCoreApplication>
#include <QDir>
#include <QScrollArea>
#include <QTest>
#include <QWindow>
#include <fstream>
#include <sstream>
#include <sys/stat.h>

#include "qv_commons/platform/desktop/sheet_controller.h"

namespace qv_commons::desktop {

std::string TestFolder::path(const std::string& name) const {
  return directory_.path().toStdString() + (name.empty() ? "" : "/" + name);
}

std::string TestFolder::write(const std::string& name, const std::string& bytes) const {
  const QString file = QString::fromStdString(path(name));
  QDir().mkpath(QFileInfo(file).path());
  std::ofstream(path(name), std::ios::binary) << bytes;
  return path(name);
}

std::string TestFolder::writeProgram(const std::string& name, const std::string& script) const {
  write(name, "#!/bin/sh\n" + script + "\n");
  ::chmod(path(name).c_str(), 0755);
  return path(name);
}

std::vector<std::string> TestFolder::list(const std::string& name) const {
  const QDir folder(QString::fromStdString(path(name)));
  std::vector<std::string> names;
  for (const QString& entry : folder.entryList(
           QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Name)) {
    names.push_back(entry.toStdString());
  }
  return names;
}

std::string readFile(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

QWidget& windowOf(ViewController& controller) {
  if (auto* shown = dynamic_cast<SheetController*>(&controller.native())) return shown->content();
  return *dynamic_cast<DesktopController&>(controller.native()).window();
}

bool isOnScreen(ViewController& controller) {
  return windowOf(controller).isVisible();
}

void click(QWidget& widget) {
  QWidget& window = *widget.window();
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(&widget);
  }
  if (!QTest::qWaitForWindowExposed(&window)) throw std::runtime_error("the window is not shown");
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                    widget.mapTo(&window, widget.rect().center()));
  QCoreApplication::processEvents();
}

void click(ViewController& controller, const char* name) {
  click(find<QWidget>(controller, name));
}

void press(ViewController& controller, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(windowOf(controller).window()->windowHandle(), key, modifiers);
  QCoreApplication::processEvents();
}

void type(ViewController& controller, const char* text) {
  for (const char* letter = text; *letter != '\0'; ++letter) {
    QTest::keyClick(windowOf(controller).window()->windowHandle(), *letter);
  }
}

void saveDraft(ViewController& composer) {
  click(composer, "save");
  auto& done = find<QAbstractButton>(composer, "cancel");
  const auto isSaved = [&done] { return done.text() == "Done"; };
  EXPECT_TRUE(waitUntil(isSaved) || waitUntil(isSaved) || waitUntil(isSaved));  // a slow disk
  click(done);
}

void settle() {
  for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
}

bool waitUntil(const std::function<bool()>& condition) {
  const bool holds = QTest::qWaitFor(condition, 10000);
  settle();
  return holds;
}

}  // namespace qv_commons::desktop
