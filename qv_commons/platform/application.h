// The running application: its console, and the links that it opens.
#pragma once

#include <string_view>

namespace qv_commons {

class URL;

class Application {
 public:
  virtual ~Application() = default;

  // Prints `line`, one of the library's two diagnostic lines, and a line end. Any thread.
  virtual void print(std::string_view line) = 0;

  // Asks the system to open the link in whatever program it is for. Returns at once; what becomes
  // of it is not told. Main thread.
  virtual void openURL(const URL& url) = 0;
};

}  // namespace qv_commons
