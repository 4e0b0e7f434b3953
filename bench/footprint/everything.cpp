// Calls every function of the logic, to be linked and weighed. It is not run: it has no platform.
#include "qv_commons/age_gate/policy_links.h"
#include "qv_commons/app_info/app_info_helper.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/presentation.h"
#include "qv_commons/qv_commons.h"
#include "qv_commons/support/support_mail.h"

using namespace qv_commons;

namespace {

// What an adapter would have, with the least of its own.
class Native : public NativeController {
 public:
  using NativeController::NativeController;
  void setModalInPresentation(bool) {}
  void setOverrideUserInterfaceStyle(UserInterfaceStyle) {}
  ViewController* childViewController() const { return nullptr; }

 protected:
  void show(bool) override {}
  void hide(bool) override {}
  void afterTransition(Completion) override {}
};

struct SearchBar {
  void* field;
  void* searchTextField() const { return field; }
  void* valueForKey(std::string_view) const { return field; }
  static void* toTextField(void* value) { return value; }
};

// What a host has, from a place that the compiler can't see, so that it evaluates no call itself.
struct Host {
  Platform platform;
  std::shared_ptr<ViewController> home;
  SearchBar searchBar;
  TextView& textView;
  TextViewDelegate* textViewDelegate;
  Presentations presentations;
  std::weak_ptr<QV_SupportHelperDelegate> delegate;
  Color color;
  std::string text;
  std::vector<std::string> texts;
  std::int64_t number;
  std::size_t sum = 0;

  void use(std::string_view result) { sum += result.size(); }
  void use(std::int64_t result) { sum += static_cast<std::size_t>(result); }
  void use(bool result) { sum += result ? 1 : 0; }
  void use(const void* result) { sum += reinterpret_cast<std::size_t>(result); }
};

void useAgeGate(Host& host) {
  const auto theme = QV_AgeGateColorTheme::defaultTheme();
  const auto own = std::make_shared<QV_AgeGateColorTheme>(host.color, host.color, host.color,
                                                          host.color, host.color);
  QV_AgeGateHelper::startAgeGateProcess(host.home, host.number, nullptr, nullptr, theme, host.text,
                                        host.text);
  QV_AgeGateHelper::startAgeGateProcess(host.home, host.number, nullptr, nullptr, own, host.text,
                                        host.text);
  interactWithLink(host.textView, host.textViewDelegate, host.text, {}, host.platform.application);
}

void useSupport(Host& host) {
  QV_SupportHelper::shared().contactSupport(*host.home, host.text, host.text, host.texts, host.text,
                                            host.text, host.delegate);
  const auto another = QV_SupportHelper::create();
  host.use(another->delegate().get());
  QV_RateHelper::openWriteReviewOnAppStore(host.text);
  host.use(QV_Links::privacyPolicy().text());
  host.use(QV_Links::termsOfService().text());
  host.use(URL::parse(host.text).has_value());
}

void useAppInfo(Host& host) {
  host.use(QV_AppInfoHelper::appVersion());
  host.use(QV_AppInfoHelper::appId());
  host.use(QV_AppInfoHelper::appName());
  host.use(QV_BundleFileHelper::getQVCommonsResourceBundle().get());
  host.use(QV_BundleFileHelper::loadJsonFromBundle(host.text).value_or(""));
}

void useTime(Host& host) {
  host.use(QV_TimeHelper::currentTimeInMilliseconds());
  host.use(std::int64_t{QV_TimeHelper::currentTimeInSeconds()});
  host.use(QV_TimeHelper::secondsToMinutes(host.number, true));
  host.use(std::int64_t{QV_TimeHelper::secondsToDays(host.number)});
  host.use(QV_TimeHelper::secondsToHms(host.number));
  host.use(QV_TimeHelper::secondsToHmsDigits(host.number));
  host.use(QV_TimeHelper::hmsToSeconds(host.text));
  host.use(QV_TimeHelper::tryHmsToSeconds(host.text).value_or(0));
}

void useViewUtilities(Host& host) {
  host.use(QV_ViewControllerHelper::topViewController(host.home.get()));
  host.use(qv_searchTextField_all_iOS_versions(host.searchBar));
  const auto controller = std::make_shared<NativeOf<ViewController, Native>>(host.presentations);
  controller->presentViewController(host.home, true, nullptr);
  controller->dismissViewController(true, nullptr);
}

}  // namespace

int main(int count, char** arguments) {
  auto& host = *reinterpret_cast<Host*>(arguments[count]);
  installPlatform(host.platform);
  useAgeGate(host);
  useSupport(host);
  useAppInfo(host);
  useTime(host);
  useViewUtilities(host);
  return static_cast<int>(host.sum);
}
