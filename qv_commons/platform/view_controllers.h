// The screens that the platform makes. Main thread only.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/layout_screen.h"
#include "qv_commons/platform/mail_composer.h"

namespace qv_commons {

// What it makes is never null and not yet presented.
class ViewControllers {
 public:
  virtual ~ViewControllers() = default;

  // Whether this device can send mail at all; asked before a composer is made.
  virtual bool canSendMail() const = 0;

  // An empty composer.
  virtual std::shared_ptr<MailComposer> makeMailComposer() = 0;

  // An alert without buttons.
  virtual std::shared_ptr<AlertController> makeAlertController(std::string title,
                                                               std::string message,
                                                               AlertStyle preferredStyle) = 0;

  // A screen, not yet loaded, whose views will come from the layout `name` in `bundle`; null means
  // the main bundle. A layout that is missing or unreadable is a fatal error, when the screen loads
  // at the latest.
  virtual std::shared_ptr<LayoutScreen> initWithNibName(std::string_view name,
                                                        std::shared_ptr<Bundle> bundle,
                                                        const LayoutScreenFactory& make) = 0;
};

}  // namespace qv_commons
