// A screen shown inside a window, over all that is in it: it fills a window of a phone's size, and
// stands as a panel in the middle of a larger one, on a dimmed ground.
//
// While it is up nothing beneath it in that window is reached: by mouse, key, shortcut, menu, drag,
// tool tip or screen reader. When it goes, the window is as it was, the keyboard's focus included.
#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <memory>

namespace qv_commons::desktop {

class Sheet final : public QWidget {
  Q_OBJECT

 public:
  // A card is a small panel, as tall as its content.
  enum class Form : std::uint8_t { panel, card };

  // Shows `content` over all that is in `window`, which then owns the sheet; null: in a window of
  // its own. The content's window title names the sheet, and what has the focus in it gets the
  // keyboard.
  static Sheet& show(QWidget* window, std::shared_ptr<QWidget> content, Form form);
  ~Sheet() override;

  // Hides the sheet at once and destroys it from the event loop.
  void dismiss();

  // What is seen behind the panel where that is not opaque, such as its corners in a small window.
  void setGround(const QColor& color);

  // The topmost sheet in a window, or null.
  static Sheet* topOf(const QWidget& window);

  // Whether a widget, action or shortcut lies in a window below its topmost sheet.
  static bool isCovered(const QObject& object);

  // Whether `widget` has the focus and shows it: only once the keyboard is in use.
  static bool showsFocus(const QWidget& widget);

  // Follows the window's size.
  void fit();

 signals:
  void left();               // by Escape, or the close button of a window of its own
  void appearanceChanged();  // the application's palette or font is another one

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  friend class SheetGuard;

  Sheet(std::shared_ptr<QWidget> content, Form form);

  void takeFocus();
  void giveBackFocus();
  void dressAsApplication();
  QRect panelPlace() const;
  bool isOpaque() const;
  QObject* shortcutFor(const QKeySequence& keys) const;

  std::shared_ptr<QWidget> content_;
  Form form_;
  QWidget* panel_ = nullptr;
  QColor ground_ = Qt::transparent;
  QPointer<QWidget> focusBefore_;  // beneath the sheet
  bool hadFocusBefore_ = false;
};

}  // namespace qv_commons::desktop
