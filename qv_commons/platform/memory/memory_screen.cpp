#include "qv_commons/platform/memory/memory_screen.h"

#include <algorithm>
#include <utility>

#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/support/url.h"

namespace qv_commons::memory {
namespace {

std::shared_ptr<View> makeView(Record& record, std::string name, const ViewLayout& layout) {
  switch (layout.viewClass) {
    case ViewClass::label:
      return std::make_shared<MemoryLabel>(record, std::move(name), layout.text);
    case ViewClass::button:
      return std::make_shared<MemoryButton>(record, std::move(name));
    case ViewClass::datePicker:
      return std::make_shared<MemoryDatePicker>(record, std::move(name));
    case ViewClass::textView:
      return std::make_shared<MemoryTextView>(record, std::move(name), layout);
    case ViewClass::view:
      break;
  }
  return std::make_shared<MemoryView>(record, std::move(name));
}

}  // namespace

MemoryScreen::MemoryScreen(Record& record, Transitions& transitions, Application& application,
                           std::string name, Source source)
    : MemoryNode(record, transitions, std::move(name)),
      application_(application),
      source_(std::move(source)) {}

void MemoryScreen::load() {
  if (std::exchange(loaded_, true)) return;
  record().add(name(), ".load ", source_.layout);
  const auto found = source_.bundle->layouts.find(source_.layout);
  if (found == source_.bundle->layouts.end()) {
    fatalError(name() + ": the bundle has no layout \"" + source_.layout + "\"");
  }
  layout_ = found->second;
  for (const auto& [viewName, view] : layout_) {
    views_[viewName] = makeView(record(), name() + "." + viewName, view);
  }
  for (const Outlet& outlet : screen_->outlets()) connect(outlet);
  screen_->viewDidLoad();
}

void MemoryScreen::connect(const Outlet& outlet) {
  const auto found = views_.find(outlet.name);
  if (found == views_.end()) return;
  std::visit(
      [&]<class ViewType>(std::weak_ptr<ViewType>* reference) {
        *reference = std::dynamic_pointer_cast<ViewType>(found->second);
      },
      outlet.reference);
}

bool MemoryScreen::tap(std::string_view button) {
  if (!isOnTop() || !view<MemoryButton>(button).isEnabled()) return false;
  trigger(button);
  return true;
}

bool MemoryScreen::pick(std::string_view datePicker, double date) {
  if (!isOnTop()) return false;
  view<MemoryDatePicker>(datePicker).turnTo(date);
  trigger(datePicker);
  return true;
}

bool MemoryScreen::tapLink(std::string_view textView, std::size_t unit) {
  if (!isOnTop()) return false;
  auto& tapped = view<MemoryTextView>(textView);
  const std::optional<Link> link = tapped.choosableLinkAt(unit);
  if (!link) return false;
  TextViewDelegate* delegate = tapped.delegate();
  if (delegate != nullptr && !delegate->shouldInteractWithURL(tapped, link->value, link->range)) {
    return true;
  }
  if (const std::optional<URL> url = URL::parse(link->value)) application_.openURL(*url);
  return true;
}

void MemoryScreen::trigger(std::string_view view) {
  const std::string& selector = layout_.find(view)->second.action;
  if (selector.empty()) return;
  const std::vector<Action> actions = screen_->actions();
  const auto found = std::find_if(actions.begin(), actions.end(), [&](const Action& action) {
    return action.selector == selector;
  });
  if (found == actions.end()) fatalError(name() + " has no action " + selector);
  found->run();
}

View* MemoryScreen::findView(std::string_view name) const {
  const auto found = views_.find(name);
  return found == views_.end() ? nullptr : found->second.get();
}

void MemoryScreen::failWithoutView(std::string_view view) const {
  fatalError(name() + " has no such view: " + std::string(view));
}

MemoryLayoutLoader::~MemoryLayoutLoader() {
  for (const std::weak_ptr<MemoryScreen>& made : screens_) {
    const std::shared_ptr<MemoryScreen> screen = made.lock();
    while (screen && screen->isOnScreen()) {
      screen->PresentationNode::dismissViewController(false, nullptr);
    }
  }
}

std::shared_ptr<MemoryScreen> MemoryLayoutLoader::lastScreen() const {
  const auto living = std::find_if(screens_.rbegin(), screens_.rend(),
                                   [](const auto& screen) { return !screen.expired(); });
  return living == screens_.rend() ? nullptr : living->lock();
}

std::shared_ptr<LayoutScreen> MemoryLayoutLoader::initWithNibName(std::string_view name,
                                                                  std::shared_ptr<Bundle> bundle,
                                                                  const LayoutScreenFactory& make) {
  std::shared_ptr<const MemoryBundle> source(std::shared_ptr<void>(), &bundles_.main());
  if (bundle) source = std::static_pointer_cast<const MemoryBundle>(std::move(bundle));
  std::string screenName = "screen" + std::to_string(screens_.size() + 1);
  record_.add("layoutLoader.initWithNibName ", screenName, " ", name, " ", source->name());
  auto screen =
      std::make_shared<MemoryScreen>(record_, transitions_, application_, std::move(screenName),
                                     MemoryScreen::Source{std::move(source), std::string(name)});
  screen->screen_ = make(*screen);
  screens_.push_back(screen);
  LayoutScreen& controller = screen->controller();
  return {std::move(screen), &controller};
}

}  // namespace qv_commons::memory
