// What the composer says of a message, in the user's language.
#include <QClipboard>
#include <QMenu>
#include <QTranslator>
#include <filesystem>
#include <future>

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;

TEST(Sentences, HaveTheirArgumentsWhereTheTextHasThem) {
  const Sentence sentence("The folder %1 can't be made: %2.", {"/a", "no"});
  EXPECT_EQ(inEnglish(sentence), "The folder /a can't be made: no.");
  EXPECT_EQ(filled("%2: %1 (%1)", sentence), "no: /a (/a)");
}

TEST(Sentences, TakeNothingInAnArgumentForAPlace) {
  EXPECT_EQ(inEnglish(Sentence("%1 or %2", {"%2", "%1"})), "%2 or %1");
  EXPECT_EQ(inEnglish(Sentence("100 %, %1, %2, %0, %", {"x"})), "100 %, x, %2, %0, %");
}

TEST(Sentences, EndWithWhatAnotherProgramSays) {
  Sentence sentence("It failed.");
  sentence.quoted = "no %1 there";
  EXPECT_EQ(inEnglish(sentence), "It failed. (no %1 there)");
}

class Notices : public ComposerTest {
 protected:
  Notices() { settings_.languages = {"de"}; }

  void expectNotice(const std::string& whole) {
    EXPECT_TRUE(waitUntil([&] { return noticeText() == whole; })) << noticeText();
  }
  void sendAndExpect(const std::string& whole) {
    click(*composer_, "send");
    expectNotice(whole);
  }
  void spoilTheFolder() { folder_.write("data", "a file in the folder's place"); }
  std::string noFolder() const {
    return "Der Ordner " + folder_.path("data") + " kann nicht angelegt werden: Not a directory.";
  }
  std::string copy() {
    EXPECT_EQ(drafts().size(), 1U);
    return "\nEine Kopie liegt in " + folder_.path("data/drafts/" + drafts().front()) + ".";
  }
};

TEST_F(Notices, TellWhatIsWrongWithAMessage) {
  open("", "Help");
  sendAndExpect("Bitte geben Sie eine Adresse ein.");
  find<QLineEdit>(*composer_, "to").setText("nobody");
  sendAndExpect("„nobody“ ist keine E-Mail-Adresse.");
  find<QLineEdit>(*composer_, "to").setText("a@example.com\x01");
  sendAndExpect(
      "Die Adresse enthält einen Zeilenumbruch oder ein anderes Steuerzeichen. Bitte entfernen Sie "
      "es.");
  find<QLineEdit>(*composer_, "to").setText("a@example.com");
  find<QLineEdit>(*composer_, "subject").setText("Help\x01");
  sendAndExpect(
      "Der Betreff enthält einen Zeilenumbruch oder ein anderes Steuerzeichen. Bitte entfernen Sie "
      "es.");
  find<QLineEdit>(*composer_, "subject").setText("Help");
  composer_->addAttachment({"x", "no type", "x"});
  sendAndExpect("Der Name oder der Typ des Anhangs kann nicht gesendet werden.");
}

TEST_F(Notices, TellHowTheMailProgramFailed) {
  const std::pair<const char*, const char*> failures[] = {
      {"echo 'no such user' >&2; exit 67",
       "Der Mailserver hat die Adresse oder die Nachricht abgelehnt. (no such user)"},
      {"exit 75",
       "Der Mailserver ist zurzeit nicht erreichbar. Bitte versuchen Sie es später noch einmal."},
      {"exit 77", "Sie dürfen keine E-Mails senden."},
      {"exit 78", "E-Mail ist auf diesem Computer nicht eingerichtet."},
      {"exit 3", "Das Mailprogramm ist mit dem Code 3 gescheitert."},
      {"kill -9 $$", "Das Mailprogramm ist abgestürzt."}};
  open();
  for (const auto& [script, reason] : failures) {
    useMailProgram(script);
    click(*composer_, "send");
    ASSERT_TRUE(waitUntil([&] { return noticeText().starts_with("Nicht"); })) << noticeText();
    EXPECT_EQ(noticeText(), std::string("Nicht gesendet. ") + reason + copy());
  }
  std::filesystem::remove(settings_.sendmailProgram);
  sendAndExpect("Nicht gesendet. Dieser Computer hat kein Mailprogramm." + copy());
}

