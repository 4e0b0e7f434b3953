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

std::string bytesOf(const MailMessage& message) {
  std::string bytes;
  EXPECT_TRUE(writeMailMessage(message, [&](std::string_view piece) {
    bytes += piece;
    return true;
  }));
  return bytes;
}

std::string problemOf(const MailMessage& message) {
  const std::optional<MailProblem> problem = findProblem(message);
  return problem ? inEnglish(problem->sentence) : "";
}

SharedAttachment attachment(MailAttachment file) {
  return std::make_shared<const MailAttachment>(std::move(file));
}

TEST(MailMessage, IsWhatMailProgramsExpect) {
  EXPECT_EQ(bytesOf(plainMessage()),
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
  message.attachments.push_back(attachment({"Zm9v", "Text/XML", "Receipt-Data.txt"}));
  EXPECT_THAT(bytesOf(message),
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
  EXPECT_THAT(bytesOf(message), HasSubstr("\nSubject: =?UTF-8?B?R3LDvMOfZQ==?=\n"));
}

TEST(MailMessage, KeepsBlanksAtLineEndsAndLinesWithDots) {
  MailMessage message = plainMessage();
  message.body = "IAP: No \n.\nFrom x\n=3D";
  EXPECT_THAT(bytesOf(message), HasSubstr("\n\nIAP: No=20\n.\n=46rom x\n=3D3D=\n"));
}

TEST(MailMessage, KeepsTabsAndEncodesWhatIsNoCharacter) {
  MailMessage message = plainMessage();
  message.body = "a\tb\x7F~\n";
  EXPECT_THAT(bytesOf(message), HasSubstr("\n\na\tb=7F~\n"));
  message.subject = std::string(60, '\x80');
  EXPECT_THAT(
      bytesOf(message),
      HasSubstr("\nSubject: =?UTF-8?B?gICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgIA=?=\n"
                " =?UTF-8?B?gICAgICAgICAgICAgICAgICAgA==?=\n"));
}

TEST(MailMessage, CarriesABodyWithCarriageReturnsAsBase64) {
  MailMessage message = plainMessage();
  message.body = "a\rb\r\nc\n";
  EXPECT_THAT(bytesOf(message), HasSubstr("Content-Transfer-Encoding: base64\n\nYQ1iDQpjCg==\n"));
}

TEST(MailMessage, CarriesNul) {
  MailMessage message = plainMessage();
  message.body = std::string("a\0b", 3);
  EXPECT_THAT(bytesOf(message), HasSubstr("\n\na=00b"));
}

TEST(MailMessage, AddressesSeveralRecipients) {
  MailMessage message = plainMessage();
  message.recipients = " a@example.com,b@example.com, \"c,d\"@example.com ";
  EXPECT_THAT(bytesOf(message),
              HasSubstr("\nTo: a@example.com, b@example.com, \"c,d\"@example.com\n"));
}

TEST(MailMessage, RefusesControlCharactersInTheAddress) {
  for (const std::string& address :
       {std::string("support@example.com\nBcc: eve@example.com"), std::string("a\r@example.com"),
        std::string("a@example.com\r\n"), std::string("a@example.com\0b", 15)}) {
    MailMessage message = plainMessage();
    message.recipients = address;
    EXPECT_EQ(problemOf(message),
              "The address holds a line break or another control character. Please take it out.");
    EXPECT_EQ(findProblem(message)->field, MailField::recipients);
    EXPECT_THAT(bytesOf(message), Not(HasSubstr("\nBcc")));
  }
}

TEST(MailMessage, RefusesControlCharactersInTheSubject) {
  for (const std::string& subject :
       {std::string("Help\nBcc: eve@example.com"), std::string("Help\r"), std::string("Help\r\n"),
        std::string("He\0lp", 5)}) {
    MailMessage message = plainMessage();
    message.subject = subject;
    EXPECT_EQ(problemOf(message),
              "The subject holds a line break or another control character. Please take it out.");
    EXPECT_EQ(findProblem(message)->field, MailField::subject);
    EXPECT_THAT(bytesOf(message), Not(HasSubstr("\nBcc")));
  }
}

// One half of an address that a comma cuts is no address; neither half is left out.
TEST(MailMessage, RefusesWhatIsNoAddress) {
  MailMessage message = plainMessage();
  message.recipients = "first,last@example.com";
  EXPECT_EQ(problemOf(message), "“first” is not an e-mail address.");
  message.recipients = "ada@example.com, half@";
  EXPECT_EQ(problemOf(message), "“half@” is not an e-mail address.");
}

TEST(MailMessage, NeedsARecipientToBeSent) {
  MailMessage message = plainMessage();
  message.recipients = " , ";
  EXPECT_EQ(problemOf(message), "Please enter an address to send to.");
}

TEST(MailMessage, NamesWhomItIsFor) {
  MailMessage message = plainMessage();
  message.recipients = "Support Team <support@example.com>, \"Ada, B\" <ada@example.com>";
  EXPECT_EQ(problemOf(message), "");
  EXPECT_THAT(
      bytesOf(message),
      HasSubstr("\nTo: Support Team <support@example.com>, \"Ada, B\" <ada@example.com>\n"));
}

TEST(MailMessage, KeepsRecipientsThatAreHalfDone) {
  MailMessage message = plainMessage();
  message.recipients = "half@";
  EXPECT_THAT(bytesOf(message), HasSubstr("\nX-Unfinished-Recipients: half@\n"));
  EXPECT_THAT(bytesOf(message), Not(HasSubstr("\nTo:")));
  message.recipients = "";
  EXPECT_THAT(bytesOf(message), Not(HasSubstr("ecipients")));
}

TEST(MailMessage, RefusesAnAttachmentThatWouldForgeHeaders) {
  MailMessage message = plainMessage();
  for (const MailAttachment& file :
       {MailAttachment{"", "text/plain", "a\nb.txt"},
        MailAttachment{"", "text/plain\nX: y", "a.txt"}, MailAttachment{"", "text", "a.txt"},
        MailAttachment{"", "text/html/x", "a.txt"}, MailAttachment{"", "/html", "a.txt"},
        MailAttachment{"", "text/", "a.txt"}, MailAttachment{"", "text/a\x7F", "a.txt"}}) {
    message.attachments = {attachment(file)};
    EXPECT_EQ(problemOf(message), "The attachment's name or type can't be sent.");
    EXPECT_THAT(bytesOf(message), HasSubstr("\nContent-Type: application/octet-stream;"));
  }
}

TEST(MailMessage, StopsWhereItsSinkDoes) {
  MailMessage open = plainMessage();
  open.body = "no line end";
  MailMessage base64 = plainMessage();
  base64.body = "a\rb";
  MailMessage attached = open;
  attached.attachments = {attachment({std::string(1 << 18, 'x'), "text/plain", "a.txt"})};
  for (const MailMessage& message : {open, base64, attached}) {
    int pieces = 0;
    EXPECT_TRUE(writeMailMessage(message, [&](std::string_view) { return ++pieces > 0; }));
    ASSERT_GE(pieces, 2);
    for (int last = 1; last <= pieces; ++last) {
      int taken = 0;
      EXPECT_FALSE(writeMailMessage(message, [&](std::string_view) { return ++taken < last; }));
      EXPECT_EQ(taken, last);
    }
  }
}

TEST(MailMessage, LeavesASenderThatIsNoAddressToTheMailProgram) {
  for (const char* sender :
       {"ada\n@example.com", "DOMAIN\\ada@pc", "ada lovelace@pc", "ada@ad.example.com@pc", ""}) {
    MailMessage message = plainMessage();
    message.sender = sender;
    EXPECT_EQ(problemOf(message), "");
    EXPECT_THAT(bytesOf(message), Not(HasSubstr("From")));
  }
}

// Mail programs take blanks away at both ends, fold at blanks and decode what looks encoded.
TEST(MailMessage, EncodesASubjectThatWouldArriveOtherwise) {
  const std::pair<const char*, const char*> subjects[] = {
      {" Help ", "=?UTF-8?B?IEhlbHAg?="},
      {"Help ", "=?UTF-8?B?SGVscCA=?="},
      {"=?utf-8?B?SGk=?=", "=?UTF-8?B?PT91dGYtOD9CP1NHaz0/PQ==?="},
      {"=?utf-8?B?DQo=?=", "=?UTF-8?B?PT91dGYtOD9CP0RRbz0/PQ==?="},
      {"a  b", "=?UTF-8?B?YSAgYg==?="},
      {"Help = ?", "Help = ?"}};
  for (const auto& [subject, header] : subjects) {
    MailMessage message = plainMessage();
    message.subject = subject;
    EXPECT_EQ(problemOf(message), "");
    EXPECT_THAT(bytesOf(message), HasSubstr(std::string("\nSubject: ") + header + "\n"));
  }
}

TEST(MailMessage, EncodesLinesThatMailboxesWouldMark) {
  MailMessage message = plainMessage();
  message.body = "From a\n>From b\n From c\nFromage\n" + std::string(70, 'x') + " a From d" +
                 std::string(75, 'y') + "From e";
  EXPECT_THAT(bytesOf(message), HasSubstr("\n\n=46rom a\n>From b\n From c\nFromage\n"));
  EXPECT_THAT(bytesOf(message), Not(HasSubstr("\nFrom ")));
}

TEST(MailMessage, HasNoLineOfMoreThan76Characters) {
  MailMessage message = plainMessage();
  message.body = std::string(300, 'x') + "\n" + std::string(76, 'y') + "\n" + std::string(75, 'z') +
                 "ü\n" + std::string(75, 'w') + " \n";
  const std::string bytes = bytesOf(message);
  std::size_t start = bytes.find("\n\n") + 2;
  int lines = 0;
  for (std::size_t end = 0; (end = bytes.find('\n', start)) != std::string::npos; ++lines) {
    EXPECT_LE(end - start, 76U);
    start = end + 1;
  }
  EXPECT_EQ(lines, 9);
  EXPECT_THAT(bytes, HasSubstr("\n" + std::string(76, 'y') + "\n"));
}

TEST(MailMessage, ComesInPiecesAndAboutAsLongAsEstimated) {
  MailMessage message = plainMessage();
  message.attachments.push_back(attachment({std::string(10 << 20, 'x'), "text/plain", "a.txt"}));
  std::size_t longest = 0;
  std::size_t all = 0;
  writeMailMessage(message, [&](std::string_view piece) {
    longest = std::max(longest, piece.size());
    all += piece.size();
    return true;
  });
  EXPECT_LT(longest, 100'000U);
  EXPECT_NEAR(static_cast<double>(estimateMailSize(message)), static_cast<double>(all), 3000);
}

TEST(MailAddresses, PartAtCommasOutsideQuotes) {
  EXPECT_THAT(splitAddresses("a@b.c"), ElementsAre("a@b.c"));
  EXPECT_THAT(splitAddresses(" a@b.c ,, d@e.f,"), ElementsAre("a@b.c", "d@e.f"));
  EXPECT_THAT(splitAddresses("\"a,b\"@c.d, e@f.g"), ElementsAre("\"a,b\"@c.d", "e@f.g"));
  EXPECT_THAT(splitAddresses(" "), IsEmpty());
}

TEST(MailAddresses, PartAtCommasBehindQuotedQuotes) {
  EXPECT_THAT(splitAddresses("\"a\\\"b\"@e.com, c@e.com"),
              ElementsAre("\"a\\\"b\"@e.com", "c@e.com"));
  EXPECT_THAT(splitAddresses("\"open, c@e.com"), ElementsAre("\"open, c@e.com"));
  EXPECT_THAT(splitAddresses("\"\\"), ElementsAre("\"\\"));
}

TEST(MailAddresses, MayHaveNames) {
  EXPECT_EQ(parseMailbox("a@b.c"), (Mailbox{"", "a@b.c"}));
  EXPECT_EQ(parseMailbox("<a@b.c>"), (Mailbox{"", "a@b.c"}));
  EXPECT_EQ(parseMailbox("Support Team <support@example.com>"),
            (Mailbox{"Support Team", "support@example.com"}));
  EXPECT_EQ(parseMailbox("\"Team, \\\"x\\\"\" <a@b.c>"), (Mailbox{"Team, \"x\"", "a@b.c"}));
  for (const char* bad : {"", "Team", "Team <a>", "Team <a@b", "a@b.c Team", "a@b.c <a@b.c>",
                          "Team <a@b> <c@d>", "Te\nam <a@b.c>"}) {
    EXPECT_EQ(parseMailbox(bad), std::nullopt) << bad;
  }
}

TEST(MailAddresses, AreTakenAsTheyStandOrNotAtAll) {
  for (const char* good :
       {"a@b", "first.last+tag@mail.example.com", "\"a b\"@example.com", "\"a\\\"b\"@example.com",
        "käthe@müller.example", "o'neil@example.com"}) {
    EXPECT_TRUE(isAddress(good)) << good;
  }
  for (const char* bad : {"",
                          "a",
                          "@b",
                          "a@",
                          "a b@c.d",
                          "a@b c",
                          "a@b@c",
                          ".a@b",
                          "a.@b",
                          "a..b@c",
                          "<a@b>",
                          "a@b;c@d",
                          "a@.b",
                          "a@b.",
                          "\"a\"b\"@c",
                          "\"a@b",
                          "\"a\\\"@b",
                          "a@[1.2.3.4]",
                          "a\tb@c",
                          "a\u200b@b.c",
                          "a@b\u200b.c",
                          "a\u00a0b@c.d",
                          "a@b\u202e.c",
                          "\xff@b.c",
                          "a\ufeff@b.c",
                          "a\u00ad@b.c",
                          "a\x7F@b.c",
                          "\"a\x7F\"@b.c"}) {
    EXPECT_FALSE(isAddress(bad)) << bad;
  }
}

}  // namespace
}  // namespace qv_commons::desktop
