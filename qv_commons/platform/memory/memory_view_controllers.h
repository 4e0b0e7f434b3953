// The screens that the memory adapter makes for the library, for a test to read and to play the
// user on.
//
//     platform.viewControllers().mailAvailable = true;
//     platform.viewControllers().mailOutcome = qv_commons::MailComposeResult::saved;
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/memory/memory_mail.h"
#include "qv_commons/platform/memory/memory_screen.h"
#include "qv_commons/platform/view_controllers.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT MemoryViewControllers final : public ViewControllers {
 public:
  MemoryViewControllers(Record& record, Transitions& transitions, Application& application,
                        MemoryBundles& bundles)
      : record_(record), transitions_(transitions), application_(application), bundles_(bundles) {}

  bool mailAvailable = true;

  // If set, each composer is finished with this as soon as it is on the screen.
  std::optional<MailComposeResult> mailOutcome;

  // For each screen made from now on. With this, a name that no view has fails the one test, and
  // not the whole program:
  //     [](const std::string& problem) { throw std::runtime_error(problem); }
  std::function<void(const std::string&)> onWrongName;

  // Every composer and every alert made so far, oldest first; in the record they are composer1,
  // composer2, alert1 and so on.
  const std::vector<std::shared_ptr<MemoryMailComposer>>& composers() const { return composers_; }
  const std::vector<std::shared_ptr<MemoryAlert>>& alerts() const { return alerts_; }

  // The newest screen made of a layout that is alive, or null. In the record they are screen1,
  // screen2 and so on.
  MemoryScreen* lastScreen() const;

  bool canSendMail() const override;
  std::shared_ptr<MailComposer> makeMailComposer() override;
  std::shared_ptr<AlertController> makeAlertController(std::string title, std::string message,
                                                       AlertStyle preferredStyle) override;
  std::shared_ptr<LayoutScreen> initWithNibName(std::string_view name,
                                                std::shared_ptr<Bundle> bundle,
                                                const LayoutScreenFactory& make) override;

 private:
  Record& record_;
  Transitions& transitions_;
  Application& application_;
  MemoryBundles& bundles_;
  std::vector<std::shared_ptr<MemoryMailComposer>> composers_;
  std::vector<std::shared_ptr<MemoryAlert>> alerts_;
  std::vector<std::weak_ptr<LayoutScreen>> screens_;
};

}  // namespace qv_commons::memory
