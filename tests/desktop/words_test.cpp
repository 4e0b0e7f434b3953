// The composer's own words in the user's language.
#include "qv_commons/platform/desktop/words.h"

#include <QApplication>
#include <QDir>
#include <QFontMetricsF>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTextDocument>
#include <QTranslator>
#include <QXmlStreamReader>
#include <map>

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

const QStringList kLanguages{"ar", "de", "es", "fr", "he", "hi", "it",      "ja",     "ko",
                             "nl", "pl", "pt", "ru", "tr", "uk", "zh-Hans", "zh-Hant"};

DesktopSettings speaking(const QString& language) {
  DesktopSettings settings;
  settings.languages = {language.toStdString()};
  return settings;
}

// What the source of a translation says, by the English.
std::map<QString, QString> sourceOf(const QString& language) {
  QFile file(QV_COMMONS_TRANSLATIONS "/" + language + ".ts");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader reader(&file);
  std::map<QString, QString> words;
  for (QString english; !reader.atEnd(); reader.readNext()) {
    if (reader.isStartElement() && reader.name() == u"source") english = reader.readElementText();
    if (reader.isStartElement() && reader.name() == u"translation") {
      words[english] = reader.readElementText();
    }
  }
  EXPECT_FALSE(reader.hasError());
  return words;
}

TEST(Words, AreThoseOfTheirSources) {
  for (const QString& language : kLanguages) {
    const DesktopSettings settings = speaking(language);
    const Words words(settings);
    const std::map<QString, QString> source = sourceOf(language);
    EXPECT_EQ(source.size(), 67U);
    for (const auto& [english, translated] : source) {
      EXPECT_EQ(words(english.toUtf8()), translated) << language.toStdString();
    }
  }
}

TEST(Words, AreEnglishWithoutALanguageOfOurs) {
  for (const char* language : {"en-GB", "sv", "C", "!", ""}) {
    const DesktopSettings settings = speaking(language);
    EXPECT_EQ(Words(settings)("Cancel"), "Cancel") << language;
  }
  const DesktopSettings english{.languages = {"en", "de"}};
  EXPECT_EQ(Words(english)("Cancel"), "Cancel");
  const DesktopSettings region{.languages = {"sv", "de-AT"}};
  EXPECT_EQ(Words(region)("Cancel"), "Abbrechen");
  EXPECT_EQ(Words(region)("What nobody has translated"), "What nobody has translated");
}

class AppsTranslator final : public QTranslator {
 public:
  QString translate(const char* context, const char* text, const char*, int) const override {
    const bool isIt = QString("qv_commons") == context && QString("Cancel") == text;
    return isIt ? "Leave it" : QString();
  }
  bool isEmpty() const override { return false; }
};

TEST(Words, AreTheAppsFirst) {
  AppsTranslator translator;
  QCoreApplication::installTranslator(&translator);
  const DesktopSettings settings = speaking("de");
  EXPECT_EQ(Words(settings)("Cancel"), "Leave it");
  EXPECT_EQ(Words(settings)("Send"), "Senden");
  QCoreApplication::removeTranslator(&translator);
}

class ComposersWords : public ComposerTest, public testing::WithParamInterface<QString> {
 protected:
  void SetUp() override {
    QFont font = fontBefore_;
    font.setPixelSize(30);
    QApplication::setFont(font);
    settings_.languages = {GetParam().toStdString()};
  }
  void TearDown() override { QApplication::setFont(fontBefore_); }

 private:
  QFont fontBefore_ = QApplication::font();
};

TEST_P(ComposersWords, FitOnASmallPhoneWithTextsTwiceAsLarge) {
  host_.resize(320, 568);
  open();
  const QWidget& window = windowOf(*composer_);
  ASSERT_EQ(window.width(), 320);
  EXPECT_EQ(find<QPushButton>(*composer_, "send").text(), sourceOf(GetParam())["Send"]);
  EXPECT_EQ(find<QLabel>(*composer_, "title").text(), sourceOf(GetParam())["New message"]);
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const bool isText = qobject_cast<const QLabel*>(widget) != nullptr ||
                        qobject_cast<const QPushButton*>(widget) != nullptr;
    if (!isText || !widget->isVisible()) continue;
    const std::string name = widget->objectName().toStdString();
    EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name;
    const QRect inWindow(widget->mapTo(&window, QPoint()), widget->size());
    EXPECT_GE(inWindow.left(), 0) << name;
    EXPECT_LE(inWindow.right(), window.width()) << name;
  }
  const auto& area = *window.findChild<QScrollArea*>();
  EXPECT_LE(area.widget()->width(), area.viewport()->width());
}

// A notice breaks what is too long for a line: paths, and no word of the sentences.
TEST_P(ComposersWords, AreNotBrokenInANotice) {
  const QString language = GetParam();
  const bool hasBlanks = language != "ja" && !language.startsWith("zh");
  host_.resize(320, 568);
  open("");
  click(*composer_, "send");
  ASSERT_TRUE(notice().isVisible());
  const QFontMetricsF metrics(notice().document()->defaultFont());
  EXPECT_GE(metrics.height(), 20);  // twice as large
  const QRegularExpression between(hasBlanks ? "[\\s/]" : "");
  for (const auto& [english, translated] : sourceOf(language)) {
    for (const QString& word : translated.split(between)) {
      EXPECT_LE(metrics.horizontalAdvance(word), notice().viewport()->width())
          << word.toStdString();
    }
  }
}

TEST_P(ComposersWords, AreLaidOutInTheirDirection) {
  open();
  const bool isReversed = GetParam() == "ar" || GetParam() == "he";
  const int cancel = find<QPushButton>(*composer_, "cancel").mapToGlobal(QPoint()).x();
  const int send = find<QPushButton>(*composer_, "send").mapToGlobal(QPoint()).x();
  EXPECT_EQ(isReversed, send < cancel);
  const Qt::Alignment start = isReversed ? Qt::AlignRight : Qt::AlignLeft;
  EXPECT_TRUE(find<QLabel>(*composer_, "title").alignment().testFlags(start | Qt::AlignAbsolute));
  EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
}

INSTANTIATE_TEST_SUITE_P(All, ComposersWords, testing::ValuesIn(kLanguages), [](const auto& tried) {
  return QString(tried.param).remove('-').toStdString();
});

}  // namespace
}  // namespace qv_commons::desktop
