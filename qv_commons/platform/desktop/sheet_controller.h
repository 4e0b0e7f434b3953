// A controller whose screen is a sheet in the window of who presents it.
#pragma once

#include <QColor>
#include <QPointer>
#include <memory>

#include "qv_commons/platform/desktop/desktop_controller.h"
#include "qv_commons/platform/desktop/sheet.h"

namespace qv_commons::desktop {

class SheetController : public DesktopController {
 public:
  QWidget* window() const override { return sheet_ == nullptr ? nullptr : sheet_->window(); }
  Sheet* sheet() const { return sheet_; }  // null while it is not shown

  // What the sheet shows. It stays this controller's when the window goes.
  QWidget& content() const { return *content_; }

 protected:
  SheetController(ViewController& controller, SharedContext context,
                  std::shared_ptr<QWidget> content, Sheet::Form form)
      : DesktopController(controller, std::move(context)),
        content_(std::move(content)),
        form_(form) {}

  void show(bool animated) override;
  void hide(bool animated) override;

  // What is seen behind the panel.
  void setGround(const QColor& color);

 private:
  std::shared_ptr<QWidget> content_;
  Sheet::Form form_;
  QColor ground_ = Qt::transparent;
  QPointer<Sheet> sheet_;
};

}  // namespace qv_commons::desktop
