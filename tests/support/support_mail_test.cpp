#include "qv_commons/support/support_mail.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

// Large blocks come in whole pages.
constexpr std::int64_t kPage = 4096;

const std::vector<std::string> kTwoPurchases = {"pro_monthly", "remove_ads"};

SupportMailInputs exampleInputs() {
  SupportMailInputs inputs;
  inputs.appId = "notesapp";
  inputs.localizedModel = "iPhone";
  inputs.systemVersion = "14.4";
  inputs.screenSize = {375, 812};
  inputs.preferredLanguage = "en-GB";
  inputs.appVersion = "2.4.1(317)";
  inputs.purchases = kTwoPurchases;
  inputs.additionalMetadata = "User: 42";
  return inputs;
}

TEST(SupportMailBody, ReadsLineByLine) {
  EXPECT_EQ(supportMailBody(exampleInputs()),
            "Reason for contacting support:\n"
            "\n\n\n\n\n\n\n\n"
            "App ID: notesapp\n"
            "Device: iPhone os:  14.4 size: 375.0x812.0 locale: en-GB\n"
            "App version: 2.4.1(317)\n"
            "IAP: Yes pro_monthly, remove_ads\n"
            "User: 42");
}

TEST(SupportMailBody, KeepsItsLabelsForEmptyInputs) {
  EXPECT_EQ(supportMailBody({}),
            "Reason for contacting support:\n\n\n\n\n\n\n\n\nApp ID: \n"
            "Device:  os:   size: 0.0x0.0 locale: \n"
            "App version: \n"
            "IAP: No \n");
}

TEST(SupportMailBody, PutsTheOpeningMessageInPlaceOfTheQuestion) {
  SupportMailInputs inputs;
  inputs.openingMessage = "Hello";
  EXPECT_TRUE(supportMailBody(inputs).starts_with("Hello\n\n\n\n\n\n\n\n\nApp ID: "));
  inputs.openingMessage = "";
  EXPECT_TRUE(supportMailBody(inputs).starts_with("\n\n\n\n\n\n\n\n\nApp ID: "));
}

std::string purchaseLine(const std::vector<std::string>& purchases) {
  SupportMailInputs inputs;
  inputs.purchases = purchases;
  const std::string body = supportMailBody(inputs);
  return body.substr(body.find("\nIAP"));
}

TEST(SupportMailBody, ListsThePurchasesInOrder) {
  EXPECT_EQ(purchaseLine({}), "\nIAP: No \n");
  EXPECT_EQ(purchaseLine({"a"}), "\nIAP: Yes a\n");
  EXPECT_EQ(purchaseLine({"a", "b", "c"}), "\nIAP: Yes a, b, c\n");
  EXPECT_EQ(purchaseLine({"", ""}), "\nIAP: Yes , \n");
}

TEST(SupportMailBody, ListsPurchasesOfEveryLength) {
  const std::string alphabet = "abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  std::vector<std::string> purchases;
  std::string expected = "\nIAP: Yes ";
  for (std::size_t length = 0; length <= alphabet.size(); ++length) {
    purchases.push_back(alphabet.substr(0, length));
    expected += purchases.back() + (length == alphabet.size() ? "\n" : ", ");
  }
  EXPECT_EQ(purchaseLine(purchases), expected);
}

TEST(SupportMailBody, EndsInTheMetadataVerbatim) {
  for (std::string_view metadata : {std::string_view("one\ntwo\r\nthree\rfour"),
                                    std::string_view("\xF0\x9F\x8E\x82 caf\xC3\xA9"),
                                    std::string_view("a\0b", 3), std::string_view("")}) {
    SupportMailInputs inputs;
    inputs.additionalMetadata = metadata;
    const std::string body = supportMailBody(inputs);
    EXPECT_EQ(body.substr(body.find("IAP: No \n") + 9), metadata);
  }
}

TEST(SupportMailBody, TakesAMegabyteInOneLine) {
  const std::string metadata(1000 * 1000, 'm');
  SupportMailInputs inputs;
  inputs.additionalMetadata = metadata;
  EXPECT_TRUE(supportMailBody(inputs).ends_with("\nIAP: No \n" + metadata));
}

TEST(SupportMailBody, AllocatesOnceForAHundredThousandPurchases) {
  const std::vector<std::string> purchases(100'000, "com.example.notes.pro_monthly");
  SupportMailInputs inputs = exampleInputs();
  inputs.purchases = purchases;
  const test::AllocationCounter counter;
  const std::string body = supportMailBody(inputs);
  EXPECT_EQ(counter.calls(), 1);
  EXPECT_EQ(body.size(), 146u + 3'099'998u + 9u);
}

TEST(SupportMailAttachment, HoldsTheReceiptAsBase64Text) {
  const MailAttachment attachment = supportMailAttachment("receipt\n");
  EXPECT_EQ(attachment.data, "cmVjZWlwdAo=");
  EXPECT_EQ(attachment.mimeType, "Text/XML");
  EXPECT_EQ(attachment.fileName, "Receipt-Data.txt");
}

TEST(SupportMailAttachment, OfAnEmptyReceiptIsEmpty) {
  EXPECT_EQ(supportMailAttachment("").data, "");
}

TEST(SupportMailAttachment, NeedsNoMoreMemoryThanItsText) {
  const std::string receipt(100 * 1000 * 1000, 'r');
  const test::AllocationCounter counter;
  const MailAttachment attachment = supportMailAttachment(receipt);
  EXPECT_LE(counter.peakBytes(), static_cast<std::int64_t>(attachment.data.size()) + kPage);
}

}  // namespace
}  // namespace qv_commons
