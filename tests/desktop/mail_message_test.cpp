#include "qv_commons/platform/desktop/mail_message.h"

#include <gmock/gmock.h>

#include "qv_commons/platform/desktop/mail_addresses.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

MailMessage plainMessage() {
  return {.sender = "ada@example.com",
          .recipients = "support@example.com",
          .subject = "Help",
          .body = "It broke.\n",
          .date = 1700000000,
          .messageId = "1@example.com"};
}

std::string errorOf(const MailMessage& message, MailPurpose purpose = MailPurpose::send) {
  const BuiltMessage built = buildMailMessage(message, purpose);
  EXPECT_EQ(built.error.empty(), !built.bytes.empty());
  return built.error;
}

TEST(MailMessage, IsWhatMailProgramsExpect) {
  EXPECT_EQ(buildMailMessage(plainMessage(), MailPurpose::send).bytes,
            "Date: Tue, 14 Nov 2023 22:13:20 +0000\n"
            "From: ada@example.com\n"
            "Subject: Help\n"
            "To: support@example.com\n"
            "Message-Id: <1@example.com>\n"
            "MIME-Version: 1.0\n"
            "Content-Type: text/plain; charset=utf-8\n"
            "Content-Transfer-Encoding: quoted-printable\n"
            "\n"
            "It broke.\n");
}

TEST(MailMessage, AttachesTheReceiptWithItsTypeAsSpelled) {
  MailMessage message = plainMessage();
  message.attachments.push_back({"Zm9v", "Text/XML", "Receipt-Data.txt"});
  EXPECT_THAT(buildMailMessage(message, MailPurpose::send).bytes,
              HasSubstr("Content-Type: multipart/mixed; boundary=\"=_qv_commons_part\"\n"
                        "\n"
                        "--=_qv_commons_part\n"
                        "Content-Type: text/plain; charset=utf-8\n"
                        "Content-Transfer-Encoding: quoted-printable\n"
                        "\n"
                        "It broke.\n"
                        "\n"
                        "--=_qv_commons_part\n"
                        "Content-Type: Text/XML; name=Receipt-Data.txt\n"
                        "Content-Transfer-Encoding: base64\n"
                        "Content-Disposition: attachment; filename=Receipt-Data.txt\n"
                        "\n"
                        "Wm05dg==\n"
                        "\n"
                        "--=_qv_commons_part--\n"));
}

TEST(MailMessage, EncodesASubjectBeyondAscii) {
  MailMessage message = plainMessage();
  message.subject = "Grüße";
  EXPECT_THAT(buildMailMessage(message, MailPurpose::send).bytes,
              HasSubstr("\nSubject: =?UTF-8?B?R3LDvMOfZQ==?=\n"));
}

TEST(MailMessage, KeepsBlanksAtLineEndsAndLinesWithDots) {
  MailMessage message = plainMessage();
  message.body = "IAP: No \n.\nFrom x\n=3D";
  EXPECT_THAT(buildMailMessage(message, MailPurpose::send).bytes,
              HasSubstr("\n\nIAP: No=20\n.\nFrom x\n=3D3D"));
}

TEST(MailMessage, CarriesABodyWithCarriageReturnsAsBase64) {
  MailMessage message = plainMessage();
  message.body = "a\rb\r\nc\n";
  EXPECT_THAT(buildMailMessage(message, MailPurpose::send).bytes,
              HasSubstr("Content-Transfer-Encoding: base64\n\nYQ1iDQpjCg==\n"));
}

TEST(MailMessage, CarriesNul) {
  MailMessage message = plainMessage();
  message.body = std::string("a\0b", 3);
  EXPECT_THAT(buildMailMessage(message, MailPurpose::send).bytes, HasSubstr("\n\na=00b"));
}

TEST(MailMessage, AddressesSeveralRecipients) {
  MailMessage message = plainMessage();
  message.recipients = " a@example.com,b@example.com, \"c,d\"@example.com ";
  EXPECT_THAT(buildMailMessage(message, MailPurpose::send).bytes,
              HasSubstr("\nTo: a@example.com, b@example.com, \"c,d\"@example.com\n"));
}

