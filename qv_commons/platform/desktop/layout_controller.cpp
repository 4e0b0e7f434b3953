#include "qv_commons/platform/desktop/layout_controller.h"

#include <QLabel>
#include <QLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/layout_file.h"
#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/support/url.h"

namespace qv_commons::desktop {
namespace {

// A panel fills the window of a phone, and stands in the middle of a larger one.
constexpr int kWidestPhone = 600;
constexpr int kPanelWidth = 560;
constexpr int kPanelHeight = 720;
constexpr int kLeastMargin = 24;

// What is seen around the panel.
constexpr QRgb kLightGround = 0xffe9e9ee;
constexpr QRgb kDarkGround = 0xff000000;

}  // namespace

// The layout's root in a window of its own.
class LayoutController::ScreenWindow final : public QWidget {
 public:
  ScreenWindow() { column_.setContentsMargins(0, 0, 0, 0); }

  void setContent(std::unique_ptr<QWidget> content, const QString& heading) {
    if (const auto* header = content->findChild<QLabel*>(heading)) {
      setWindowTitle(header->accessibleName());
    }
    column_.addWidget(content.release());
  }

 protected:
  void resizeEvent(QResizeEvent*) override {
    const auto margin = [](int length, int panelLength) {
      return std::max(kLeastMargin, (length - qRound(panelLength * textScale())) / 2);
    };
    const bool isPhone = width() <= kWidestPhone;
    const int beside = isPhone ? 0 : margin(width(), kPanelWidth);
    const int above = isPhone ? 0 : margin(height(), kPanelHeight);
    column_.setContentsMargins(beside, above, beside, above);
  }

 private:
  QVBoxLayout column_{this};
};

LayoutController::LayoutController(SharedContext context, const ScreenServices& services,
                                   std::string path)
    : NativeOf(std::move(context)),
      services_(services),
      path_(std::move(path)),
      screenWindow_(std::make_unique<ScreenWindow>()) {
  attachWindow(*screenWindow_);
}

LayoutController::~LayoutController() = default;

void LayoutController::setScreen(LayoutScreen& screen) {
  screen_ = &screen;
  setController(screen);
}

void LayoutController::show(bool animated) {
  if (!isLoaded_) load();
  DesktopController::show(animated);
}

void LayoutController::load() {
  isLoaded_ = true;
  std::unique_ptr<QWidget> root = loadLayout(path_, services_.calendar, textScale());
  const LinkOpener open = [&application = services_.application](std::string_view link) {
    if (const auto url = URL::parse(std::string(link))) application.openURL(*url);
  };
  views_ = connectScreen(*root, *screen_, open, path_);
  screen_->viewDidLoad();
  screenWindow_->setContent(std::move(root), fromUtf8(screen_->headingOutlet()));
}

void LayoutController::dress(UserInterfaceStyle style) {
  const QRgb ground = style == UserInterfaceStyle::dark ? kDarkGround : kLightGround;
  QPalette palette = screenWindow_->palette();
  palette.setColor(QPalette::Window, QColor::fromRgb(ground));
  screenWindow_->setPalette(palette);
}

}  // namespace qv_commons::desktop
