// A text that a person edits in a widget that can't hold all of its bytes.
//
// Text widgets know one kind of line end and no bytes that are not UTF-8, and take minutes to lay
// out a line of a million letters, so such lines are shown as several. Each edit is taken in where
// it happens, and everything else keeps the bytes and line ends that it came with:
//
//     EditedText text("first\r\nlast\r\n");   // shown as "first\nlast\n"
//     text.replace(0, 5, "new");               // the user types over the first word
//     std::string bytes = text.bytes();        // "new\r\nlast\r\n"
//
// They also take seconds to fill with a million lines: of a text of more than 2,000 lines or 200 KB
// only the beginning is shown and can be edited.
//
// Places and lengths count UTF-16 code units of what is shown.
#pragma once

#include <QString>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qv_commons::desktop {

class EditedText {
 public:
  EditedText() : EditedText(std::string()) {}
  explicit EditedText(std::string original);

  // For the widget: UTF-16 with "\n" line ends, as it is now.
  QString shown() const { return shown(0, size()); }
  std::size_t size() const;

  // How many bytes follow that are not shown.
  std::size_t hiddenBytes() const { return original_.size() - lines_.back().byte; }

  // The widget holds `inserted` in the place of `removed` units at `position`. What is the same
  // before and after counts as left alone.
  void replace(std::size_t position, std::size_t removed, const QString& inserted);

  std::string bytes() const;

 private:
  // A line of the original, or a piece of one that is too long.
  struct Line {
    std::size_t byte;       // where it starts
    std::size_t unit;       // the same in what is shown
    std::uint8_t endBytes;  // "\n", "\r", "\r\n" or, within a line that is too long, ""
  };

  // A stretch of the original, by the units of the original's picture, or of what was typed.
  struct Span {
    bool isTyped;
    std::size_t begin;
    std::size_t end;
    QString typed;

    std::size_t size() const {
      return isTyped ? static_cast<std::size_t>(typed.size()) : end - begin;
    }
  };

  std::string_view lineBytes(std::size_t line) const;
  std::size_t lineOfUnit(std::size_t unit) const;
  std::size_t byteOfUnit(std::size_t unit) const;
  QString shownOriginal(std::size_t begin, std::size_t end) const;
  QString shown(std::size_t begin, std::size_t end) const;
  std::size_t splitAt(std::size_t position);
  void insert(std::size_t at, const QString& text);

  std::string original_;
  std::vector<Line> lines_;  // those that are shown, and one more, for their end
  std::vector<Span> spans_;
};

}  // namespace qv_commons::desktop
