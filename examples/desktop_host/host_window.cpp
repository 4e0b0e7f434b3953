#include "examples/desktop_host/host_window.h"

#include <QAccessible>
#include <QApplication>
#include <QFontInfo>
#include <QRegularExpression>
#include <QScrollArea>
#include <algorithm>
#include <utility>

namespace host {
namespace {

constexpr QSize kPhone(390, 844);
constexpr QSize kSmallestPhone(320, 568);
constexpr int kMargin = 20;
constexpr int kRowPadding = 16;

// The style with its texts enlarged as the user has it: 15 pixels are the usual size.
QString scaled(const QString& style) {
  const double scale = std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / 15.0);
  static const QRegularExpression size("font-size: (\\d+)px");
  QString result;
  qsizetype end = 0;
  for (auto found = size.globalMatch(style); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    result += style.mid(end, match.capturedStart(1) - end);
    result += QString::number(qRound(match.captured(1).toInt() * scale));
    end = match.capturedEnd(1);
  }
  return result + style.mid(end);
}

// `content` in a column that scrolls where it is too tall.
QScrollArea* scrolling(QWidget* content) {
  content->setProperty("role", "page");
  auto* scroll = new QScrollArea;
  scroll->setWidget(content);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  return scroll;
}

QVBoxLayout* pageLayout(QWidget* page) {
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(kMargin, 28, kMargin, 0);
  layout->setSpacing(12);
  return layout;
}

// A button as tall as the texts in it, which wrap.
class ServiceRow final : public QPushButton {
 public:
  ServiceRow(const QString& title, const QString& explanation) {
    setProperty("role", "row");
    setAccessibleName(title);
    setAccessibleDescription(explanation);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);  // its ring is for the keyboard
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
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

QLabel* makeLabel(const QString& text, const char* role, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setProperty("role", role);
  label->setWordWrap(true);
  return label;
}

QPushButton* makeBackButton(std::function<void()> use) {
  auto* back = new QPushButton("‹ Back");
  back->setObjectName("back");
  back->setAccessibleName("Back");
  back->setProperty("role", "back");
  QObject::connect(back, &QPushButton::clicked, back, std::move(use));
  return back;
}

HostWindow::HostWindow(const QString& appName, bool dark)
    : pages_(new QStackedWidget), status_(makeLabel("", "status", this)) {
  setObjectName("host");
  setWindowTitle(appName);
  resize(kPhone);
  setMinimumSize(kSmallestPhone);
  setFocusPolicy(Qt::ClickFocus);
  setFocus();  // no row has the focus before Tab is pressed
  pages_->addWidget(makeList(appName));
  status_->setObjectName("status");

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, kMargin);
  column->setSpacing(12);
  column->addWidget(pages_, 1);
  auto* statusRow = new QVBoxLayout;
  statusRow->setContentsMargins(kMargin, 0, kMargin, 0);
  statusRow->addWidget(status_);
  column->addLayout(statusRow);
  dress(dark);
}

QWidget* HostWindow::makeList(const QString& appName) {
  auto* list = new QWidget;
  services_ = new QVBoxLayout(list);
  services_->setContentsMargins(0, 0, 0, 0);
  services_->setSpacing(10);
  services_->addStretch();

  auto* page = new QWidget;
  page->setObjectName("home");
  auto* layout = pageLayout(page);
  layout->addWidget(makeLabel(appName, "title"));
  layout->addWidget(scrolling(list), 1);
  return page;
}

QPushButton* HostWindow::addService(const QString& name, const QString& title,
                                    const QString& explanation, std::function<void()> use) {
  auto* row = new ServiceRow(title, explanation);
  row->setObjectName(name);
  connect(row, &QPushButton::clicked, row, std::move(use));
  services_->insertWidget(services_->count() - 1, row);
  return row;
}

void HostWindow::addPage(const QString& name, const QString& title, const QString& explanation,
                         QWidget* content) {
  auto* page = new QWidget;
  auto* layout = pageLayout(page);
  layout->addWidget(makeBackButton([this] { goHome(); }), 0, Qt::AlignLeading);
  layout->addWidget(makeLabel(title, "title"));
  layout->addWidget(scrolling(content), 1);
  addBarePage(name, title, explanation, page);
}

void HostWindow::addBarePage(const QString& name, const QString& title, const QString& explanation,
                             QWidget* page) {
  page->setObjectName(name + "Page");
  pages_->addWidget(page);
  addService(name, title, explanation, [this, page] {
    say("");
    pages_->setCurrentWidget(page);
  });
}

void HostWindow::goHome() {
  pages_->setCurrentIndex(0);
}

void HostWindow::say(const QString& text) {
  status_->setText(text);
  QAccessibleEvent changed(status_, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
}

void HostWindow::dress(bool dark) {
  const QString style = scaled(R"(
    #host, QScrollArea, QStackedWidget, QTabWidget, *[role="page"] { background: %1; }
    QLabel { color: %2; font-family: Inter; font-size: 15px; background: transparent; }
    QLabel[role="title"] { font-size: 30px; font-weight: 700; }
    QLabel[role="rowTitle"] { font-size: 17px; font-weight: 600; }
    QLabel[role="hint"], QLabel[role="status"] { color: %3; font-size: 13px; }
    QPushButton { font-family: Inter; font-size: 17px; color: %6; background: %4;
      border: 1px solid %5; border-radius: 10px; padding: 10px 16px; min-height: 22px; }
    QPushButton[role="back"] { border: 2px solid transparent; background: transparent;
      padding: 6px 8px; }
    QPushButton[role="row"] { border-radius: 14px; padding: 0; }
    QPushButton:hover, QPushButton:focus { border: 2px solid %6; }
    QPushButton:pressed { background: %5; }
    QLineEdit { font-family: Inter; font-size: 17px; color: %2; background: %4; padding: 0 8px;
      border: 1px solid %5; border-radius: 10px; min-height: 42px; }
    QLineEdit:focus { border: 2px solid %6; }
    QTabWidget::pane { border: none; top: 16px; }
    QTabWidget::tab-bar { left: 20px; top: 16px; }
    QTabBar::tab { font-family: Inter; font-size: 15px; color: %2; background: %1; padding: 10px 16px;
      border-bottom: 2px solid transparent; }
    QTabBar::tab:selected { color: %6; border-bottom: 2px solid %6; }
    QScrollBar:vertical { background: transparent; width: 8px; margin: 0; }
    QScrollBar::handle:vertical { background: %3; border-radius: 4px; min-height: 32px; }
    QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; })");
  setAttribute(Qt::WA_StyledBackground);
  setStyleSheet(dark ? style.arg("#111113", "#f5f5f7", "#a1a1a8", "#1e1e21", "#303035", "#6aa6ff")
                     : style.arg("#f4f4f6", "#1a1a1c", "#65656b", "#ffffff", "#e3e3e8", "#0b57d0"));
}

}  // namespace host
