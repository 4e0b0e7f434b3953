#include "qv_commons/platform/memory/memory_view_controllers.h"

#include <algorithm>
#include <utility>

namespace qv_commons::memory {

MemoryScreen* MemoryViewControllers::lastScreen() const {
  const auto living = std::find_if(screens_.rbegin(), screens_.rend(),
                                   [](const auto& screen) { return !screen.expired(); });
  if (living == screens_.rend()) return nullptr;
  return &static_cast<MemoryScreen&>(living->lock()->native());
}

bool MemoryViewControllers::canSendMail() const {
  record_.add("viewControllers.canSendMail");
  return mailAvailable;
}

std::shared_ptr<MailComposer> MemoryViewControllers::makeMailComposer() {
  std::string name = "composer" + std::to_string(composers_.size() + 1);
  record_.add("viewControllers.makeMailComposer ", name);
  return composers_.emplace_back(
      std::make_shared<MemoryMailComposer>(record_, transitions_, std::move(name), mailOutcome));
}

std::shared_ptr<AlertController> MemoryViewControllers::makeAlertController(
    std::string title, std::string message, AlertStyle preferredStyle) {
  std::string name = "alert" + std::to_string(alerts_.size() + 1);
  record_.add("viewControllers.makeAlertController ", name, " ", inQuotes(title), " ",
              inQuotes(message), preferredStyle == AlertStyle::alert ? " alert" : " actionSheet");
  return alerts_.emplace_back(std::make_shared<MemoryAlert>(
      record_, transitions_, std::move(name),
      MemoryAlert::Texts{std::move(title), std::move(message), preferredStyle}));
}

std::shared_ptr<LayoutScreen> MemoryViewControllers::initWithNibName(
    std::string_view name, std::shared_ptr<Bundle> bundle, const LayoutScreenFactory& make) {
  std::shared_ptr<const MemoryBundle> source(std::shared_ptr<void>(), &bundles_.main());
  if (bundle) source = std::static_pointer_cast<const MemoryBundle>(std::move(bundle));
  std::string screenName = "screen" + std::to_string(screens_.size() + 1);
  record_.add("viewControllers.initWithNibName ", screenName, " ", name, " ", source->name());
  auto native =
      std::make_unique<MemoryScreen>(record_, transitions_, application_, std::move(screenName),
                                     MemoryScreen::Source{std::move(source), std::string(name)});
  native->onWrongName = onWrongName;
  MemoryScreen& nativeScreen = *native;
  std::shared_ptr<LayoutScreen> screen = make(std::move(native));
  nativeScreen.setController(*screen);
  screens_.push_back(screen);
  return screen;
}

}  // namespace qv_commons::memory