TEST(MailMessage, RefusesControlCharactersInTheAddress) {
  for (const std::string& address :
       {std::string("support@example.com\nBcc: eve@example.com"), std::string("a\r@example.com"),
        std::string("a@example.com\r\n"), std::string("a@example.com\0b", 15)}) {
    MailMessage message = plainMessage();
    message.recipients = address;
    for (const MailPurpose purpose : {MailPurpose::send, MailPurpose::keep}) {
      EXPECT_EQ(errorOf(message, purpose),
                "The address holds a line break or another control character. Please take it out.");
    }
    EXPECT_EQ(buildMailMessage(message, MailPurpose::send).field, MailField::recipients);
  }
}

TEST(MailMessage, RefusesControlCharactersInTheSubject) {
  for (const std::string& subject :
       {std::string("Help\nBcc: eve@example.com"), std::string("Help\r"), std::string("Help\r\n"),
        std::string("He\0lp", 5)}) {
    MailMessage message = plainMessage();
    message.subject = subject;
    for (const MailPurpose purpose : {MailPurpose::send, MailPurpose::keep}) {
      EXPECT_EQ(errorOf(message, purpose),
                "The subject holds a line break or another control character. Please take it out.");
    }
    EXPECT_EQ(buildMailMessage(message, MailPurpose::send).field, MailField::subject);
  }
}

// One half of an address that a comma cuts is no address; neither half is left out.
TEST(MailMessage, RefusesWhatIsNoAddress) {
  MailMessage message = plainMessage();
  message.recipients = "first,last@example.com";
  EXPECT_EQ(errorOf(message), "“first” is not an e-mail address.");
  message.recipients = "Ada <ada@example.com>";
  EXPECT_EQ(errorOf(message), "“Ada <ada@example.com>” is not an e-mail address.");
}

TEST(MailMessage, NeedsARecipientOnlyToBeSent) {
  MailMessage message = plainMessage();
  message.recipients = " , ";
  EXPECT_EQ(errorOf(message), "Please enter an address to send to.");
  EXPECT_EQ(errorOf(message, MailPurpose::keep), "");
  EXPECT_THAT(buildMailMessage(message, MailPurpose::keep).bytes, Not(HasSubstr("\nTo:")));
}

TEST(MailMessage, RefusesAnAttachmentThatWouldForgeHeaders) {
  MailMessage message = plainMessage();
  message.attachments.push_back({"", "text/plain", "a\nb.txt"});
  EXPECT_EQ(errorOf(message), "The attachment's name or type can't be sent.");
  message.attachments.front() = {"", "text/plain\nX: y", "a.txt"};
  EXPECT_EQ(errorOf(message), "The attachment's name or type can't be sent.");
  message.attachments.front() = {"", "text", "a.txt"};
  EXPECT_EQ(errorOf(message), "The attachment's name or type can't be sent.");
}

TEST(MailMessage, RefusesASenderThatIsNoAddress) {
  MailMessage message = plainMessage();
  message.sender = "ada\n@example.com";
  EXPECT_THAT(errorOf(message), HasSubstr("is not an e-mail address."));
}

TEST(MailAddresses, PartAtCommasOutsideQuotes) {
  EXPECT_THAT(splitAddresses("a@b.c"), ElementsAre("a@b.c"));
  EXPECT_THAT(splitAddresses(" a@b.c ,, d@e.f,"), ElementsAre("a@b.c", "d@e.f"));
  EXPECT_THAT(splitAddresses("\"a,b\"@c.d, e@f.g"), ElementsAre("\"a,b\"@c.d", "e@f.g"));
  EXPECT_THAT(splitAddresses(" "), IsEmpty());
}

TEST(MailAddresses, AreTakenAsTheyStandOrNotAtAll) {
  for (const char* good :
       {"a@b", "first.last+tag@mail.example.com", "\"a b\"@example.com", "\"a\\\"b\"@example.com",
        "käthe@müller.example", "o'neil@example.com"}) {
    EXPECT_TRUE(isAddress(good)) << good;
  }
  for (const char* bad :
       {"", "a", "@b", "a@", "a b@c.d", "a@b c", "a@b@c", ".a@b", "a.@b", "a..b@c", "<a@b>",
        "a@b;c@d", "a@.b", "a@b.", "\"a\"b\"@c", "\"a@b", "\"a\\\"@b", "a@[1.2.3.4]", "a\tb@c"}) {
    EXPECT_FALSE(isAddress(bad)) << bad;
  }
}

}  // namespace
}  // namespace qv_commons::desktop
