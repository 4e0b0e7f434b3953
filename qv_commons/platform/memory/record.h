// What was asked of the memory adapter, in order.
//
//     qv_commons::memory::Record record;
//     record.add("canSendMail");
//     bool asked = record.lines().back() == "canSendMail";
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qv_commons::memory {

class Record {
 public:
  // One line for each operation, for example `composer1.setSubject "Help"`; the oldest first.
  const std::vector<std::string>& lines() const { return lines_; }
  void clear() { lines_.clear(); }

  // A paused record takes no lines and allocates nothing; for measurements.
  void setPaused(bool paused) { paused_ = paused; }

  // Adds the line that the pieces make together.
  template <class... Pieces>
  void add(const Pieces&... pieces) {
    if (paused_) return;
    std::string line;
    (line.append(pieces), ...);
    lines_.push_back(std::move(line));
  }

 private:
  std::vector<std::string> lines_;
  bool paused_ = false;
};

// `text` in double quotes, for a line of the record; not "quoted", which is also in namespace std.
inline std::string inQuotes(std::string_view text) {
  std::string line = "\"";
  line.append(text).append("\"");
  return line;
}

}  // namespace qv_commons::memory
