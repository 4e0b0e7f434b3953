#include "qv_commons/platform/desktop/desktop_alert.h"

#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {

DesktopAlert::DesktopAlert(SharedContext context, const std::string& title,
                           const std::string& message)
    : NativeOf(std::move(context)) {
  attachWindow(dialog_);
  dialog_.setWindowTitle(fromUtf8(title));
  dialog_.setAccessibleName(fromUtf8(title));
  dialog_.setAccessibleDescription(fromUtf8(message));
  layout_.setContentsMargins(kSideMargin, kBottomMargin, kSideMargin, kBottomMargin);
  layout_.setSpacing(kGap / 2);
  addLabel(title, "heading")->setObjectName("title");
  addLabel(message, "text")->setObjectName("message");
  layout_.addSpacing(kGap / 2);
}

QLabel* DesktopAlert::addLabel(const std::string& text, const char* role) {
  auto* label = new QLabel(breakable(fromUtf8(text)));
  label->setProperty("role", role);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignCenter);
  layout_.addWidget(label);
  return label;
}

void DesktopAlert::addAction(std::string title, AlertActionStyle style, Completion handler) {
  auto* button = new QPushButton(fromUtf8(title).replace('&', "&&"));
  button->setObjectName("action" + QString::number(buttons_.size()));
  button->setAccessibleName(fromUtf8(title));
  if (style == AlertActionStyle::cancel) cancelButton_ = button;
  if (style == AlertActionStyle::destructive) button->setProperty("role", "destructive");
  if (style == AlertActionStyle::standard && buttons_.empty()) {
    button->setProperty("role", "primary");
  }
  layout_.addWidget(button);
  buttons_.push_back(button);
  QObject::connect(button, &QPushButton::clicked, button,
                   [this, handler = std::move(handler)] { dismiss(true, handler); });
}

void DesktopAlert::place(QWidget& window, const QWidget& presenterWindow) {
  constexpr int kWidth = 290;
  const QRect area = presenterWindow.geometry();
  for (QWidget* child : window.findChildren<QWidget*>()) child->ensurePolished();
  layout_.invalidate();
  const int width = std::min(qRound(kWidth * textScale()), area.width() - 2 * kSideMargin);
  window.setFixedWidth(width);
  QRect geometry(0, 0, width, layout_.heightForWidth(width));
  geometry.moveCenter(area.center());
  window.setGeometry(geometry);
  if (!buttons_.empty()) buttons_.front()->setFocus();
}

void DesktopAlert::dress(UserInterfaceStyle style) {
  dialog_.setStyleSheet(styleSheet(themeFor(style), textScale()));
}

void DesktopAlert::userLeaves() {
  if (isModalInPresentation()) return;
  QPushButton* way = buttons_.size() == 1 ? buttons_.front() : cancelButton_;
  if (way != nullptr) way->click();
}

}  // namespace qv_commons::desktop
