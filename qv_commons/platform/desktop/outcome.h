// How an operation of the desktop adapter says that it failed: in a sentence for the user.
//
//     if (const Failure failure = writeDraft(folder, name, bytes)) showNotice(*failure);
//     const Result<Settings> read = readSettings();
//     if (!read.value) showNotice(read.failure);
#pragma once

#include <optional>
#include <string>

namespace qv_commons::desktop {

// Why nothing was done; std::nullopt if it was.
using Failure = std::optional<std::string>;

template <class T>
struct Result {
  std::optional<T> value;
  std::string failure;  // why there is no value
};

}  // namespace qv_commons::desktop
