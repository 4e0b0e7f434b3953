#include "qv_commons/age_gate/policy_links.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/platform/memory/memory_text_view.h"

namespace qv_commons {
namespace {

using memory::MemoryTextView;
using testing::ElementsAre;

const Color kText = {0.25, 0.5, 0.75};
const Color kPoliciesText = {0.5, 0, 0.5};
const Color kLayoutText = {0, 1, 0};

class PolicyLinks : public testing::Test {
 protected:
  MemoryTextView viewWith(std::optional<std::string> text) {
    memory::ViewLayout layout;
    layout.viewClass = memory::ViewClass::textView;
    layout.text = std::move(text);
    layout.textColor = kLayoutText;
    return MemoryTextView(record, "tos", layout);
  }

  void applyPolicy(MemoryTextView& view) { applyPolicyLinks(view, "privacy", "terms", theme); }

  memory::Record record;
  QV_AgeGateColorTheme theme{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, kText, kPoliciesText};
};

TEST_F(PolicyLinks, AreLaidInOrderAndThePlainColourComesLast) {
  MemoryTextView view = viewWith("Privacy Policy & Terms of Service");
  applyPolicyLinks(view, "https://example.com/p", "https://example.com/t", theme);
  EXPECT_THAT(record.lines(), ElementsAre("tos.textLength",
                                          "tos.addLinks \"https://example.com/p\" 0 14, "
                                          "\"https://example.com/t\" 17 16, 0.5 0.0 0.5 1.0",
                                          "tos.setTextColor 0.25 0.5 0.75 1.0"));
}

TEST_F(PolicyLinks, AreLaidForTheContactTextAlike) {
  MemoryTextView view = viewWith(std::string(60, 'x'));
  applyContactLink(view, theme);
  EXPECT_THAT(record.lines(),
              ElementsAre("tos.textLength", "tos.addLinks \"mailto\" 38 22, 0.5 0.0 0.5 1.0",
                          "tos.setTextColor 0.25 0.5 0.75 1.0"));
}

TEST_F(PolicyLinks, CoverTheTwoLabels) {
  MemoryTextView view = viewWith("Privacy Policy & Terms of Service");
  applyPolicy(view);
  EXPECT_THAT(view.links(), ElementsAre(TextLink{"privacy", {0, 14}}, TextLink{"terms", {17, 16}}));
  EXPECT_EQ(view.textIn({0, 14}), "Privacy Policy");
  EXPECT_EQ(view.textIn({17, 16}), "Terms of Service");
}

TEST_F(PolicyLinks, ShowInTheirColourAndAllElseInThePlainOne) {
  MemoryTextView view = viewWith("Privacy Policy & Terms of Service.");
  ASSERT_EQ(view.colorAt(0), kLayoutText);
  applyPolicy(view);
  EXPECT_EQ(view.colorAt(0), kPoliciesText);
  EXPECT_EQ(view.colorAt(13), kPoliciesText);
  EXPECT_EQ(view.colorAt(14), kText);
  EXPECT_EQ(view.colorAt(16), kText);
  EXPECT_EQ(view.colorAt(17), kPoliciesText);
  EXPECT_EQ(view.colorAt(32), kPoliciesText);
  EXPECT_EQ(view.colorAt(33), kText);
}

TEST_F(PolicyLinks, NeverMoveWhateverTheLabels) {
  MemoryTextView longer = viewWith("Datenschutzerklärung und Nutzungsbedingungen");
  applyPolicy(longer);
  EXPECT_THAT(longer.links(),
              ElementsAre(TextLink{"privacy", {0, 14}}, TextLink{"terms", {17, 16}}));
  EXPECT_EQ(longer.textIn({0, 14}), "Datenschutzerk");

  MemoryTextView shorter = viewWith("Privacy & Terms, and more words to fill it up");
  applyPolicy(shorter);
  EXPECT_EQ(shorter.textIn(shorter.links().front().range), "Privacy & Term");
}

TEST_F(PolicyLinks, CountUtf16UnitsAfterAnEmoji) {
  // The emoji is two units.
  MemoryTextView view = viewWith("👍Privacy Poli...Terms of Service!");
  applyPolicy(view);
  EXPECT_EQ(view.textIn({0, 14}), "👍Privacy Poli");
  EXPECT_EQ(view.textIn({17, 16}), "Terms of Service");
}

TEST_F(PolicyLinks, CountUtf16UnitsAfterCombiningMarks) {
  // "é" as two units, "e" and U+0301.
  MemoryTextView view = viewWith("Se\u0301curite\u0301 Poli...Terms of Service!");
  applyPolicy(view);
  EXPECT_EQ(view.textIn({0, 14}), "Se\u0301curite\u0301 Pol");
  EXPECT_EQ(view.textIn({17, 16}), ".Terms of Servic");
}

TEST_F(PolicyLinks, MayCutACharacterInTwo) {
  // The emoji is the units 13 and 14.
  MemoryTextView view = viewWith("Privacy Polic👍.. Terms of Service!");
  applyPolicy(view);
  EXPECT_EQ(view.links().front().range, (TextRange{0, 14}));
  EXPECT_EQ(view.textIn({0, 14}), "Privacy Polic\uFFFD");
}

TEST_F(PolicyLinks, CountUtf16UnitsInTheContactText) {
  // 18 emoji and two combining marks make 38 units.
  std::string text;
  for (int emoji = 0; emoji < 18; ++emoji) text.append("👍");
  MemoryTextView view = viewWith(text + "\u0301\u0301contact us for support.");
  applyContactLink(view, theme);
  EXPECT_EQ(view.textIn({38, 22}), "contact us for support");
}

TEST_F(PolicyLinks, KeepTheirValuesAsTheyAre) {
  const std::string megabyte(1'000'000, 'x');
  for (const std::string& value :
       {std::string(), std::string("not a URL at all \xF0\x9F\x91\x8D"), megabyte}) {
    MemoryTextView view = viewWith("Privacy Policy & Terms of Service");
    applyPolicyLinks(view, value, value, theme);
    EXPECT_THAT(view.links(), ElementsAre(TextLink{value, {0, 14}}, TextLink{value, {17, 16}}));
  }
}

TEST_F(PolicyLinks, FitATextOfExactly33Units) {
  MemoryTextView view = viewWith(std::string(33, 'x'));
  applyPolicy(view);
  EXPECT_EQ(view.links().size(), 2u);
}

TEST_F(PolicyLinks, StopTheProcessWhereTheTextIsTooShort) {
  MemoryTextView view = viewWith(std::string(32, 'x'));
  EXPECT_DEATH(applyPolicy(view),
               "applyPolicyLinks: the text has 32 UTF-16 units, its links need 33");
  MemoryTextView empty = viewWith("");
  EXPECT_DEATH(applyPolicy(empty),
               "applyPolicyLinks: the text has 0 UTF-16 units, its links need 33");
}

TEST_F(PolicyLinks, CountUnitsAndNotBytesForTheLength) {
  std::string text;
  for (int letter = 0; letter < 32; ++letter) text.append("é");  // 64 bytes
  MemoryTextView view = viewWith(text);
  EXPECT_DEATH(applyPolicy(view), "the text has 32 UTF-16 units");
  MemoryTextView emoji = viewWith(std::string(31, 'x') + "👍");  // 32 characters
  applyPolicy(emoji);
  EXPECT_EQ(emoji.textIn({17, 16}), std::string(14, 'x') + "👍");
}

TEST_F(PolicyLinks, FitAContactTextOfExactly60Units) {
  MemoryTextView view = viewWith(std::string(60, 'x'));
  applyContactLink(view, theme);
  EXPECT_THAT(view.links(), ElementsAre(TextLink{"mailto", {38, 22}}));
}

TEST_F(PolicyLinks, StopTheProcessWhereTheContactTextIsTooShort) {
  MemoryTextView view = viewWith(std::string(59, 'x'));
  EXPECT_DEATH(applyContactLink(view, theme),
               "applyContactLink: the text has 59 UTF-16 units, its links need 60");
}

TEST_F(PolicyLinks, StopTheProcessWhereThereIsNoText) {
  MemoryTextView view = viewWith(std::nullopt);
  EXPECT_DEATH(applyPolicy(view), "applyPolicyLinks: the text view has no attributed text");
  EXPECT_DEATH(applyContactLink(view, theme),
               "applyContactLink: the text view has no attributed text");
}

}  // namespace
}  // namespace qv_commons