TEST_F(Notices, TellThatTheMailProgramTookTooLongOrDidNotStart) {
  settings_.sendTimeout = std::chrono::milliseconds(100);
  useMailProgram("exec sleep 1000");
  open();
  sendAndExpect("Senden …");
  ASSERT_TRUE(waitForNotice("Nicht"));
  EXPECT_EQ(noticeText(),
            "Nicht gesendet. Das Mailprogramm hat zu lange gebraucht und wurde beendet." + copy());
  folder_.write("sendmail", "#!/no/such/shell\n");
  sendAndExpect("Nicht gesendet. Das Mailprogramm " + settings_.sendmailProgram +
                " kann nicht gestartet werden." + copy());
}

TEST_F(Notices, TellThatSendingWasStopped) {
  useMailProgram("echo >\"" + folder_.path("started") + "\"; exec sleep 1000");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !readFile(folder_.path("started")).empty(); }));
  click(*composer_, "cancel");
  ASSERT_TRUE(waitForNotice("Nicht"));
  EXPECT_EQ(noticeText(),
            "Nicht gesendet. Das Senden wurde abgebrochen. Die Nachricht ist vielleicht trotzdem "
            "gesendet worden." +
                copy());
}

TEST_F(Notices, TellWhereADraftIs) {
  open();
  click(*composer_, "save");
  ASSERT_TRUE(waitForNotice("Gesichert"));
  EXPECT_EQ(noticeText(), "Gesichert in " + folder_.path("data/drafts/" + drafts().front()));
}

TEST_F(Notices, KeepPathsTogetherAndCopyThemAsTheyAre) {
  settings_.languages = {"he"};
  open();
  click(*composer_, "save");
  ASSERT_TRUE(waitForNotice("נשמר"));
  const std::string path = folder_.path("data/drafts/" + drafts().front());
  EXPECT_EQ(noticeText(), "נשמר אל \u2068" + path + "\u2069");  // one thing, in its own direction
  notice().selectAll();
  notice().copy();
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "נשמר אל " + path);
}

TEST_F(Notices, TellWhyADraftWasNotSavedOrKept) {
  spoilTheFolder();
  useMailProgram("sleep 0.3; exit 78");
  open();
  click(*composer_, "save");
  expectNotice("Nicht gesichert. " + noFolder());
  sendAndExpect("Senden … Es gibt keine Kopie: " + noFolder());
  expectNotice(
      "Nicht gesendet. E-Mail ist auf diesem Computer nicht eingerichtet.\nEs gibt keine Kopie: " +
      noFolder());
}

TEST_F(Notices, TellWhyADraftWasNotOpened) {
  folder_.write("data/drafts/1.eml", "Subject: Old\n\nOld\n");
  open();
  auto& menu = *find<QPushButton>(*composer_, "drafts").menu();
  ASSERT_TRUE(waitUntil([&] { return !menu.isEmpty(); }));
  std::filesystem::remove(folder_.path("data/drafts/1.eml"));
  menu.actions().front()->trigger();
  expectNotice(folder_.path("data/drafts/1.eml") +
               " kann nicht gelesen werden: No such file or directory.");
}

TEST_F(Notices, TellTheHostInEnglish) {
  spoilTheFolder();
  std::vector<std::string> told;
  settings_.onError = [&](const std::string& problem) { told.push_back(problem); };
  open();
  told.clear();
  press(*composer_, Qt::Key_X);
  screen_->dismissViewController(true, nullptr);
  ASSERT_TRUE(waitUntil([&] { return !told.empty(); }));
  EXPECT_THAT(
      told, ElementsAre("The folder " + folder_.path("data") + " can't be made: Not a directory."));
}

