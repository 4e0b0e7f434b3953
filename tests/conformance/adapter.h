// What a conformance suite needs of an adapter, beside its platform.
//
// Each suite is written once, as tests with a parameter that makes the adapter. A program includes
// the suites that concern its adapter and instantiates them:
//
//     QV_RUN_SUITE(BundleConformance, Memory, makeMemoryAdapter);
#pragma once

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/view_controllers.h"

namespace qv_commons::conformance {

struct MainBundle {
  std::map<std::string, std::string> texts = {};
  std::map<std::string, int> numbers = {};
  std::optional<std::string> identifier = {};
  bool namesReceiptLocation = false;
};

// What the user sees in a mail composer.
struct ShownMessage {
  std::string recipients;
  std::string subject;
  std::string body;
  std::vector<std::string> attachmentNames;

  friend bool operator==(const ShownMessage&, const ShownMessage&) = default;
};

class Adapter {
 public:
  virtual ~Adapter() = default;

  // The environment; to be set before the first call of `platform`.
  virtual void useMainBundle(const MainBundle& bundle) = 0;
  virtual void useSystemVersion(int major) = 0;
  virtual void useUserInterfaceStyle(UserInterfaceStyle style) = 0;
  virtual void useMail(bool available) = 0;

  virtual const Platform& platform() = 0;

  // A file `name` with those bytes in the main bundle.
  virtual void addToMainBundle(const std::string& name, const std::string& bytes) = 0;

  virtual FileLocation makeFile(const std::string& bytes) = 0;
  virtual FileLocation makeFolder() = 0;
  virtual FileLocation missingFile() = 0;

  // What reaches the console and the system while `act` runs.
  virtual std::vector<std::string> printedBy(const std::function<void()>& act) = 0;
  virtual std::vector<std::string> openedBy(const std::function<void()>& act) = 0;

  // What the app would read after being killed now.
  virtual bool nextStartReads(const char* key) = 0;

  // A screen of the host's, not yet presented, and one that is on the screen as the first of all.
  virtual std::shared_ptr<ViewController> makeScreen() = 0;
  virtual std::shared_ptr<ViewController> makeRootScreen() = 0;
  virtual bool isOnScreen(ViewController& controller) = 0;

  // Tells whether `screen` is still there, without keeping it.
  virtual std::function<bool()> watch(const std::shared_ptr<ViewController>& screen) {
    return [observed = std::weak_ptr(screen)] { return !observed.expired(); };
  }

  // Waits until nothing moves any more.
  virtual void settle() = 0;

  // The user swipes the screen away, or presses Escape.
  virtual void leave(ViewController& controller) = 0;

  virtual void tap(AlertController& alert, std::size_t button) = 0;

  // The user on the library's screen on top: picks a day of birth, taps "Confirm" or the contact
  // link. False if that can't be done.
  virtual bool pick(Instant birth) = 0;
  virtual bool tapConfirm() = 0;
  virtual bool tapContactLink() = 0;

  virtual ShownMessage shown(MailComposer& composer) = 0;

  // The user sends, saves or cancels.
  virtual void finish(MailComposer& composer, MailComposeResult how) = 0;
};

struct AdapterUnderTest {
  const char* name;
  std::unique_ptr<Adapter> (*make)();

  friend void PrintTo(const AdapterUnderTest& adapter, std::ostream* out) { *out << adapter.name; }
};

class Suite : public testing::TestWithParam<AdapterUnderTest> {
 protected:
  Adapter& adapter() { return *adapter_; }
  const Platform& platform() { return adapter_->platform(); }

 private:
  std::unique_ptr<Adapter> adapter_ = GetParam().make();
};

}  // namespace qv_commons::conformance

#define QV_RUN_SUITE(suite, name, make)                                                  \
  INSTANTIATE_TEST_SUITE_P(name, suite, testing::Values(AdapterUnderTest{#name, &make}), \
                           [](const auto&) { return std::string("Adapter"); })
