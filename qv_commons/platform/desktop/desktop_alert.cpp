#include "qv_commons/platform/desktop/desktop_alert.h"

#include <QLabel>
#include <utility>

#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/sheet_button.h"

namespace qv_commons::desktop {
namespace {

std::shared_ptr<QWidget> makeCard() {
  auto content = std::make_shared<QWidget>();
  content->setProperty("role", "page");
  new QVBoxLayout(content.get());
  return content;
}

}  // namespace

DesktopAlert::DesktopAlert(SharedContext context, const std::string& title,
                           const std::string& message)
    : NativeOf(std::move(context), makeCard(), Sheet::Form::card),
      layout_(static_cast<QVBoxLayout&>(*content().layout())) {
  content().setWindowTitle(fromUtf8(title));
  content().setAccessibleDescription(fromUtf8(message));
  layout_.setContentsMargins(kSideMargin, kBottomMargin, kSideMargin, kBottomMargin);
  layout_.setSpacing(kGap / 2);
  addLabel(title, "heading")->setObjectName("title");
  addLabel(message, "text")->setObjectName("message");
  layout_.addSpacing(kGap / 2);
}

QLabel* DesktopAlert::addLabel(const std::string& text, const char* role) {
  auto* label = new QLabel(breakable(fromUtf8(text)));
  label->setAccessibleName(fromUtf8(text));
  label->setProperty("role", role);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignCenter);
  layout_.addWidget(label);
  return label;
}

void DesktopAlert::addAction(std::string title, AlertActionStyle style, Completion handler) {
  auto* button = new SheetButton(fromUtf8(title));
  button->setObjectName("action" + QString::number(buttons_.size()));
  if (style == AlertActionStyle::cancel) cancelButton_ = button;
  if (style == AlertActionStyle::destructive) button->setProperty("role", "destructive");
  if (style == AlertActionStyle::standard && buttons_.empty()) {
    button->setProperty("role", "primary");
  }
  layout_.addWidget(button);
  if (buttons_.empty()) button->setFocus();
  buttons_.push_back(button);
  QObject::connect(button, &QPushButton::clicked, button, [this, handler = std::move(handler)] {
    later([this, handler] { dismiss(true, handler); });
  });
}

void DesktopAlert::dress(UserInterfaceStyle style) {
  const Theme theme = themeFor(style);
  content().setStyleSheet(styleSheet(theme, textScale()));
  setGround(theme.background);
  // The card is as tall as its texts, in the fonts that they have now.
  for (QWidget* child : content().findChildren<QWidget*>()) child->ensurePolished();
  layout_.invalidate();
}

void DesktopAlert::userLeaves() {
  if (isModalInPresentation()) return;
  SheetButton* way = buttons_.size() == 1 ? buttons_.front() : cancelButton_;
  if (way != nullptr) way->click();
}

}  // namespace qv_commons::desktop
