#include "qv_commons/platform/desktop/layout_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QLayout>
#include <QScrollArea>
#include <QTextBlock>
#include <QTextCursor>
#include <QUiLoader>
#include <algorithm>
#include <cmath>

#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/scrolled_column.h"
#include "qv_commons/platform/desktop/text_label.h"
#include "qv_commons/platform/desktop/thin_scroll_bar.h"
#include "qv_commons/platform/fatal_error.h"

namespace qv_commons::desktop {

namespace {

constexpr const char* kFontFamily = "Inter";
constexpr double kLineHeightPercent = 130;

[[noreturn]] void failToLoad(const std::string& path, const QString& problem) {
  fatalError("the layout " + path + ": " + toUtf8(problem));
}

class ScreenLoader final : public QUiLoader {
 public:
  ScreenLoader(std::string path, const IcuCalendar& calendar)
      : path_(std::move(path)), calendar_(calendar) {}

  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    QWidget* widget = make(className, parent);
    if (widget == nullptr) {
      // Qt would take the class that the unknown one extends, without a word.
      if (!availableWidgets().contains(className)) failToLoad(path_, "unknown class " + className);
      return QUiLoader::createWidget(className, parent, name);
    }
    widget->setObjectName(name);
    return widget;
  }

  // Qt would go on without the layout, and then use it.
  QLayout* createLayout(const QString& className, QObject* parent, const QString& name) override {
    if (!availableLayouts().contains(className)) failToLoad(path_, "unknown layout " + className);
    QLayout* layout = QUiLoader::createLayout(className, parent, name);
    layout->setEnabled(false);  // until the texts have their fonts
    return layout;
  }

 private:
  QWidget* make(const QString& className, QWidget* parent) const {
    if (className == "WheelDatePicker") return new WheelDatePicker(calendar_, parent);
    if (className == "ScrolledColumn") return new ScrolledColumn(parent);
    if (className == "ScreenButton") return new ScreenButton(parent);
    if (className == "QLabel") return new TextLabel(parent);
    if (className == "LinkTextView") return new LinkTextView(parent);
    return nullptr;
  }

  std::string path_;
  const IcuCalendar& calendar_;
};

// Qt's loader runs every plug-in from which a form editor on this machine would offer widgets, and
// loads all that those stand on. The screens use none of them.
std::unique_ptr<ScreenLoader> makeLoader(const std::string& path, const IcuCalendar& calendar) {
  const QStringList pluginFolders = QCoreApplication::libraryPaths();
  QCoreApplication::setLibraryPaths({});
  auto loader = std::make_unique<ScreenLoader>(path, calendar);
  QCoreApplication::setLibraryPaths(pluginFolders);
  return loader;
}

void setFont(QWidget& widget, double textScale) {
  const QVariant size = widget.property("textSize");
  if (!size.isValid()) return;
  QFont font = widget.font();
  font.setFamilies(QStringList{kFontFamily} + font.families());
  font.setPixelSize(static_cast<int>(std::lround(size.toInt() * textScale)));
  const QVariant weight = widget.property("textWeight");
  if (weight.isValid()) font.setWeight(static_cast<QFont::Weight>(weight.toInt()));
  widget.setFont(font);
}

void setUpText(LinkTextView& view) {
  view.document()->setDefaultFont(view.font());
  const bool isReversed = view.layoutDirection() == Qt::RightToLeft;
  for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
    QTextBlockFormat format = block.blockFormat();
    format.setLineHeight(kLineHeightPercent, QTextBlockFormat::ProportionalHeight);
    if (format.alignment() != Qt::AlignHCenter) {
      format.setAlignment(Qt::AlignAbsolute | (isReversed ? Qt::AlignRight : Qt::AlignLeft));
    }
    QTextCursor(block).setBlockFormat(format);
  }
}

// A wheel that has the focus from the start may be out of sight when the first key turns it.
void setUpScrolling(QScrollArea& area) {
  for (WheelDatePicker* picker : area.findChildren<WheelDatePicker*>()) {
    QObject::connect(picker, &WheelDatePicker::dateChanged, &area,
                     [&area, picker] { area.ensureWidgetVisible(picker); });
  }
  area.setVerticalScrollBar(new ThinScrollBar(Qt::Vertical, &area));
  area.viewport()->setAutoFillBackground(false);
  if (area.widget() != nullptr) area.widget()->setAutoFillBackground(false);
}

const Action* actionFor(const std::vector<Action>& actions, const QVariant& selector) {
  const auto found = std::find_if(actions.begin(), actions.end(), [&](const Action& action) {
    return selector.toString() == fromUtf8(action.selector);
  });
  return found == actions.end() ? nullptr : &*found;
}

// A button's click, answered when it is over, since the screen may go then; a date picker's change
// by the user.
void connectAction(QWidget& widget, const Completion& run, const Later& later) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    QObject::connect(button, &QAbstractButton::clicked, button, [later, run] { later(run); });
  }
  if (auto* picker = qobject_cast<WheelDatePicker*>(&widget)) {
    QObject::connect(picker, &WheelDatePicker::dateChanged, picker, run);
  }
}

}  // namespace

std::unique_ptr<QWidget> loadLayout(const ScreenWords& words, const IcuCalendar& calendar,
                                    double textScale) {
  const std::string& path = words.layout;
  QFile file(QFile::decodeName(path.c_str()));
  if (!file.open(QIODevice::ReadOnly)) failToLoad(path, file.errorString());
  const std::unique_ptr<ScreenLoader> loader = makeLoader(path, calendar);
  std::unique_ptr<QWidget> root(loader->load(&file));
  if (!root) failToLoad(path, loader->errorString());
  applyWords(*root, words);
  for (QScrollArea* area : root->findChildren<QScrollArea*>()) setUpScrolling(*area);
  for (QWidget* widget : root->findChildren<QWidget*>()) {
    setFont(*widget, textScale);
    if (auto* text = qobject_cast<LinkTextView*>(widget)) setUpText(*text);
  }
  for (QLayout* layout : root->findChildren<QLayout*>()) layout->setEnabled(true);
  return root;
}

std::vector<std::shared_ptr<View>> connectScreen(QWidget& root, LayoutScreen& screen,
                                                 const LinkOpener& open, const std::string& path,
                                                 const Later& later) {
  std::vector<std::shared_ptr<View>> views;
  for (const Outlet& outlet : screen.outlets()) {
    auto* widget = root.findChild<QWidget*>(fromUtf8(outlet.name));
    if (widget == nullptr) continue;
    views.push_back(makeView(*widget, open, later));
    outlet.connect(views.back());
  }
  const std::vector<Action> actions = screen.actions();
  for (QWidget* widget : root.findChildren<QWidget*>()) {
    const QVariant selector = widget->property("action");
    if (!selector.isValid()) continue;
    const Action* action = actionFor(actions, selector);
    if (action == nullptr) failToLoad(path, "no action " + selector.toString());
    connectAction(*widget, action->run, later);
  }
  return views;
}

}  // namespace qv_commons::desktop
