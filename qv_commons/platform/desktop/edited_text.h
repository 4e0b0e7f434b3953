// A text that a person edits in a widget that can't hold all of its bytes.
//
// Text widgets know one kind of line end and no bytes that are not UTF-8, and take minutes to lay
// out a line of a million letters, so such lines are shown as several. Lines that the person leaves
// alone keep the bytes and line ends that they came with:
//
//     const EditedText text("first\r\nlast\r\n");
//     std::string bytes = text.bytesOf("new\nlast\n");  // "new\nlast\r\n"
#pragma once

#include <QString>
#include <string>

namespace qv_commons::desktop {

class EditedText {
 public:
  EditedText() = default;
  explicit EditedText(std::string original) : original_(std::move(original)) {}

  // For the widget: UTF-16 with "\n" line ends.
  QString shown() const;

  // The bytes of what the widget holds now.
  std::string bytesOf(const QString& edited) const;

 private:
  std::string original_;
};

}  // namespace qv_commons::desktop
