#include "examples/desktop_host/host_window.h"

#include <QAccessible>
#include <QScrollArea>
#include <utility>

namespace host {
namespace {

constexpr QSize kPhone(390, 844);
constexpr QSize kSmallestPhone(320, 568);
constexpr int kMargin = 20;
constexpr int kRowPadding = 14;

QLabel* makeLabel(const QString& text, const char* role, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setProperty("role", role);
  label->setWordWrap(true);
  return label;
}

}  // namespace

HostWindow::HostWindow(const QString& appName) {
  setWindowTitle(appName);
  resize(kPhone);
  setMinimumSize(kSmallestPhone);

  auto* list = new QWidget;
  list->setObjectName("list");
  services_ = new QVBoxLayout(list);
  services_->setContentsMargins(kMargin, 0, kMargin, kMargin);
  services_->setSpacing(10);
  services_->addStretch();

  auto* scroll = new QScrollArea;
  scroll->setWidget(list);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);

  auto* title = makeLabel(appName, "title", this);
  title->setContentsMargins(kMargin, 28, kMargin, 12);
  status_ = makeLabel("", "status", this);
  status_->setObjectName("status");
  status_->setContentsMargins(kMargin, 12, kMargin, kMargin);

  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 0, 0, 0);
  page->setSpacing(0);
  page->addWidget(title);
  page->addWidget(scroll, 1);
  page->addWidget(status_);
  dress();
}

QPushButton* HostWindow::addService(const QString& name, const QString& title,
                                    const QString& explanation, std::function<void()> use) {
  auto* row = new QPushButton;
  row->setObjectName(name);
  row->setAccessibleName(title);
  row->setAccessibleDescription(explanation);
  row->setProperty("role", "row");
  row->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::MinimumExpanding);
  row->setCursor(Qt::PointingHandCursor);

  auto* texts = new QVBoxLayout(row);
  texts->setContentsMargins(kRowPadding + 2, kRowPadding, kRowPadding + 2, kRowPadding);
  texts->setSpacing(3);
  texts->setSizeConstraint(QLayout::SetMinimumSize);
  for (QLabel* label : {makeLabel(title, "rowTitle", row), makeLabel(explanation, "hint", row)}) {
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    texts->addWidget(label);
  }
  connect(row, &QPushButton::clicked, row, std::move(use));
  services_->insertWidget(services_->count() - 1, row);
  return row;
}

void HostWindow::say(const QString& text) {
  status_->setText(text);
  QAccessibleEvent changed(status_, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
}

void HostWindow::dress() {
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  const QString style = R"(
    host--HostWindow, QScrollArea, #list { background: %1; }
    QLabel { color: %2; font-family: Inter; font-size: 15px; background: transparent; }
    QLabel[role="title"] { font-size: 30px; font-weight: 700; }
    QLabel[role="rowTitle"] { font-size: 17px; font-weight: 600; }
    QLabel[role="hint"], QLabel[role="status"] { color: %3; font-size: 13px; }
    QPushButton[role="row"] { background: %4; border: 1px solid %5; border-radius: 14px; }
    QPushButton[role="row"]:hover, QPushButton[role="row"]:focus { border: 2px solid %6; }
    QPushButton[role="row"]:pressed { background: %5; })";
  setAttribute(Qt::WA_StyledBackground);
  setStyleSheet(dark ? style.arg("#111113", "#f5f5f7", "#a1a1a8", "#1e1e21", "#303035", "#6aa6ff")
                     : style.arg("#f4f4f6", "#1a1a1c", "#65656b", "#ffffff", "#e3e3e8", "#1f6feb"));
}

}  // namespace host
