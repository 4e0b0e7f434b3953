#include "qv_commons/platform/desktop/outcome.h"

namespace qv_commons::desktop {

// Each place once, in the text alone: an argument may hold "%2" itself.
std::string filled(std::string_view text, const Sentence& sentence) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPlace = text[i] == '%' && i + 1 < text.size() && text[i + 1] > '0' &&
                         static_cast<std::size_t>(text[i + 1] - '0') <= sentence.arguments.size();
    if (isPlace) {
      result += sentence.arguments[static_cast<std::size_t>(text[++i] - '1')];
    } else {
      result += text[i];
    }
  }
  return sentence.quoted.empty() ? result : result + " (" + sentence.quoted + ")";
}

std::string inEnglish(const Sentence& sentence) {
  return filled(sentence.english, sentence);
}

}  // namespace qv_commons::desktop
