// The running application, as far as it opens links.
#pragma once

#include <string_view>

namespace qv_commons {

class Application {
 public:
  virtual ~Application() = default;

  // Asks the system to open the link in whatever program it is for. Returns at once; what becomes
  // of it is not told. Main thread.
  virtual void openURL(std::string_view url) = 0;
};

}  // namespace qv_commons
