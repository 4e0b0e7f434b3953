// How an operation of the desktop adapter says that it failed: in a sentence for the user.
//
//     if (const Failure failure = makePrivateFolder(folder)) showNotice(words(*failure));
//     const Result<MailMessage> draft = readDraft(path);
//     if (!draft.value) showNotice(words(*draft.failure));
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qv_commons::desktop {

// In English, which `Words` puts into the user's language. Each has a translation in translations/.
struct Sentence {
  explicit Sentence(const char* text, std::vector<std::string> about = {})
      : english(text), arguments(std::move(about)) {}

  const char* english;                 // "%1" stands for the first argument, "%2" for the second
  std::vector<std::string> arguments;  // as they are in every language
  std::string quoted = {};             // what another program says of it
};

// `text`, which is the English or a translation, with the arguments in it and the quotation behind
// it.
std::string filled(std::string_view text, const Sentence& sentence);

// For a host, and nobody else.
std::string inEnglish(const Sentence& sentence);

// Why nothing was done; std::nullopt if it was.
using Failure = std::optional<Sentence>;

template <class T>
struct Result {
  std::optional<T> value;
  Failure failure = {};  // why there is no value
};

}  // namespace qv_commons::desktop
