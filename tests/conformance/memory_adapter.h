// The tests' side of the memory adapter, and the beginning of another's: see
// docs/writing-an-adapter.md.
#pragma once

#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class MemoryAdapter : public Adapter {
 public:
  void useMainBundle(const MainBundle& bundle) override {
    memory_.mainBundle().info = {bundle.texts.begin(), bundle.texts.end()};
    memory_.mainBundle().identifier = bundle.identifier;
    if (bundle.namesReceiptLocation) memory_.mainBundle().receiptLocation = "StoreKit/receipt";
  }
  void useSystemVersion(int major) override {
    memory_.device().version = std::to_string(major) + ".9";
  }
  void useUserInterfaceStyle(UserInterfaceStyle style) override { memory_.device().style = style; }
  void useMail(bool available) override { memory_.viewControllers().mailAvailable = available; }

  const Platform& platform() override { return memory_.platform(); }

  void addToMainBundle(const std::string& name, const std::string& bytes) override {
    memory_.mainBundle().resources[name] = "/app/" + name;
    memory_.bundles().files["/app/" + name] = {bytes, ""};
  }

  FileLocation makeFile(const std::string& bytes) override {
    memory_.bundles().files["file"] = {bytes, ""};
    return "file";
  }
  FileLocation makeFolder() override {
    memory_.bundles().files["folder"] = {std::nullopt, "Is a directory"};
    return "folder";
  }
  FileLocation missingFile() override { return "missing"; }

  std::vector<std::string> printedBy(const std::function<void()>& act) override {
    memory_.application().printed.clear();
    act();
    return memory_.application().printed;
  }
  std::vector<std::string> openedBy(const std::function<void()>& act) override {
    memory_.application().opened.clear();
    act();
    return memory_.application().opened;
  }

  bool nextStartReads(const char* key) override {
    const auto& committed = memory_.userDefaults().committed;
    const auto found = committed.find(key);
    return found != committed.end() && found->second;
  }

  std::shared_ptr<ViewController> makeScreen() override {
    return memory_.makeViewController("screen");
  }
  std::shared_ptr<ViewController> makeRootScreen() override {
    auto root = memory_.makeViewController("root");
    root_ = root.get();
    return root;
  }
  bool isOnScreen(ViewController& controller) override {
    return &controller == root_ || memory::MemoryController::of(controller).isOnScreen();
  }

  void settle() override { memory_.transitions().runAll(); }
  void leave(ViewController& controller) override {
    memory::MemoryController::of(controller).swipeAway();
  }
  void tap(AlertController& alert, std::size_t button) override {
    static_cast<memory::MemoryAlert&>(alert).tap(button);
  }
  bool pick(Instant birth) override { return screen().pick("datePicker", birth); }
  bool tapConfirm() override { return screen().tap("confirmBtn"); }
  bool tapContactLink() override { return screen().tapLink("contact", 38); }
  ShownMessage shown(MailComposer& composer) override {
    const auto& message = static_cast<memory::MemoryMailComposer&>(composer).message();
    ShownMessage shown{message.toRecipients.front(), message.subject, message.body, {}};
    for (const MailAttachment& attachment : message.attachments) {
      shown.attachmentNames.push_back(attachment.fileName);
    }
    return shown;
  }
  void finish(MailComposer& composer, MailComposeResult how) override {
    static_cast<memory::MemoryMailComposer&>(composer).finish(how);
  }

 protected:
  memory::MemoryPlatform& memoryPlatform() { return memory_; }

 private:
  memory::MemoryScreen& screen() { return *memory_.viewControllers().lastScreen(); }

  memory::MemoryPlatform memory_;
  ViewController* root_ = nullptr;
};

}  // namespace qv_commons::conformance
