// A text with its attributes as a Qt document, and the values of its links.
#pragma once

#include <QColor>
#include <QTextDocument>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/platform/views.h"

namespace qv_commons::desktop {

struct LinkRun {
  std::string value;  // as it was given, whether or not it is a URL
  TextRange range;
};

// The links are marked in the document by their place in `links()`, so that no value is ever taken
// for a URL and written another way.
class DocumentText final : public AttributedString {
 public:
  // A copy of `document`, whose links are `links`.
  DocumentText(const QTextDocument& document, std::vector<LinkRun> links);

  std::size_t length() const override;
  void addLink(std::string_view value, TextRange range) override;

  const QTextDocument& document() const { return *document_; }
  const std::vector<LinkRun>& links() const { return links_; }

 private:
  std::unique_ptr<QTextDocument> document_;
  std::vector<LinkRun> links_;
};

// The cursor that has selected `range` of `document`.
QTextCursor cursorAt(QTextDocument& document, TextRange range);

}  // namespace qv_commons::desktop
