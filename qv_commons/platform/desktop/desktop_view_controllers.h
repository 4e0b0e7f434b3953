// The screens that the desktop adapter makes: composers, alerts, and what comes from layout files.
#pragma once

#include "qv_commons/platform/desktop/layout_controller.h"
#include "qv_commons/platform/view_controllers.h"

namespace qv_commons::desktop {

class DesktopViewControllers final : public ViewControllers {
 public:
  DesktopViewControllers(SharedContext context, const ScreenServices& services)
      : context_(std::move(context)), services_(services) {}

  // Whether one of the settings' ways for mail is there at this moment.
  bool canSendMail() const override;

  // Where the message goes to the desktop's own mail program, this composer shows that it is being
  // handed over, and is gone once it is; its result is `saved` then, since nobody tells what the
  // user does there. Else, and where the desktop did not take the message:
  //
  // The composer stays open until its message is sent or saved or the user cancels. A message that
  // can't be sent stays as it was typed, and from the first attempt on a copy is kept as a draft.
  std::shared_ptr<MailComposer> makeMailComposer() override;

  // Both styles look alike.
  std::shared_ptr<AlertController> makeAlertController(std::string title, std::string message,
                                                       AlertStyle preferredStyle) override;

  // A layout that findLayout doesn't find is a fatal error here; a file that can't be read or makes
  // no sense is one when the screen is shown.
  std::shared_ptr<LayoutScreen> initWithNibName(std::string_view name,
                                                std::shared_ptr<Bundle> bundle,
                                                const LayoutScreenFactory& make) override;

 private:
  SharedContext context_;
  ScreenServices services_;
};

}  // namespace qv_commons::desktop
