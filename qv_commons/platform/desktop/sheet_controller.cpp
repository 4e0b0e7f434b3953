#include "qv_commons/platform/desktop/sheet_controller.h"

namespace qv_commons::desktop {

void SheetController::show(bool) {
  restyle();
  sheet_ = &Sheet::show(presenterWindow(), content_, form_);
  sheet_->setGround(ground_);
  QObject::connect(sheet_, &Sheet::left, sheet_, [this] { later([this] { userLeaves(); }); });
  QObject::connect(sheet_, &Sheet::appearanceChanged, sheet_, [this] { restyle(); });
}

void SheetController::setGround(const QColor& color) {
  ground_ = color;
  if (sheet_ != nullptr) sheet_->setGround(color);
}

void SheetController::hide(bool) {
  if (sheet_ != nullptr) sheet_->dismiss();
  sheet_ = nullptr;
}

}  // namespace qv_commons::desktop