class AppsTranslator final : public QTranslator {
 public:
  QString translate(const char* context, const char* text, const char*, int) const override {
    const bool isIt =
        QString("qv_commons") == context && QString("“%1” is not an e-mail address.") == text;
    return isIt ? "%1? So heißt niemand." : QString();
  }
  bool isEmpty() const override { return false; }
};

TEST_F(Notices, AreInTheAppsWordsFirst) {
  AppsTranslator translator;
  QCoreApplication::installTranslator(&translator);
  open("nobody");
  sendAndExpect("nobody? So heißt niemand.");
  QCoreApplication::removeTranslator(&translator);
}

// A program in PATH takes what it is given.
class HandingOver : public Notices {
 protected:
  HandingOver() {
    settings_.mailWays = {MailWay::xdgEmail};
    qputenv("PATH", QByteArray::fromStdString(folder_.path("bin") + ":") + path_);
  }
  ~HandingOver() override { qputenv("PATH", path_); }

  void useXdgEmail(const std::string& script) {
    folder_.write("bin/xdg-email", "");
    folder_.writeProgram("bin/xdg-email", script);
  }

 private:
  const QByteArray path_ = qgetenv("PATH");
};

TEST_F(HandingOver, TellsHowItFailed) {
  const std::string notHanded = "Nicht an Ihr Mailprogramm übergeben. ";
  useXdgEmail("exit 3");
  present();
  expectNotice(notHanded + "Dieser Computer hat kein Mailprogramm, das xdg-email kennt.");
  const std::pair<const char*, const char*> failures[] = {
      {"exit 4", "xdg-email konnte kein Mailprogramm öffnen."},
      {"exit 1", "xdg-email ist mit dem Code 1 gescheitert."},
      {"kill -9 $$", "xdg-email ist abgestürzt."}};
  for (const auto& [script, reason] : failures) {
    useXdgEmail(script);
    sendAndExpect("Ihr Mailprogramm wird geöffnet …");
    expectNotice(notHanded + reason);
  }
  folder_.write("bin/xdg-email", "#!/no/such/shell\n");
  click(*composer_, "send");
  expectNotice(notHanded + "xdg-email kann nicht gestartet werden.");
}

TEST_F(HandingOver, TellsThatItWasStopped) {
  useXdgEmail("exec sleep 5");
  present();
  expectNotice("Ihr Mailprogramm wird geöffnet …");
  click(*composer_, "cancel");
  expectNotice(
      "Nicht an Ihr Mailprogramm übergeben. Es wurde abgebrochen. Ihr Mailprogramm öffnet sich "
      "vielleicht trotzdem.");
}

TEST_F(HandingOver, OffersToSendFromHere) {
  settings_.mailWays = {MailWay::xdgEmail, MailWay::sendmail};
  useXdgEmail("exit 4");
  present();
  expectNotice(
      "Nicht an Ihr Mailprogramm übergeben. xdg-email konnte kein Mailprogramm öffnen.\n"
      "Sie können die Nachricht von hier senden.");
}

// It was there when the composer opened, which had to wait for the attachment.
TEST_F(HandingOver, TellsThatTheLastMailProgramHasGone) {
  useXdgEmail("exit 0");
  desktop_.emplace(settings_);
  screen_ = desktop_->viewController(host_);
  composer_ = desktop_->platform().viewControllers.makeMailComposer();
  composer_->setToRecipients({"support@example.com"});
  std::promise<void> come;
  composer_->prepare([come = come.get_future().share()] { come.wait(); }, [] {});
  screen_->presentViewController(composer_, true, nullptr);
  expectNotice("Ihr Mailprogramm wird geöffnet …");
  std::filesystem::remove(folder_.path("bin/xdg-email"));
  qputenv("PATH", folder_.path("bin").c_str());
  come.set_value();
  expectNotice("Nicht an Ihr Mailprogramm übergeben. Dieser Computer hat kein Mailprogramm.");
}

}  // namespace
}  // namespace qv_commons::desktop
