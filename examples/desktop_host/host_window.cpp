#include "examples/desktop_host/host_window.h"

#include <QAccessible>
#include <QScrollArea>
#include <utility>

namespace host {
namespace {

constexpr QSize kPhone(390, 844);
constexpr QSize kSmallestPhone(320, 568);
constexpr int kMargin = 20;
constexpr int kRowPadding = 16;

QLabel* makeLabel(const QString& text, const char* role, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setProperty("role", role);
  label->setWordWrap(true);
  return label;
}

// `label` between the window's side margins.
QLayout* inset(QLabel* label) {
  auto* row = new QVBoxLayout;
  row->setContentsMargins(kMargin, 0, kMargin, 0);
  row->addWidget(label);
  return row;
}

// A button as tall as the texts in it, which wrap.
class ServiceRow final : public QPushButton {
 public:
  ServiceRow(const QString& title, const QString& explanation) {
    setProperty("role", "row");
    setAccessibleName(title);
    setAccessibleDescription(explanation);
    setCursor(Qt::PointingHandCursor);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);

    auto* texts = new QVBoxLayout(this);
    texts->setContentsMargins(kRowPadding, kRowPadding, kRowPadding, kRowPadding);
    texts->setSpacing(3);
    for (QLabel* label :
         {makeLabel(title, "rowTitle", this), makeLabel(explanation, "hint", this)}) {
      label->setAttribute(Qt::WA_TransparentForMouseEvents);
      texts->addWidget(label);
    }
  }

  QSize sizeHint() const override { return layout()->sizeHint(); }
  QSize minimumSizeHint() const override { return layout()->minimumSize(); }
  int heightForWidth(int width) const override { return layout()->heightForWidth(width); }
};

}  // namespace

HostWindow::HostWindow(const QString& appName) {
  setObjectName("host");
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

  status_ = makeLabel("", "status", this);
  status_->setObjectName("status");

  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 28, 0, kMargin);
  page->setSpacing(12);
  page->addLayout(inset(makeLabel(appName, "title", this)));
  page->addWidget(scroll, 1);
  page->addLayout(inset(status_));
  dress();
}

QPushButton* HostWindow::addService(const QString& name, const QString& title,
                                    const QString& explanation, std::function<void()> use) {
  auto* row = new ServiceRow(title, explanation);
  row->setObjectName(name);
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
    #host, QScrollArea, #list { background: %1; }
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
