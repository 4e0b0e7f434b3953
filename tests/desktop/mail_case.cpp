// Sends a support e-mail as a user does: opens the composer by the library's own call and clicks
// Send. For delivery_test.py.
//
//     desktop_mail_case FOLDER PROGRAM [ARGUMENT...]
//
// The folder holds the host's bundle in bundle/, and the request in the files email, subject,
// purchases (one a line), and, if given, opening and metadata. PROGRAM and its arguments are the
// mail program. Prints a line for each call of the delegate.
#include <QApplication>
#include <QPushButton>
#include <QTextEdit>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <sstream>

#include "qv_commons/support/support_helper.h"

#include "tests/desktop/desktop_driver.h"

namespace {

using namespace qv_commons;

struct Host final : QV_SupportHelperDelegate {
  bool done = false;
  void onCompletion() override {
    done = true;
    std::puts("onCompletion");
  }
};

std::optional<std::string> optionalFile(const std::string& path) {
  if (!std::filesystem::exists(path)) return std::nullopt;
  return desktop::readFile(path);
}

int run(const std::string& folder, const std::string& program,
        const std::vector<std::string>& arguments) {
  const desktop::DesktopPlatform platform({.bundleDirectory = folder + "/bundle",
                                           .dataDirectory = folder + "/data",
                                           .sendmailProgram = program,
                                           .sendmailArguments = arguments,
                                           .senderAddress = "ada@example.com"});
  const ScopedPlatform scope(platform.platform());
  QWidget window;
  window.resize(375, 667);
  window.show();
  const std::shared_ptr<ViewController> screen = platform.viewController(window);

  std::vector<std::string> purchases;
  std::istringstream lines(desktop::readFile(folder + "/purchases"));
  for (std::string line; std::getline(lines, line);) purchases.push_back(line);
  const std::optional<std::string> opening = optionalFile(folder + "/opening");
  const std::optional<std::string> metadata = optionalFile(folder + "/metadata");
  const auto host = std::make_shared<Host>();
  QV_SupportHelper::shared().contactSupport(*screen, desktop::readFile(folder + "/email"),
                                            desktop::readFile(folder + "/subject"), purchases,
                                            opening, metadata, host);
  desktop::settle();

  ViewController& composer = *screen->presentedViewController();
  desktop::click(composer, "send");
  if (desktop::waitUntil([&] { return host->done; })) return 0;
  std::puts(desktop::find<QTextEdit>(composer, "notice").toPlainText().toUtf8().constData());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc < 3) return 2;
  return run(argv[1], argv[2], {argv + 3, argv + argc});
}
