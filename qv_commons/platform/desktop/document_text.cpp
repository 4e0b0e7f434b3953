#include "qv_commons/platform/desktop/document_text.h"

#include <QTextCharFormat>
#include <QTextCursor>
#include <utility>

namespace qv_commons::desktop {

DocumentText::DocumentText(const QTextDocument& document, std::vector<LinkRun> links)
    : document_(document.clone()), links_(std::move(links)) {}

// Without the mark that ends every document.
std::size_t DocumentText::length() const {
  return static_cast<std::size_t>(document_->characterCount() - 1);
}

void DocumentText::addLink(std::string_view value, TextRange range) {
  QTextCharFormat format;
  format.setAnchor(true);
  format.setAnchorHref(QString::number(links_.size()));
  format.setFontUnderline(false);
  cursorAt(*document_, range).mergeCharFormat(format);
  links_.push_back({std::string(value), range});
}

QTextCursor cursorAt(QTextDocument& document, TextRange range) {
  QTextCursor cursor(&document);
  cursor.setPosition(static_cast<int>(range.location));
  cursor.setPosition(static_cast<int>(range.location + range.length), QTextCursor::KeepAnchor);
  return cursor;
}

}  // namespace qv_commons::desktop
