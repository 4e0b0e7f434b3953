#include "qv_commons/platform/desktop/desktop_search_bar.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <string>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons::desktop {
namespace {

// Drawn here, since icon themes differ from desktop to desktop and may be missing.
QIcon magnifyingGlass(const QColor& color) {
  constexpr int kScale = 3;
  QPixmap pixmap(16 * kScale, 16 * kScale);
  pixmap.setDevicePixelRatio(kScale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawEllipse(QRectF(2, 2, 8.5, 8.5));
  painter.drawLine(QPointF(9.5, 9.5), QPointF(13.5, 13.5));
  return pixmap;
}

}  // namespace

DesktopSearchBar::DesktopSearchBar(const QString& prompt, QWidget* parent)
    : QWidget(parent), field_(new QLineEdit) {
  field_->setPlaceholderText(prompt);
  field_->setAccessibleName(prompt);
  field_->setClearButtonEnabled(true);
  field_->setMinimumHeight(44);  // what a finger needs
  field_->addAction(magnifyingGlass(palette().color(QPalette::PlaceholderText)),
                    QLineEdit::LeadingPosition);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(field_);
  setFocusProxy(field_);
}

QLineEdit* DesktopSearchBar::valueForKey(std::string_view key) const {
  if (key == "_searchField") return field_;
  fatalError("DesktopSearchBar: there is no value for the key \"" + std::string(key) + "\"");
}

}  // namespace qv_commons::desktop
