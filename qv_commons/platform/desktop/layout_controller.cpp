#include "qv_commons/platform/desktop/layout_controller.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <utility>

#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/layout_file.h"
#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/sheet_accessibility.h"
#include "qv_commons/support/url.h"

namespace qv_commons::desktop {
namespace {

// What is seen behind the panel.
constexpr QRgb kLightGround = 0xffe9e9ee;
constexpr QRgb kDarkGround = 0xff000000;

std::shared_ptr<QWidget> makePanel() {
  auto content = std::make_shared<QWidget>();
  auto* column = new QVBoxLayout(content.get());
  column->setContentsMargins(0, 0, 0, 0);
  return content;
}

// All that is there to be read, as one text.
QString textOf(const QWidget& root) {
  QStringList texts;
  for (const QLabel* label : root.findChildren<QLabel*>()) texts.append(label->accessibleName());
  for (const auto* text : root.findChildren<LinkTextView*>()) texts.append(text->seenText());
  return texts.join(" ");
}

}  // namespace

LayoutController::LayoutController(SharedContext context, const ScreenServices& services,
                                   std::string path)
    : NativeOf(std::move(context), makePanel(), Sheet::Form::panel),
      services_(services),
      path_(std::move(path)) {}

LayoutController::~LayoutController() = default;

void LayoutController::setScreen(LayoutScreen& screen) {
  screen_ = &screen;
  setController(screen);
}

void LayoutController::show(bool animated) {
  if (!isLoaded_) load();
  SheetController::show(animated);
  announce(textOf(content()));
}

void LayoutController::load() {
  isLoaded_ = true;
  const ScreenWords words =
      findWords(path_, services_.device.preferredLanguages(),
                [this](const std::string& problem) { context().reportError(problem); });
  std::unique_ptr<QWidget> root = loadLayout(words, services_.calendar, textScale());
  const LinkOpener open = [&application = services_.application](std::string_view link) {
    if (const auto url = URL::parse(std::string(link))) application.openURL(*url);
  };
  views_ = connectScreen(*root, *screen_, open, words.layout,
                         [this](Completion action) { later(std::move(action)); });
  screen_->viewDidLoad();
  // Not before: at each change from here on an area asks for sizes, for which all texts are laid
  // out.
  for (QScrollArea* area : root->findChildren<QScrollArea*>()) area->setWidgetResizable(true);
  const QString heading = fromUtf8(screen_->headingOutlet());
  if (const auto* header = root->findChild<QLabel*>(heading)) {
    content().setWindowTitle(header->accessibleName());
  }
  content().layout()->addWidget(root.release());
}

void LayoutController::dress(UserInterfaceStyle style) {
  setGround(QColor::fromRgb(style == UserInterfaceStyle::dark ? kDarkGround : kLightGround));
}

}  // namespace qv_commons::desktop
