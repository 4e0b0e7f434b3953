// The window of the mail composer: what the user sees and types, and nothing of what becomes of it.
#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/edited_text.h"
#include "qv_commons/platform/desktop/mail_drafts.h"
#include "qv_commons/platform/desktop/mail_message.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace qv_commons::desktop {

class ComposerWindow final : public QDialog {
 public:
  struct Reactions {
    std::function<void()> send;
    std::function<void()> save;
    std::function<void()> cancel;
    std::function<void(const std::string& name)> openDraft;
  };

  explicit ComposerWindow(const Reactions& reactions);

  void setRecipients(const std::string& recipients);
  void setSubject(const std::string& subject);
  void setBody(std::string body);
  void addAttachment(const MailAttachment& attachment);
  void clearAttachments();

  // Those that the user can open, in a menu; no menu without any.
  void showDrafts(const std::vector<DraftSummary>& drafts);

  // What the fields hold now; the body with its own bytes wherever the user left it alone.
  std::string recipients() const;
  std::string subject() const;
  std::string body() const;

  // Whether the user has typed anything since the fields were set.
  bool isChanged() const;

  enum class Phase : std::uint8_t { editing, sending, left };

  // While it sends, nothing can be changed, and Cancel reads Stop. Once it is left, no button does
  // anything.
  void setPhase(Phase phase);

  // A line above the fields, read out by screen readers; `field` takes the keyboard.
  enum class Tone : std::uint8_t { news, error };
  void showNotice(const QString& text, Tone tone);
  void hideNotice();

  // How far the work is, from 0 to 1.
  void showProgress(double done);
  void hideProgress();
  void focusField(MailField field);

 private:
  QWidget* makeBar(const Reactions& reactions);
  QWidget* makePage(const Reactions& reactions);
  void addField(QVBoxLayout& page, const QString& caption, QWidget& field, int stretch = 0);
  void addShortcuts();
  void onEdited(int position, int removed, int added);

  QPushButton* cancel_ = nullptr;
  QPushButton* send_ = nullptr;
  QPushButton* save_ = nullptr;
  QPushButton* drafts_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QLabel* notice_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QLineEdit* recipients_ = nullptr;
  QLineEdit* subject_ = nullptr;
  QPlainTextEdit* body_ = nullptr;
  QVBoxLayout* attachments_ = nullptr;
  std::function<void(const std::string&)> openDraft_;
  EditedText text_;
  QMetaObject::Connection edits_;  // taken in by `text_`
};

}  // namespace qv_commons::desktop
