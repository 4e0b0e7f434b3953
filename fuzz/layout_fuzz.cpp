// A layout file of any bytes gives a widget or a fatal error that names the file.

#include <QApplication>
#include <fstream>
#include <string>

#include "qv_commons/platform/desktop/layout_file.h"
#include "qv_commons/platform/fatal_error.h"

#include "fuzz/fuzz.h"

namespace {

const char* const kLayout = "/tmp/qv_commons_layout_fuzz.ui";

struct Fatal {
  std::string message;
};

}  // namespace

// Linked in place of the library's, which ends the process.
void qv_commons::fatalError(std::string_view message) {
  throw Fatal{std::string(message)};
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using qv_commons::fuzz::check;
  static int count = 1;
  static char name[] = "layout_fuzz";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QApplication application(count, arguments);
  static const qv_commons::desktop::IcuCalendar calendar({"en-US", "UTC"});
  std::ofstream(kLayout, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  try {
    check(qv_commons::desktop::loadLayout({.layout = kLayout}, calendar, 1) != nullptr,
          "there is a widget");
  } catch (const Fatal& fatal) {
    check(fatal.message.find(kLayout) != std::string::npos, "the error names the file");
  }
  return 0;
}
