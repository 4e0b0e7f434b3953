#include "qv_commons/platform/desktop/widget_views.h"

#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/thin_scroll_bar.h"
#include "qv_commons/platform/desktop/wheel.h"

namespace qv_commons::desktop {

namespace {

// Without a text of its own direction, a line begins where the screen's lines begin.
QString alignmentOf(const QWidget& widget, Qt::Alignment alignment) {
  if ((alignment & Qt::AlignHCenter) != 0) return "center";
  return widget.layoutDirection() == Qt::RightToLeft ? "right" : "left";
}

QString toHtml(const QLabel& label, const QString& text) {
  const QString direction = text.isRightToLeft() ? "rtl" : "ltr";
  return QStringLiteral("<p dir='%1' align='%2' style='margin:0; line-height:130%'>%3</p>")
      .arg(direction, alignmentOf(label, label.alignment()), text.toHtmlEscaped());
}

// The relative luminance of sRGB, as the Web Content Accessibility Guidelines define it.
double luminanceOf(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

// Where black and white stand out equally: (L + 0.05) / 0.05 = 1.05 / (L + 0.05).
constexpr double kLuminanceOfEqualContrast = 0.179;

void setColor(QWidget& widget, QPalette::ColorGroup group, QPalette::ColorRole role,
              const QColor& color) {
  QPalette palette = widget.palette();
  palette.setColor(group, role, color);
  widget.setPalette(palette);
}

// The cursor that has selected `range` of `document`.
QTextCursor cursorAt(QTextDocument& document, TextRange range) {
  QTextCursor cursor(&document);
  cursor.setPosition(static_cast<int>(range.location));
  cursor.setPosition(static_cast<int>(range.location + range.length), QTextCursor::KeepAnchor);
  return cursor;
}

}  // namespace

QColor toQColor(const Color& color) {
  const auto part = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
  return QColor::fromRgbF(part(color.red), part(color.green), part(color.blue), part(color.alpha));
}

void PanelView::setBackgroundColor(const Color& color) {
  WidgetView::setBackgroundColor(color);
  const QColor ground = toQColor(color);
  if (ground.alpha() < 255) return;
  const bool isLight = luminanceOf(ground) > kLuminanceOfEqualContrast;
  // Handed down by hand: Qt doesn't where the host's window has a style sheet.
  for (QWidget* held : panel_.findChildren<QWidget*>()) {
    const bool isPlain = qobject_cast<Wheel*>(held) != nullptr ||
                         qobject_cast<WheelDatePicker*>(held) != nullptr ||
                         qobject_cast<ThinScrollBar*>(held) != nullptr;
    if (isPlain) {
      setColor(*held, QPalette::All, QPalette::WindowText, isLight ? Qt::black : Qt::white);
    }
  }
}

LabelView::LabelView(QLabel& label) : WidgetView(label), label_(label), text_(label.text()) {
  show();
}

std::optional<std::string> LabelView::text() const {
  if (text_.isNull()) return std::nullopt;
  return toUtf8(text_);
}

void LabelView::setText(const std::string& text) {
  text_ = text.empty() ? QStringLiteral("") : fromUtf8(text);
  show();
}

void LabelView::setTextColor(const Color& color) {
  setColor(label_, QPalette::All, QPalette::WindowText, toQColor(color));
}

void LabelView::show() {
  label_.setTextFormat(Qt::RichText);
  label_.setText(text_.isEmpty() ? QString() : toHtml(label_, text_));
  label_.setAccessibleName(text_);
}

void ButtonView::setTitleColor(const Color& color, ControlState state) {
  const QColor title = toQColor(color);
  if (state == ControlState::disabled) {
    setColor(button_, QPalette::Disabled, QPalette::ButtonText, title);
    return;
  }
  setColor(button_, QPalette::Active, QPalette::ButtonText, title);
  setColor(button_, QPalette::Inactive, QPalette::ButtonText, title);
}

LinkedTextView::LinkedTextView(LinkTextView& widget, LinkOpener open, const Later& later)
    : WidgetView(widget), widget_(widget), open_(std::move(open)) {
  QObject::connect(
      &widget, &LinkTextView::linkPressed, &widget,
      [this, later](const QString& target) { later([this, target] { follow(target); }); });
}

// Without the mark that ends every document.
std::optional<std::size_t> LinkedTextView::textLength() const {
  return static_cast<std::size_t>(widget_.document()->characterCount() - 1);
}

// No value is ever taken for a URL and written another way: the document holds its place instead.
void LinkedTextView::addLinks(const std::vector<TextLink>& links, const Color& foreground) {
  linkColor_ = toQColor(foreground);
  QTextCursor edit(widget_.document());
  edit.beginEditBlock();  // the text is laid out once, at the end
  for (const TextLink& link : links) {
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorHref(QString::number(links_.size()));
    format.setFontUnderline(false);
    cursorAt(*widget_.document(), link.range).mergeCharFormat(format);
    links_.push_back(link);
  }
  paintLinks();
  edit.endEditBlock();
}

void LinkedTextView::setTextColor(const Color& color) {
  QTextCharFormat format;
  format.setForeground(toQColor(color));
  QTextCursor all(widget_.document());
  all.select(QTextCursor::Document);
  all.beginEditBlock();
  all.mergeCharFormat(format);
  paintLinks();
  all.endEditBlock();
  setColor(widget_, QPalette::All, QPalette::Text, toQColor(color));
}

void LinkedTextView::paintLinks() const {
  if (!linkColor_.isValid()) return;
  QTextCharFormat format;
  format.setForeground(linkColor_);
  for (const TextLink& link : links_) {
    cursorAt(*widget_.document(), link.range).mergeCharFormat(format);
  }
}

void LinkedTextView::follow(const QString& target) {
  bool isOurs = false;
  const std::size_t number = target.toULong(&isOurs);
  if (!isOurs || number >= links_.size()) return;
  const TextLink link = links_[number];  // the delegate may take the screen away
  const LinkOpener open = open_;
  if (delegate_ == nullptr || delegate_->shouldInteractWithURL(*this, link.value, link.range)) {
    open(link.value);
  }
}

std::shared_ptr<View> makeView(QWidget& widget, const LinkOpener& open, const Later& later) {
  if (auto* picker = qobject_cast<WheelDatePicker*>(&widget)) {
    return std::make_shared<PickerView>(*picker);
  }
  if (auto* text = qobject_cast<LinkTextView*>(&widget)) {
    return std::make_shared<LinkedTextView>(*text, open, later);
  }
  if (auto* button = qobject_cast<ScreenButton*>(&widget)) {
    return std::make_shared<ButtonView>(*button);
  }
  if (auto* label = qobject_cast<QLabel*>(&widget)) return std::make_shared<LabelView>(*label);
  return std::make_shared<PanelView>(widget);
}

}  // namespace qv_commons::desktop
