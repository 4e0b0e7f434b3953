// Both screens fit in every language: at any size, with texts of 100 and 200 %, in light and dark,
// nothing is cut off, no word is broken, and no link.
//
// With QV_COMMONS_PRINT_MARGINS in the environment, AtEverySize prints how much room the tightest
// word of each screen has left in its line, in points, of which tools/language_room makes a table.
#include <QApplication>
#include <QFontDatabase>
#include <QImage>
#include <QLabel>
#include <QTextBlock>
#include <QTextLayout>
#include <cstdio>
#include <limits>

#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/screen_button.h"

#include "tests/desktop/age_gate_fixture.h"
#include "tests/desktop/in_sight.h"

namespace qv_commons::desktop {
namespace {

struct Language {
  const char* name;
  bool hasWords;  // with blanks between them, at which alone a line may end
  QFontDatabase::WritingSystem script = QFontDatabase::Latin;
};

void PrintTo(const Language& language, std::ostream* out) {
  *out << language.name;
}

QStringList wordsOf(const QString& text, bool hasWords) {
  return text.split(hasWords ? QString(" ") : QString(), Qt::SkipEmptyParts);
}

class LanguageFit : public AgeGateTest, public testing::WithParamInterface<Language> {
 protected:
  void SetUp() override {
    if (QFontDatabase::families(GetParam().script).isEmpty()) {
      GTEST_SKIP() << "no font for " << GetParam().name;
    }
  }
  ~LanguageFit() override { QApplication::setFont(fontBefore_); }

  void showGate(QSize size, int textPercent, UserInterfaceStyle style = UserInterfaceStyle::light) {
    QFont font = fontBefore_;
    font.setPixelSize(15 * textPercent / 100);
    QApplication::setFont(font);
    DesktopSettings spoken = settings();
    spoken.languages = {GetParam().name};
    spoken.userInterfaceStyle = style;
    spoken.dataDirectory = temporary_.filePath(QString("data%1").arg(++runs_)).toStdString();
    size_ = size;
    percent_ = textPercent;
    restart(spoken);
    window_->resize(size);
    startAgeGate();
  }
  void refuse() {
    pickYear(*gate(), "2020");
    confirm();
  }

  void expectFit(const char* name, QWidget& screen) {
    expectAllInSight(screen);
    double margin = std::numeric_limits<double>::max();
    for (QWidget* view : viewsOf(screen)) margin = std::min(margin, marginOf(*view));
    EXPECT_GE(margin, 0) << name << " at " << size_.width() << "x" << size_.height() << ", "
                         << percent_ << " %";
    if (qEnvironmentVariableIsSet("QV_COMMONS_PRINT_MARGINS")) {
      std::printf("| %s | %s | %dx%d | %d %% | %.0f |\n", GetParam().name, name, size_.width(),
                  size_.height(), percent_, margin);
    }
  }

 private:
  // What is left of a line beside its widest word.
  double marginOf(QWidget& view) const {
    if (const auto* text = qobject_cast<LinkTextView*>(&view)) {
      expectLinesEndBetweenWords(*text);
      expectWholeLinks(*text);
      return marginOf(text->seenText(), text->font(), text->viewport()->width());
    }
    if (const auto* label = qobject_cast<QLabel*>(&view)) {
      return marginOf(label->accessibleName(), label->font(), label->width());
    }
    return view.width() - view.sizeHint().width();
  }
  static double marginOf(const QString& text, const QFont& font, int width) {
    double widest = 0;
    for (const QString& word : wordsOf(text, GetParam().hasWords)) {
      widest = std::max(widest, QFontMetricsF(font).horizontalAdvance(word));
    }
    return width - widest;
  }

  static void expectLinesEndBetweenWords(const LinkTextView& view) {
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
      const QTextLayout& layout = *block.layout();
      for (int line = 0; line + 1 < layout.lineCount(); ++line) {
        const int end = layout.lineAt(line).textStart() + layout.lineAt(line).textLength();
        const bool isBlank = block.text()[end - 1] == ' ';
        EXPECT_TRUE(isBlank || !GetParam().hasWords) << block.text().left(end).toStdString();
      }
    }
  }
  static void expectWholeLinks(const LinkTextView& view) {
    for (int link = 0; link < static_cast<int>(view.links().size()); ++link) {
      EXPECT_TRUE(view.viewport()->rect().contains(view.linkPlace(link)))
          << view.links()[static_cast<std::size_t>(link)].words.toStdString();
    }
  }

  QFont fontBefore_ = QApplication::font();
  QSize size_;
  int percent_ = 100;
  int runs_ = 0;
};

TEST_P(LanguageFit, AtEverySizeOfScreenAndText) {
  for (const QSize size : {QSize(320, 568), QSize(390, 844), QSize(844, 390), QSize(1024, 1366)}) {
    for (const int percent : {100, 200}) {
      showGate(size, percent);
      ASSERT_NE(gate(), nullptr);
      expectFit("gate", *gate());
      refuse();
      ASSERT_NE(refusal(), nullptr);
      expectFit("refusal", *refusal());
    }
  }
}

struct Seen {
  QImage picture;
  std::vector<QRect> places;  // of all that is on the screen
};

Seen look(QWidget& screen) {
  Seen seen{screen.grab().toImage(), {}};
  for (const QWidget* each : screen.findChildren<QWidget*>()) {
    seen.places.push_back(each->geometry());
  }
  return seen;
}

// Light is measured at every size above; in the dark the colours alone are others.
TEST_P(LanguageFit, InTheDarkAsInTheLight) {
  std::vector<Seen> gates;
  std::vector<Seen> refusals;
  for (const UserInterfaceStyle style : {UserInterfaceStyle::light, UserInterfaceStyle::dark}) {
    showGate({320, 568}, 200, style);
    ASSERT_NE(gate(), nullptr);
    gates.push_back(look(*gate()));
    refuse();
    ASSERT_NE(refusal(), nullptr);
    refusals.push_back(look(*refusal()));
  }
  for (const std::vector<Seen>& screen : {gates, refusals}) {
    EXPECT_EQ(screen[0].places, screen[1].places);
    EXPECT_NE(screen[0].picture, screen[1].picture);
  }
}

TEST_P(LanguageFit, InTheDirectionOfItsScript) {
  showGate({320, 568}, 100);
  const QString language = GetParam().name;
  const bool isReversed = language == "ar" || language == "he";
  for (QWidget* view : viewsOf(*gate())) {
    EXPECT_EQ(view->layoutDirection(), isReversed ? Qt::RightToLeft : Qt::LeftToRight);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, LanguageFit,
    testing::Values(Language{"ar", true, QFontDatabase::Arabic}, Language{"de", true},
                    Language{"en", true}, Language{"es", true}, Language{"fr", true},
                    Language{"he", true, QFontDatabase::Hebrew},
                    Language{"hi", true, QFontDatabase::Devanagari}, Language{"it", true},
                    Language{"ja", false, QFontDatabase::Japanese},
                    Language{"ko", false, QFontDatabase::Korean}, Language{"nl", true},
                    Language{"pl", true}, Language{"pt", true},
                    Language{"ru", true, QFontDatabase::Cyrillic}, Language{"tr", true},
                    Language{"uk", true, QFontDatabase::Cyrillic},
                    Language{"zh-Hans", false, QFontDatabase::SimplifiedChinese},
                    Language{"zh-Hant", false, QFontDatabase::TraditionalChinese}),
    [](const auto& tried) {
      return std::string(tried.param.name).substr(0, 2) + std::to_string(tried.index);
    });

}  // namespace
}  // namespace qv_commons::desktop
