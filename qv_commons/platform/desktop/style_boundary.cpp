#include "qv_commons/platform/desktop/style_boundary.h"

#include <QMetaObject>
#include <QVariant>

namespace qv_commons::desktop {
namespace {

// As Qt's compiler for meta objects writes the texts: place and length of each, then the
// characters.
struct Texts {
  uint place = 2 * sizeof(uint);
  uint length = 9;
  char characters[10] = "QTipLabel";
};

}  // namespace

StyleBoundary::StyleBoundary(QWidget* parent) : QLabel(parent) {
  setProperty("_q_stylesheet_parent", QVariant::fromValue<QObject*>(&nobody_));
}

const QMetaObject* StyleBoundary::metaObject() const {
  static const Texts texts;
  static const uint kNoMembers[14] = {
      10};  // the format's number; the class's name is the first text
  static const QMetaObject made{{QMetaObject::SuperData(&QLabel::staticMetaObject),
                                 reinterpret_cast<const uint*>(&texts), kNoMembers, nullptr,
                                 nullptr, nullptr, nullptr}};
  return &made;
}

}  // namespace qv_commons::desktop
