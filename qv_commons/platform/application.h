// The running application, as far as it opens links.
#pragma once

namespace qv_commons {

class URL;

class Application {
 public:
  virtual ~Application() = default;

  // Asks the system to open the link in whatever program it is for. Returns at once; what becomes
  // of it is not told. Main thread.
  virtual void openURL(const URL& url) = 0;
};

}  // namespace qv_commons
