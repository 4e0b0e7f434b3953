#include "qv_commons/platform/desktop/composer_window.h"

#include <QDateTime>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTextBlock>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <utility>

#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/scrolled_column.h"
#include "qv_commons/platform/desktop/sheet_accessibility.h"
#include "qv_commons/platform/desktop/sheet_button.h"
#include "qv_commons/platform/desktop/thin_scroll_bar.h"

namespace qv_commons::desktop {
namespace {

constexpr int kLineEditMargin = 2;  // beside its text, whatever its style

// Named for style sheets, screen readers and tests alike.
template <class Widget>
Widget* named(Widget* widget, const QString& name, const char* role) {
  widget->setObjectName(name);
  widget->setProperty("role", role);
  return widget;
}

SheetButton* makeButton(const QString& name, const QString& text, const QKeySequence& keys,
                        const char* role, const std::function<void()>& callback) {
  auto* button = named(new SheetButton(text, keys), name, role);
  if (callback) QObject::connect(button, &QPushButton::clicked, button, callback);
  return button;
}

// Shift and Return give a line like Return alone: mail knows one kind of line end.
class MessageEdit final : public QPlainTextEdit {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
      return QPlainTextEdit::keyPressEvent(event);
    }
    QKeyEvent plain(event->type(), event->key(), event->modifiers() & ~Qt::ShiftModifier,
                    event->text());
    QPlainTextEdit::keyPressEvent(&plain);
    event->setAccepted(plain.isAccepted());
  }
};

QLineEdit* makeLineEdit(const QString& name) {
  auto* edit = named(new QLineEdit, name, "field");
  edit->setMaxLength(std::numeric_limits<int>::max());
  return edit;
}

QString sizeText(std::size_t bytes, const QLocale& locale) {
  return locale.formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

}  // namespace

