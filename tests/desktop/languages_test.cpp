// The screens in the user's language: which one is chosen, what a string table may hold, and that
// the filler of the links is neither seen nor heard.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTranslator>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/screen_words.h"
#include "qv_commons/platform/desktop/string_table.h"

#include "tests/desktop/age_gate_fixture.h"

namespace qv_commons::desktop {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kBundle = QV_COMMONS_RESOURCES "/QV_Commons_iOS.bundle";
constexpr const char* kEnglish = "What’s your date of birth?";
constexpr const char* kGerman = "Wann sind Sie geboren?";

std::vector<std::string> namesOf(const char* language) {
  std::vector<std::string> names;
  for (const QString& name : tableNames(QLocale(language))) names.push_back(name.toStdString());
  return names;
}

TEST(TableNames, GoFromTheRegionToTheLanguage) {
  EXPECT_THAT(namesOf("de-AT"), ElementsAre("de-Latn-AT", "de-AT", "de-Latn", "de"));
  EXPECT_THAT(namesOf("de_CH.UTF-8"), ElementsAre("de-Latn-CH", "de-CH", "de-Latn", "de"));
}

TEST(TableNames, HaveTheScriptThatTheRegionWrites) {
  EXPECT_THAT(namesOf("zh_TW.UTF-8@variant"), ElementsAre("zh-Hant-TW", "zh-TW", "zh-Hant", "zh"));
  EXPECT_THAT(namesOf("zh-HK"), ElementsAre("zh-Hant-HK", "zh-HK", "zh-Hant", "zh"));
  EXPECT_THAT(namesOf("zh-SG"), ElementsAre("zh-Hans-SG", "zh-SG", "zh-Hans", "zh"));
  EXPECT_THAT(namesOf("zh"), ElementsAre("zh-Hans-CN", "zh-CN", "zh-Hans", "zh"));
}

TEST(TableNames, AreNoneForWhatIsNoLanguage) {
  for (const char* none : {"", "C", "POSIX", "C.UTF-8", "qqq", "!", "12"}) {
    EXPECT_THAT(namesOf(none), IsEmpty()) << none;
  }
}

// The header in the first language of the list that the library speaks; empty for the layout's own.
std::string headerFor(const std::vector<std::string>& languages) {
  const ScreenWords words =
      findWords(std::string(kBundle) + "/QV_AgeGateViewController.ui", languages,
                [](const std::string& problem) { ADD_FAILURE() << problem; });
  return words.words.value("header.text").toStdString();
}

TEST(ChosenLanguage, IsTheFirstThatTheScreensSpeak) {
  EXPECT_EQ(headerFor({"de"}), kGerman);
  EXPECT_EQ(headerFor({"sv-SE", "tlh", "de-AT", "fr"}), kGerman);
  EXPECT_EQ(headerFor({"pt-PT"}), "Quando você nasceu?");
  EXPECT_EQ(headerFor({"zh_TW.UTF-8@variant"}), headerFor({"zh-Hant"}));
  EXPECT_NE(headerFor({"zh_TW"}), "");
}

TEST(ChosenLanguage, IsEnglishWithoutOne) {
  EXPECT_EQ(headerFor({}), "");
  EXPECT_EQ(headerFor({"C"}), "");
  EXPECT_EQ(headerFor({"sv", "tlh", "", "!"}), "");
}

TEST(ChosenLanguage, IsEnglishForAUserOfEnglish) {
  EXPECT_EQ(headerFor({"en-GB", "de"}), "");
  EXPECT_EQ(headerFor({"sv", "en", "de"}), "");
}

TEST(StringTables, HoldWordsByTheirKeys) {
  const StringTable table = parseStringTable(
      "\xef\xbb\xbf/* one */ \"a.text\" = \"A\\U2060\\n\\\"é\\\"\\\\\";\n// two\n\"b\"=\"B\"; "
      "\"b\" = \"\";");
  EXPECT_EQ(table.problem, "");
  EXPECT_EQ(table.words.size(), 2);
  EXPECT_EQ(table.words.value("a.text"), QString("A\u2060\n\"é\"\\"));
  EXPECT_EQ(table.words.value("b"), "");
  EXPECT_EQ(parseStringTable("").problem, "");
  EXPECT_EQ(parseStringTable("\"a\" = \"A\\tB\\'\";").words.value("a"), "A\tB'");
}

TEST(StringTables, HoldAllBeforeWhatMakesNoSense) {
  const StringTable table = parseStringTable("\"a\" = \"A\";\n\n\"b\" = \"B");
  EXPECT_EQ(table.words, (QHash<QString, QString>{{"a", "A"}}));
  EXPECT_EQ(table.problem, "holds in line 3 what isn't of the form \"key\" = \"words\";");
  EXPECT_EQ(parseStringTable("a = b;").problem,
            "holds in line 1 what isn't of the form \"key\" = \"words\";");
}

TEST(StringTables, AreUtf8) {
  const StringTable table = parseStringTable("\"a\" = \"A\"; \"b\" = \"\xe9\";");
  EXPECT_THAT(table.words, IsEmpty());
  EXPECT_EQ(table.problem, "is not UTF-8");
  EXPECT_EQ(parseStringTable(std::string_view("\0\"\0a", 4)).problem,
            "holds in line 1 what isn't of the form \"key\" = \"words\";");
}

class Languages : public AgeGateTest {
 protected:
  void startIn(std::vector<std::string> languages) {
    DesktopSettings spoken = settings();
    spoken.languages = std::move(languages);
    spoken.resourceDirectory = resourceDirectory_;
    restart(spoken);
    startAgeGate();
  }
  QWidget& gateIn(std::vector<std::string> languages) {
    startIn(std::move(languages));
    return *gate();
  }
  // The user stays refused at every later start.
  QWidget& refusalIn(std::vector<std::string> languages) {
    startIn(std::move(languages));
    if (gate() != nullptr) {
      pickYear(*gate(), "2020");
      confirm();
    }
    return *refusal();
  }
  static std::string header(QWidget& screen) {
    return view<QLabel>(screen, "header").accessibleName().toStdString();
  }
  static std::vector<std::string> linksOf(QWidget& screen, const char* name) {
    std::vector<std::string> words;
    for (const auto& link : view<LinkTextView>(screen, name).links()) {
      words.push_back(link.words.toStdString());
    }
    return words;
  }

