#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/conformance/suites.h"

namespace qv_commons::conformance {
namespace {

class MemoryAdapter final : public Adapter {
 public:
  void useMainBundle(const MainBundle& bundle) override {
    memory_.mainBundle().info = {bundle.info.begin(), bundle.info.end()};
    memory_.mainBundle().identifier = bundle.identifier;
    if (bundle.namesReceiptLocation) memory_.mainBundle().receiptLocation = "StoreKit/receipt";
  }
  void useSystemVersion(const OperatingSystemVersion& version) override {
    memory_.device().versionNumber = version;
  }
  void useUserInterfaceStyle(UserInterfaceStyle style) override { memory_.device().style = style; }
  void useMail(bool available) override { memory_.mail().available = available; }

  const Platform& platform() override { return memory_.platform(); }

  FileLocation makeFile(const std::string& bytes) override {
    memory_.files().files["file"] = {bytes, ""};
    return "file";
  }
  FileLocation makeFolder() override {
    memory_.files().files["folder"] = {std::nullopt, "Is a directory"};
    return "folder";
  }
  FileLocation missingFile() override { return "missing"; }

  std::vector<std::string> printedBy(const std::function<void()>& act) override {
    memory_.console().lines.clear();
    act();
    return memory_.console().lines;
  }
  std::vector<std::string> openedBy(const std::function<void()>& act) override {
    memory_.application().opened.clear();
    act();
    return memory_.application().opened;
  }

  std::shared_ptr<ViewController> makeScreen() override {
    return memory_.makeViewController("screen");
  }
  std::shared_ptr<ViewController> makeRootScreen() override {
    root_ = memory_.makeViewController("root");
    return root_;
  }
  bool isOnScreen(ViewController& controller) override {
    return &controller == root_.get() || memory::MemoryNode::of(controller).isOnScreen();
  }

  void settle() override { memory_.transitions().runAll(); }
  void leave(ViewController& controller) override {
    memory::MemoryNode::of(controller).swipeAway();
  }
  void tap(AlertController& alert, std::size_t button) override {
    static_cast<memory::MemoryAlert&>(alert.native()).tap(button);
  }
  ShownMessage shown(MailComposer& composer) override {
    const auto& message = static_cast<memory::MemoryMailComposer&>(composer.native()).message();
    ShownMessage shown{message.toRecipients.front(), message.subject, message.body, {}};
    for (const MailAttachment& attachment : message.attachments) {
      shown.attachmentNames.push_back(attachment.fileName);
    }
    return shown;
  }
  void finish(MailComposer& composer, MailComposeResult how) override {
    static_cast<memory::MemoryMailComposer&>(composer.native()).finish(how);
  }

 private:
  memory::MemoryPlatform memory_;
  std::shared_ptr<ViewController> root_;
};

std::unique_ptr<Adapter> makeMemoryAdapter() {
  return std::make_unique<MemoryAdapter>();
}

QV_RUN_ALL_SUITES(Memory, makeMemoryAdapter);

}  // namespace
}  // namespace qv_commons::conformance