ComposerWindow::ComposerWindow(Callbacks callbacks, const Words& words)
    : callbacks_(std::move(callbacks)), words_(words) {
  setProperty("role", "page");
  if (const auto direction = words_.direction()) setLayoutDirection(*direction);
  setWindowTitle(words_("New message"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(makeBar());
  scroll_ = new QScrollArea;
  scroll_->setWidgetResizable(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setVerticalScrollBar(new ThinScrollBar(Qt::Vertical));
  scroll_->setWidget(makePage());
  layout->addWidget(scroll_);
  addShortcuts();

  QWidget* const order[] = {recipients_, subject_, body_, save_, drafts_, send_, cancel_};
  for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  body_->setFocus();
}

QWidget* ComposerWindow::makeBar() {
  auto* bar = named(new QWidget, "bar", "page");
  bar_ = new QHBoxLayout(bar);
  // The plain button's padding lies in the margin, so that its text lines up with the fields.
  QMargins margins(kSideMargin - kButtonPadding, kSideMargin, kSideMargin, kGap / 2);
  if (layoutDirection() == Qt::RightToLeft) {
    margins = {margins.right(), margins.top(), margins.left(), margins.bottom()};
  }
  bar_->setContentsMargins(margins);
  cancel_ = makeButton("cancel", words_("Cancel"), Qt::ALT | Qt::Key_C, "plain", callbacks_.cancel);
  send_ = makeButton("send", words_("Send"), Qt::ALT | Qt::Key_S, "primary", callbacks_.send);
  bar_->addWidget(cancel_);
  bar_->addStretch();
  bar_->addWidget(send_);
  return bar;
}

QWidget* ComposerWindow::makePage() {
  auto* page = named(new ScrolledColumn, "page", "page");
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(kSideMargin, kGap / 2, kSideMargin, kBottomMargin);
  layout->setSpacing(kGap);

  layout->addWidget(makeLabel("title", windowTitle(), "title"));
  notice_ = named(new LinkTextView, "notice", "notice");
  notice_->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);  // a path has no blanks
  notice_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  notice_->hide();
  layout->addWidget(notice_);
  progress_ = named(new QProgressBar, "progress", "progress");
  progress_->setAccessibleName(words_("Progress"));
  progress_->hide();
  layout->addWidget(progress_);

  recipients_ = makeLineEdit("to");
  recipients_->setInputMethodHints(Qt::ImhEmailCharactersOnly);
  addField(*layout, words_("To"), *recipients_);
  subject_ = makeLineEdit("subject");
  addField(*layout, words_("Subject"), *subject_);
  body_ = named(new MessageEdit, "body", "field");
  body_->setTabChangesFocus(true);
  body_->document()->setDocumentMargin(kLineEditMargin);
  body_->document()->setModified(false);  // by the user
  body_->setVerticalScrollBar(new ThinScrollBar(Qt::Vertical));
  body_->setMinimumHeight(qRound(120 * textScale()));
  addField(*layout, words_("Message"), *body_, 1);
  hidden_ = makeLabel("hidden", "", "caption");
  hidden_->hide();
  layout->addWidget(hidden_);

  attachments_ = new QVBoxLayout;
  attachments_->setSpacing(kGap / 2);
  layout->addLayout(attachments_);
  attaching_ = makeLabel("attaching", words_("An attachment is being read…"), "caption");
  attaching_->hide();
  layout->addWidget(attaching_);
  save_ =
      makeButton("save", words_("Save draft"), Qt::ALT | Qt::Key_D, "secondary", callbacks_.save);
  layout->addWidget(save_);
  drafts_ = makeButton("drafts", words_("Open a draft"), Qt::ALT | Qt::Key_R, "secondary", nullptr);
  drafts_->setMenu(new QMenu(drafts_));
  drafts_->hide();
  layout->addWidget(drafts_);
  return page;
}

// Its lines begin where all lines do, whatever the direction of its own letters.
QLabel* ComposerWindow::makeLabel(const QString& name, const QString& text,
                                  const char* role) const {
  auto* label = named(new QLabel(text), name, role);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  const bool isReversed = layoutDirection() == Qt::RightToLeft;
  label->setAlignment(Qt::AlignAbsolute | (isReversed ? Qt::AlignRight : Qt::AlignLeft));
  return label;
}

void ComposerWindow::addField(QVBoxLayout& page, const QString& caption, QWidget& field,
                              int stretch) {
  QLabel* label = makeLabel(field.objectName() + "Caption", caption, "caption");
  label->setBuddy(&field);
  field.setAccessibleName(caption);
  auto* column = new QVBoxLayout;
  column->setSpacing(kCaptionGap);
  column->addWidget(label);
  column->addWidget(&field, stretch);
  page.addLayout(column, stretch);
}

void ComposerWindow::addShortcuts() {
  const auto press = [this](const QKeySequence& keys, QPushButton* button) {
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    button->setToolTip(keys.toString(QKeySequence::NativeText));
  };
  press(Qt::CTRL | Qt::Key_Return, send_);
  press(QKeySequence::Save, save_);
  const auto focus = [this](const QKeySequence& keys, QWidget* field) {
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, field, [field] { field->setFocus(); });
  };
  focus(Qt::ALT | Qt::Key_T, recipients_);
  focus(Qt::ALT | Qt::Key_U, subject_);
  focus(Qt::ALT | Qt::Key_M, body_);
}

void ComposerWindow::setRecipients(const std::string& recipients) {
  recipients_->setText(fromUtf8(recipients));
  recipients_->setCursorPosition(0);  // so that its beginning is seen
}

void ComposerWindow::setSubject(const std::string& subject) {
  subject_->setText(fromUtf8(subject));
  subject_->setCursorPosition(0);
}

void ComposerWindow::setBody(std::string body) {
  disconnect(edits_);
  text_ = EditedText(std::move(body));
  body_->setPlainText(text_.shown());
  const std::size_t hidden = text_.hiddenBytes();
  hidden_->setText(words_("And %1 more of this text, which are sent as they are.")
                       .arg(sizeText(hidden, words_.locale())));
  hidden_->setVisible(hidden != 0);
  edits_ =
      connect(body_->document(), &QTextDocument::contentsChange, this, &ComposerWindow::onEdited);
  // Below the opening line, where there is room for what the user has to say.
  QTextCursor caret(body_->document()->findBlockByNumber(1));
  if (caret.atBlockEnd() && !caret.isNull()) body_->setTextCursor(caret);
}

// Qt counts the end of the document too, and tells of more than has changed.
void ComposerWindow::onEdited(int position, int removed, int added) {
  QTextCursor cursor(body_->document());
  cursor.setPosition(position);
  cursor.setPosition(std::min(position + added, body_->document()->characterCount() - 1),
                     QTextCursor::KeepAnchor);
  text_.replace(static_cast<std::size_t>(position), static_cast<std::size_t>(removed),
                cursor.selectedText().replace(QChar::ParagraphSeparator, QChar('\n')));
}

void ComposerWindow::addAttachment(const MailAttachment& attachment) {
  const QString name = fromUtf8(attachment.fileName);
  const QString size = sizeText(attachment.data.size(), words_.locale());
  auto* column = new QVBoxLayout;
  column->setSpacing(0);
  QLabel* nameLabel = makeLabel("attachmentName", breakable(name), "text");
  QLabel* sizeLabel = makeLabel("attachmentSize", size, "caption");
  nameLabel->setAccessibleName(name);  // without the places to break
  sizeLabel->setAccessibleName(words_("Attachment %1, %2").arg(name, size));
  column->addWidget(nameLabel);
  column->addWidget(sizeLabel);
  attachments_->addLayout(column);
}

void ComposerWindow::showAttaching(bool isAttaching) {
  attaching_->setVisible(isAttaching);
}

void ComposerWindow::clearAttachments() {
  while (QLayoutItem* item = attachments_->takeAt(0)) {
    while (QLayoutItem* line = item->layout()->takeAt(0)) {
      delete line->widget();
      delete line;
    }
    delete item;
  }
}

void ComposerWindow::showDrafts(const std::vector<DraftSummary>& drafts) {
  QMenu& menu = *drafts_->menu();
  menu.clear();
  for (const DraftSummary& draft : drafts) {
    const QString when = words_.locale().toString(QDateTime::fromSecsSinceEpoch(draft.written),
                                                  QLocale::ShortFormat);
    const QString subject =
        draft.subject.empty() ? words_("(no subject)") : fromUtf8(draft.subject);
    QAction* action = menu.addAction(QString(subject + ", " + when).replace('&', "&&"));
    connect(action, &QAction::triggered, this,
            [this, name = draft.name] { callbacks_.openDraft(name); });
  }
  drafts_->setVisible(!drafts.empty());
}

std::string ComposerWindow::recipients() const {
  return toUtf8(recipients_->text());
}

std::string ComposerWindow::subject() const {
  return toUtf8(subject_->text());
}

std::string ComposerWindow::body() const {
  return text_.bytes();
}

bool ComposerWindow::isChanged() const {
  return recipients_->isModified() || subject_->isModified() || body_->document()->isModified();
}

void ComposerWindow::setPhase(Phase phase) {
  const bool editing = phase == Phase::editing;
  recipients_->setReadOnly(!editing);
  subject_->setReadOnly(!editing);
  body_->setReadOnly(!editing);
  send_->setEnabled(editing);
  save_->setEnabled(editing);
  drafts_->setEnabled(editing);
  cancel_->setEnabled(phase != Phase::left);
  cancel_->rename(phase == Phase::sending ? words_("Stop")
                  : phase == Phase::saved ? words_("Done")
                                          : words_("Cancel"));
  layOutBar();
  if (phase == Phase::saved) cancel_->setFocus();
}

void ComposerWindow::showNotice(const Sentence& sentence, Severity severity) {
  const QString text = words_(sentence);
  notice_->setProperty("role", severity == Severity::error ? "error" : "notice");
  notice_->style()->polish(notice_);
  notice_->document()->setDefaultFont(notice_->font());
  notice_->setPlainText(text);
  notice_->show();
  scroll_->ensureWidgetVisible(notice_);
  announce(text);
}

void ComposerWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layOutBar();
}

// Long words in large letters stand below each other.
void ComposerWindow::layOutBar() {
  const QMargins margins = bar_->contentsMargins();
  const int room = width() - margins.left() - margins.right() - 2 * bar_->spacing();
  const bool fits = cancel_->minimumSizeHint().width() + send_->minimumSizeHint().width() <= room;
  bar_->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void ComposerWindow::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous() && callbacks_.hidden) callbacks_.hidden();
}

void ComposerWindow::hideNotice() {
  notice_->hide();
}

void ComposerWindow::showProgress(double done) {
  progress_->setValue(qRound(100 * done));
  progress_->show();
}

void ComposerWindow::hideProgress() {
  progress_->hide();
}

void ComposerWindow::focusField(MailField field) {
  if (field == MailField::other) return;
  QLineEdit* edit = field == MailField::recipients ? recipients_ : subject_;
  edit->setFocus();
  edit->selectAll();
}

}  // namespace qv_commons::desktop
