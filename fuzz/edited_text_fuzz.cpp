// A text under any edits: what nobody touched keeps its bytes, and the widget's text is the text's.
//
// An input is the number of edits, five bytes for each (place, length, letters to type), and the
// text.

#include <QString>
#include <algorithm>
#include <string>

#include "qv_commons/platform/desktop/edited_text.h"

#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using qv_commons::fuzz::check;
  constexpr std::size_t kEditSize = 5;
  if (size == 0) return 0;
  const std::size_t edits = data[0] % 8;
  if (size < 1 + edits * kEditSize) return 0;
  const std::uint8_t* edit = data + 1;
  const std::string original(
      qv_commons::fuzz::textOf(edit + edits * kEditSize, size - 1 - edits * kEditSize));

  qv_commons::desktop::EditedText text(original);
  check(text.bytes() == original, "what nobody edits stays");
  QString shown = text.shown();
  for (std::size_t i = 0; i < edits; ++i, edit += kEditSize) {
    const std::size_t place = (edit[0] * 256U + edit[1]) % (text.size() + 1);
    const std::size_t removed = std::min<std::size_t>(edit[2], text.size() - place);
    const QString typed(edit[3] % 8, QChar(edit[4] % 4 == 0 ? u'\n' : u'a'));
    text.replace(place, removed, typed);
    shown.replace(static_cast<qsizetype>(place), static_cast<qsizetype>(removed), typed);
    check(text.shown() == shown, "it is what the widget shows");
  }
  text.bytes();

  qv_commons::desktop::EditedText front(original);
  front.replace(0, 0, "typed");
  check(front.bytes() == "typed" + original, "typing before it leaves it alone");
  front.replace(0, 5, "");
  check(front.bytes() == original, "and so does taking that back");
  return 0;
}
