// The library's platform on a Linux desktop: Qt windows, the system's mail program, an app's bundle
// that is a folder.
//
// Make it after the QApplication and keep it for as long as the library is used:
//
//     QApplication application(argc, argv);
//     QWidget window;
//     qv_commons::desktop::DesktopPlatform desktop({.bundleDirectory = "/opt/notes"});
//     qv_commons::installPlatform(desktop.platform());
//     std::shared_ptr<qv_commons::ViewController> screen = desktop.viewController(window);
//     window.show();
//
// Main thread only.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/desktop/calendar_settings.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/view_controller.h"

class QStackedWidget;
class QTabWidget;
class QWidget;

namespace qv_commons::desktop {

// A way by which a message leaves this machine.
enum class MailWay : std::uint8_t {
  // The library's own composer, and the system's sendmail program.
  sendmail,
  // The desktop's mail program, opened with the message filled in and the files attached: by
  // xdg-desktop-portal, or by the program xdg-email. What the user does there nobody tells, so the
  // composer ends as `saved`: the message lies in the mail program, unsent as yet. Where the user
  // was asked for a program and named none, it ends as `cancelled`.
  portal,
  xdgEmail,
};

struct DesktopSettings {
  // The host app's bundle: a folder with an Info.plist, XML or binary. Where it has a folder
  // StoreKit, the receipt is expected there as StoreKit/receipt. Empty: a bundle without values.
  std::string bundleDirectory = {};

  // The library's resource bundle, QV_Commons_iOS.bundle, or the folder around it, for a host that
  // brings layouts of its own. Empty: in the folder of the program or library that this code is
  // linked into, or share/qv_commons of the same prefix; last, the layouts inside the library.
  std::string resourceDirectory = {};

  // The user's languages, the preferred one first, for example {"pt-BR", "en"}; the screens speak
  // the first of them that they can, or else English. Empty: the system's, see
  // Device::preferredLanguages. The words for dates follow `calendar`.
  std::vector<std::string> languages = {};

  // Where what lasts is kept, the drafts in its folder "drafts", the user defaults in a file named
  // after the host's bundle identifier. Empty: the folder that the system
  // has for this app's data, for example ~/.local/share/notes.
  std::string dataDirectory = {};

  // Of these ways, the first that is there when a composer opens is taken; where the desktop can't
  // take the message, the next one, and last the library's own composer shows why, with the message
  // in it. With none, no mail can be sent. Names of recipients are not handed over to the desktop,
  // and a body that is no text or more than 16,000 bytes may go as an attached file.
  std::vector<MailWay> mailWays = {MailWay::sendmail, MailWay::portal, MailWay::xdgEmail};

  // The sendmail program, called as `program arguments -t -i` with the message on its standard
  // input. Empty: "sendmail" in PATH, /usr/sbin or /usr/lib.
  std::string sendmailProgram = {};
  std::vector<std::string> sendmailArguments = {};

  // How long that program may take before it is ended and counts as failed.
  std::chrono::milliseconds sendTimeout = std::chrono::seconds(60);

  // The sender's address. Empty: the user's login name at the host's name.
  std::string senderAddress = {};

  // The major version that the library takes the system for; its thresholds are those of iOS.
  int systemVersion = 17;

  // By which dates of birth are picked and judged.
  CalendarSettings calendar = {};

  // Light or dark; `unspecified` follows the desktop's settings.
  UserInterfaceStyle userInterfaceStyle = UserInterfaceStyle::unspecified;

  // Told of what a host should know of but no operation can answer, for example an Info.plist that
  // can't be read. Empty: nobody is.
  std::function<void(std::string)> onError = {};
};

class QV_COMMONS_EXPORT DesktopPlatform {
 public:
  explicit DesktopPlatform(DesktopSettings settings);

  // Takes the library's screens off the hosts' windows.
  ~DesktopPlatform();
  DesktopPlatform(const DesktopPlatform&) = delete;
  DesktopPlatform& operator=(const DesktopPlatform&) = delete;

  // To be installed: `installPlatform(desktop.platform())`.
  const Platform& platform() const;

  // The view controller of a host's window, or of a page in a window, for the library to show its
  // screens over. They go with it: keep it while the window is open. As long as somebody keeps it,
  // the same widget gives the same controller.
  std::shared_ptr<ViewController> viewController(QWidget& windowOrPage) const;

  // The same for containers of pages. The visible controller of the one, and the selected one of
  // the other, is the controller of the current page, where somebody keeps one for it.
  std::shared_ptr<ViewController> navigationController(QStackedWidget& pages) const;
  std::shared_ptr<ViewController> tabBarController(QTabWidget& tabs) const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace qv_commons::desktop
