#include "qv_commons/platform/memory/memory_screen.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "qv_commons/age_gate/policy_links.h"
#include "qv_commons/platform/fatal_error.h"

namespace qv_commons::memory {
namespace {

std::string classText(ViewClass viewClass) {
  constexpr std::array kTexts = {"view", "label", "button", "date picker", "text view"};
  return kTexts.at(static_cast<std::size_t>(viewClass));
}

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
    : NativeOf(record, transitions, std::move(name)),
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
  for (const Outlet& outlet : screen().outlets()) {
    const auto view = views_.find(outlet.name);
    outlet.connect(view == views_.end() ? nullptr : view->second);
  }
  screen().viewDidLoad();
}

bool MemoryScreen::tap(std::string_view button) {
  if (!isOnTop() || !view<MemoryButton>(button).isEnabled()) return false;
  trigger(button);
  return true;
}

bool MemoryScreen::pick(std::string_view datePicker, Instant date) {
  if (!isOnTop()) return false;
  view<MemoryDatePicker>(datePicker).turnTo(date);
  trigger(datePicker);
  return true;
}

bool MemoryScreen::tapLink(std::string_view textView, std::size_t unit) {
  if (!isOnTop()) return false;
  auto& tapped = view<MemoryTextView>(textView);
  const std::optional<TextLink> link = tapped.choosableLinkAt(unit);
  if (!link) return false;
  interactWithLink(tapped, tapped.delegate(), link->value, link->range, application_);
  return true;
}

void MemoryScreen::trigger(std::string_view view) {
  const std::string& selector = layout_.find(view)->second.action;
  if (selector.empty()) return;
  const std::vector<Action> actions = screen().actions();
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
  std::string problem = name() + " has no such view: " + std::string(view) + "; it has:";
  for (const auto& [viewName, layout] : layout_) {
    problem += " " + viewName + " (" + classText(layout.viewClass) + ")";
  }
  if (onWrongName) onWrongName(problem);
  fatalError(problem);
}

}  // namespace qv_commons::memory
