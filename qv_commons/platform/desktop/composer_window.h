// The page of the mail composer: what the user sees and types, and nothing of what becomes of it.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/edited_text.h"
#include "qv_commons/platform/desktop/mail_drafts.h"
#include "qv_commons/platform/desktop/mail_message.h"
#include "qv_commons/platform/desktop/words.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QScrollArea;
class QVBoxLayout;

namespace qv_commons::desktop {

class LinkTextView;
class SheetButton;

class ComposerWindow final : public QWidget {
 public:
  struct Callbacks {
    std::function<void()> send;
    std::function<void()> save;
    std::function<void()> cancel;
    std::function<void(const std::string& name)> openDraft;
    std::function<void()> hidden;  // with the window around it, or because the composer goes
  };

  // `words` outlive all that is done to it.
  ComposerWindow(Callbacks callbacks, const Words& words);

  // Nobody is called any more.
  void forgetCallbacks() { callbacks_ = {}; }

  void setRecipients(const std::string& recipients);
  void setSubject(const std::string& subject);
  void setBody(std::string body);
  void addAttachment(const MailAttachment& attachment);
  void clearAttachments();

  // That an attachment is yet to come.
  void showAttaching(bool isAttaching);

  // Those that the user can open, in a menu; no menu without any.
  void showDrafts(const std::vector<DraftSummary>& drafts);

  // What the fields hold now; the body with its own bytes wherever the user left it alone.
  std::string recipients() const;
  std::string subject() const;
  std::string body() const;

  // Whether the user has typed anything since the fields were set.
  bool isChanged() const;

  enum class Phase : std::uint8_t { editing, sending, saved, left };

  // While it sends, nothing can be changed, and Cancel reads Stop. Once the draft is saved, all
  // that is left is Done; once the composer is left, no button does anything.
  void setPhase(Phase phase);

  // Lines above the fields that can be selected, read out by screen readers; `field` takes the
  // keyboard.
  enum class Severity : std::uint8_t { info, error };
  void showNotice(const Sentence& sentence, Severity severity);
  void hideNotice();

  // How far the work is, from 0 to 1.
  void showProgress(double done);
  void hideProgress();
  void focusField(MailField field);

 protected:
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makeBar();
  QWidget* makePage();
  QLabel* makeLabel(const QString& name, const QString& text, const char* role) const;
  void addField(QVBoxLayout& page, const QString& caption, QWidget& field, int stretch = 0);
  void addShortcuts();
  void layOutBar();
  void onEdited(int position, int removed, int added);

  Callbacks callbacks_;
  const Words& words_;
  QHBoxLayout* bar_ = nullptr;
  SheetButton* cancel_ = nullptr;
  SheetButton* send_ = nullptr;
  SheetButton* save_ = nullptr;
  SheetButton* drafts_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  LinkTextView* notice_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QLineEdit* recipients_ = nullptr;
  QLineEdit* subject_ = nullptr;
  QPlainTextEdit* body_ = nullptr;
  QLabel* hidden_ = nullptr;
  QVBoxLayout* attachments_ = nullptr;
  QLabel* attaching_ = nullptr;
  EditedText text_;
  QMetaObject::Connection edits_;  // taken in by `text_`
};

}  // namespace qv_commons::desktop
