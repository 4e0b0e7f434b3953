// The tour of the services where no desktop is at hand: on the memory adapter, written down as a
// transcript of everything the library asked of the platform.
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/stat.h>

#include "qv_commons/platform/memory/memory_platform.h"
#include "qv_commons/qv_commons.h"

namespace {

using namespace qv_commons;

constexpr std::string_view kUsage =
    "usage: memory_host [--memory] [--tour DIR]\n"
    "Runs the tour on the memory adapter and leaves transcript.txt in DIR (out).\n";

// Writes what was asked of the platform under a heading, and forgets it.
void writeDown(std::ostream& out, std::string_view heading, memory::MemoryPlatform& platform) {
  out << "== " << heading << "\n";
  for (const std::string& line : platform.record().lines()) out << line << "\n";
  out << "\n";
  platform.record().clear();
}

struct Host : QV_SupportHelperDelegate {
  explicit Host(std::ostream& transcript) : out(transcript) {}
  void onCompletion() override { out << "the host is told: the composer is gone\n"; }
  std::ostream& out;
};

void contactSupport(std::ostream& out) {
  memory::MemoryPlatform platform;
  const ScopedPlatform scope(platform.platform());
  platform.mainBundle().identifier = "notesapp";
  platform.mainBundle().info["CFBundleShortVersionString"] = std::string("2.4.1");
  platform.mainBundle().info["CFBundleVersion"] = std::string("317");
  platform.mainBundle().receiptLocation = "StoreKit/receipt";
  platform.bundles().files["StoreKit/receipt"] = {"a receipt", ""};
  platform.device().screenSize = {375, 812};
  platform.device().languages = {"en-GB"};

  const auto home = platform.makeViewController("home");
  const auto host = std::make_shared<Host>(out);
  const auto contact = [&] {
    QV_SupportHelper::shared().contactSupport(*home, "support@example.com", "Help with Notes",
                                              {"pro_monthly", "remove_ads"}, std::nullopt,
                                              "User: 42", host);
  };
  contact();
  writeDown(out, "contact support", platform);
  const auto& composer = platform.viewControllers().composers().back();
  out << composer->message().body << "\n\n";
  composer->finish(MailComposeResult::sent);
  writeDown(out, "the user sends", platform);

  platform.viewControllers().mailAvailable = false;
  contact();
  writeDown(out, "contact support, without mail", platform);
}

int runTour(const std::string& directory) {
  if (mkdir(directory.c_str(), 0777) != 0 && errno != EEXIST) {
    std::cerr << directory << ": " << std::strerror(errno) << "\n";
    return 1;
  }
  std::ostringstream transcript;
  contactSupport(transcript);
  std::cout << transcript.str();
  std::ofstream file(directory + "/transcript.txt");
  if (!(file << transcript.str() << std::flush)) {
    std::cerr << directory << "/transcript.txt can't be written\n";
    return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::string directory = "out";
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--help") {
      std::cout << kUsage;
      return 0;
    }
    if (argument == "--tour" && i + 1 < argc) {
      directory = argv[++i];
    } else if (argument != "--memory") {
      std::cerr << "memory_host: " << argument << "?\n" << kUsage;
      return 2;
    }
  }
  return runTour(directory);
}