  std::string resourceDirectory_;
};

TEST_F(Languages, AreTheUsers) {
  QWidget& asking = gateIn({"de-DE", "en"});
  EXPECT_EQ(header(asking), kGerman);
  EXPECT_EQ(view<QLabel>(asking, "subtitle").accessibleName(),
            "Dient nur der Altersprüfung und wird nicht gespeichert.");
  EXPECT_EQ(view<QWidget>(asking, "datePicker").accessibleName(), "Geburtsdatum");
  EXPECT_EQ(view<QPushButton>(asking, "confirmBtn").text(), "Bestätigen");
  EXPECT_THAT(linksOf(asking, "tos"), ElementsAre("Datenschutz", "Nutzungsregeln"));
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(Languages, AreTheUsersOnTheRefusalToo) {
  QWidget& refusing = refusalIn({"de"});
  EXPECT_EQ(header(refusing), "Notes steht Ihnen leider nicht zur Verfügung");
  EXPECT_THAT(linksOf(refusing, "contact"), ElementsAre("Support kontaktieren"));
  EXPECT_THAT(linksOf(refusing, "tos"), ElementsAre("Datenschutz", "Nutzungsregeln"));
  EXPECT_EQ(view<LinkTextView>(refusing, "contact").seenText(),
            "Falls das ein Irrtum ist, bitte den Support kontaktieren.");
}

TEST_F(Languages, LeaveTheLookAsTheLayoutHasIt) {
  QWidget& asking = gateIn({"ru"});
  const auto& text = view<QTextBrowser>(asking, "tos");
  const QTextBlock block = text.document()->begin();
  EXPECT_EQ(text.document()->blockCount(), 1);
  EXPECT_EQ(block.blockFormat().alignment(), Qt::AlignHCenter);
  QTextCursor cursor(text.document());
  for (const auto& [place, weight] :
       {std::pair(1, 600), {14, 600}, {16, 400}, {18, 600}, {33, 600}}) {
    cursor.setPosition(place);
    EXPECT_EQ(cursor.charFormat().fontWeight(), weight) << place;
  }
}

// All that a screen reader finds in `thing` and below it.
void collectHeard(QAccessibleInterface& thing, QStringList& heard) {
  for (const QAccessible::Text kind :
       {QAccessible::Name, QAccessible::Value, QAccessible::Description, QAccessible::Help}) {
    heard += thing.text(kind);
  }
  if (auto* text = thing.textInterface()) heard += text->text(0, text->characterCount());
  for (int i = 0; i < thing.childCount(); ++i) {
    if (QAccessibleInterface* below = thing.child(i)) collectHeard(*below, heard);
  }
}

TEST_F(Languages, FillLinksWithWhatIsNeverHeard) {
  const std::pair<const char*, const char*> labels[] = {{"de", "Support kontaktieren"},
                                                        {"ja", "サポートにお問い合わせください"},
                                                        {"ar", "التواصل مع الدعم"}};
  for (const auto& [language, label] : labels) {
    QWidget& refusing = refusalIn({language});
    for (const char* name : {"tos", "contact"}) {
      auto& text = view<LinkTextView>(refusing, name);
      ASSERT_TRUE(text.toPlainText().contains(LinkTextView::kFiller));
      QStringList heard;
      collectHeard(*QAccessible::queryAccessibleInterface(&text), heard);
      EXPECT_EQ(heard.contains(label), &text == &view<LinkTextView>(refusing, "contact"));
      EXPECT_TRUE(heard.contains(text.seenText()));
      EXPECT_FALSE(heard.join("").contains(LinkTextView::kFiller));
    }
  }
}

TEST_F(Languages, FillLinksWithWhatIsNeverCopied) {
  auto& text = view<LinkTextView>(refusalIn({"de"}), "contact");
  text.selectAll();
  text.copy();
  EXPECT_EQ(QApplication::clipboard()->text(),
            "Falls das ein Irrtum ist, bitte den Support kontaktieren.");
  EXPECT_FALSE(QApplication::clipboard()->mimeData()->hasHtml());
}

// What has no width, and no glyph of a font that lacks it.
TEST_F(Languages, FillLinksWithWhatIsNeverSeen) {
  const auto& text = view<LinkTextView>(gateIn({"de"}), "tos");
  QTextCursor cursor(text.document());
  cursor.setPosition(11);  // Datenschutz, and three fillers
  const int before = text.cursorRect(cursor).left();
  cursor.setPosition(14);
  EXPECT_EQ(text.cursorRect(cursor).left(), before);
  EXPECT_EQ(text.linkPlace(0).right(), before + text.cursorRect(cursor).width() - 1);
}

TEST_F(Languages, OfDifferentDirectionsLiveInOneProcess) {
  DesktopSettings arabic = settings();
  arabic.languages = {"ar"};
  QWidget other;
  other.resize(390, 844);
  other.show();
  const DesktopPlatform desktop(arabic);
  const std::shared_ptr<ViewController> host = desktop.viewController(other);
  QWidget& german = gateIn({"de"});
  {
    const ScopedPlatform scope(desktop.platform());
    QV_AgeGateHelper::startAgeGateProcess(host, 16, nullptr, nullptr, theme_, "", "");
    QCoreApplication::processEvents();
  }
  auto* shown = other.findChild<QLabel*>("header");
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->accessibleName(), "ما تاريخ ميلادك؟");
  EXPECT_EQ(shown->layoutDirection(), Qt::RightToLeft);
  EXPECT_EQ(header(german), kGerman);
  EXPECT_EQ(view<QLabel>(german, "header").layoutDirection(), Qt::LeftToRight);
  EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
  host->dismissViewController(false, nullptr);
  QCoreApplication::processEvents();
}

// With a copy of the resource bundle, in which a host changes something.
class HostsLanguages : public Languages {
 protected:
  HostsLanguages() {
    resourceDirectory_ = temporary_.filePath("QV_Commons_iOS.bundle").toStdString();
    fs::copy(kBundle, resourceDirectory_, fs::copy_options::recursive);
  }
  std::string pathFor(const std::string& language, const char* file) const {
    const fs::path folder = fs::path(resourceDirectory_) / (language + ".lproj");
    fs::create_directories(folder);
    return folder / file;
  }
  void writeTable(const std::string& language, const std::string& text) const {
    std::ofstream(pathFor(language, "QV_AgeGateViewController.strings")) << text;
  }
  // The library's own but for its heading.
  void writeLayout(const std::string& language, const std::string& heading) const {
    std::ifstream file(fs::path(resourceDirectory_) / "QV_AgeGateViewController.ui");
    std::string text{std::istreambuf_iterator<char>(file), {}};
    text.replace(text.find(kEnglish), std::string(kEnglish).size(), heading);
    std::ofstream(pathFor(language, "QV_AgeGateViewController.ui")) << text;
  }
};

TEST_F(HostsLanguages, MayChangeAWord) {
  writeTable("de", "\"header.text\" = \"Wann bist du geboren?\";");
  QWidget& asking = gateIn({"de"});
  EXPECT_EQ(header(asking), "Wann bist du geboren?");
  EXPECT_EQ(view<QLabel>(asking, "subtitle").accessibleName(),
            "Only used to check your age, never kept.");
  EXPECT_THAT(linksOf(asking, "tos"), ElementsAre("Privacy Policy", "Terms of Service"));
}

TEST_F(HostsLanguages, MayChangeAWordOfTheEnglish) {
  writeTable("en", "\"confirm.normalTitle\" = \"Go on\";");
  QWidget& asking = gateIn({"en-GB"});
  EXPECT_EQ(view<QPushButton>(asking, "confirmBtn").text(), "Go on");
  EXPECT_EQ(header(asking), kEnglish);
}

TEST_F(HostsLanguages, MayAddOne) {
  writeTable("sv", "\"header.text\" = \"När är du född?\";");
  EXPECT_EQ(header(gateIn({"sv-FI", "de"})), "När är du född?");
}

TEST_F(HostsLanguages, MayHaveALayoutOfTheirOwn) {
  writeLayout("de", "Geburtstag?");
  QWidget& asking = gateIn({"sv", "de-AT", "fr"});
  EXPECT_EQ(header(asking), "Geburtstag?");
  EXPECT_EQ(view<QPushButton>(asking, "confirmBtn").text(), "Confirm");  // not the table's
  EXPECT_NE(header(gateIn({"fr", "de"})), "Geburtstag?");
  EXPECT_EQ(header(gateIn({"en", "de"})), kEnglish);
  EXPECT_EQ(header(gateIn({"sv"})), kEnglish);
  EXPECT_THAT(linksOf(refusalIn({"de"}), "tos"), ElementsAre("Datenschutz", "Nutzungsregeln"));
}

TEST_F(HostsLanguages, HaveTheLayoutOfTheRegionBeforeTheTableOfTheLanguage) {
  writeLayout("de-AT", "Geburtstag?");
  EXPECT_EQ(header(gateIn({"de-AT"})), "Geburtstag?");
  EXPECT_EQ(header(gateIn({"de-CH"})), kGerman);
  writeLayout("fr", "Anniversaire ?");
  writeTable("fr-CA", "\"header.text\" = \"Fête ?\";");
  EXPECT_EQ(header(gateIn({"fr-CA"})), "Fête ?");
}

TEST_F(HostsLanguages, MayHaveALayoutOfTheirOwnForEnglish) {
  writeLayout("en", "Your birthday?");
  EXPECT_EQ(header(gateIn({"en-GB"})), "Your birthday?");
  EXPECT_EQ(header(gateIn({"sv"})), kEnglish);
}

TEST_F(HostsLanguages, LayTheirOwnLayoutsOutInTheirDirection) {
  writeLayout("he", "תאריך?");
  QWidget& asking = gateIn({"he"});
  EXPECT_EQ(header(asking), "תאריך?");
  EXPECT_EQ(view<QLabel>(asking, "header").layoutDirection(), Qt::RightToLeft);
}

TEST_F(HostsLanguages, WithALayoutThatIsCutOffStopTheProgram) {
  const std::string path = pathFor("de", "QV_AgeGateViewController.ui");
  std::ofstream(path) << "<ui version=\"4.0\"><widget";
  EXPECT_DEATH(gateIn({"de"}), "the layout " + path);
}

TEST_F(HostsLanguages, AreLeftOutWhereTheyAreNotUtf8) {
  writeTable("de", "\"header.text\" = \"Gr\xfc\xdf Gott\";");
  EXPECT_EQ(header(gateIn({"de", "fr"})), kEnglish);
  EXPECT_THAT(errors_, ElementsAre("the string table " + resourceDirectory_ +
                                   "/de.lproj/QV_AgeGateViewController.strings is not UTF-8"));
}

TEST_F(HostsLanguages, EndWhereTheyMakeNoSense) {
  writeTable("de", "\"confirm.normalTitle\" = \"Weiter\";\n\"header.text\" = Wann;");
  QWidget& asking = gateIn({"de"});
  EXPECT_EQ(view<QPushButton>(asking, "confirmBtn").text(), "Weiter");
  EXPECT_EQ(header(asking), kEnglish);
  EXPECT_THAT(
      errors_,
      ElementsAre(AllOf(HasSubstr("the string table "),
                        EndsWith("holds in line 2 what isn't of the form \"key\" = \"words\";"))));
}

TEST_F(HostsLanguages, MayHaveTheAppsNameTwiceOrNotAtAll) {
  std::ofstream(pathFor("de", "QV_AgeGateRefusedViewController.strings"))
      << "\"header.text\" = \"[APPNAME]? [APPNAME]!\";";
  EXPECT_EQ(header(refusalIn({"de"})), "Notes? Notes!");
  std::ofstream(pathFor("fr", "QV_AgeGateRefusedViewController.strings"))
      << "\"header.text\" = \"Non.\";";
  EXPECT_EQ(header(refusalIn({"fr"})), "Non.");
}

TEST_F(HostsLanguages, MayHaveALabelOverItsRange) {
  writeTable("de", "\"policies.text\" = \"Datenschutzrichtlinie & Nutzungsregeln\";");
  EXPECT_THAT(linksOf(gateIn({"de"}), "tos"), ElementsAre("Datenschutzric", "inie & Nutzungsr"));
}

TEST_F(HostsLanguages, WithATextTooShortForItsLinksStopTheProgram) {
  writeTable("de", "\"policies.text\" = \"Datenschutz\";");
  EXPECT_DEATH(gateIn({"de"}), "the text has 11 ");
}

TEST_F(HostsLanguages, AreNotLookedForByALayoutOfItsOwn) {
  const fs::path layout = fs::path(resourceDirectory_) / "QV_AgeGateViewController.ui";
  std::ifstream file(layout);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  for (std::size_t at = 0; (at = text.find("name=\"words\"")) != std::string::npos;) {
    text.replace(at, 12, "name=\"other\"");
  }
  std::ofstream(layout) << text;
  EXPECT_EQ(header(gateIn({"de"})), kEnglish);
}

class HostsTranslator final : public QTranslator {
 public:
  QString translate(const char* context, const char* text, const char*, int) const override {
    const bool isHeader =
        QString("QV_AgeGateViewController") == context && QString(kEnglish) == text;
    return isHeader ? "Tell us your birthday" : QString();
  }
  bool isEmpty() const override { return false; }
};

TEST_F(HostsLanguages, GiveWayToItsTranslator) {
  HostsTranslator translator;
  QCoreApplication::installTranslator(&translator);
  EXPECT_EQ(header(gateIn({"de"})), "Tell us your birthday");
  EXPECT_EQ(view<QPushButton>(*gate(), "confirmBtn").text(), "Bestätigen");
  EXPECT_EQ(header(gateIn({"en"})), "Tell us your birthday");
  QCoreApplication::removeTranslator(&translator);
}

}  // namespace
}  // namespace qv_commons::desktop
