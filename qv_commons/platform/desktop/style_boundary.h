// A widget at which the style sheets of the widgets around it end.
//
// Qt collects the rules for a widget from all its parents, and has no switch for it. One widget
// alone is taken to have another parent in this respect: a tool tip's label, which is known by the
// name of its class. So this widget goes by that name and has nobody for a parent. The
// application's own style sheet still counts inside, as it does in every window.
#pragma once

#include <QLabel>

namespace qv_commons::desktop {

class StyleBoundary final : public QLabel {
 public:
  explicit StyleBoundary(QWidget* parent);

  const QMetaObject* metaObject() const override;

 private:
  QObject nobody_;
};

}  // namespace qv_commons::desktop
