// A question to the desktop's portal that nobody waits for.
#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>

class QDBusPendingCallWatcher;

namespace qv_commons::desktop {

inline constexpr const char* kPortalService = "org.freedesktop.portal.Desktop";
inline constexpr const char* kPortalPath = "/org/freedesktop/portal/desktop";

// Asked when it is made, once. Main thread only.
class PortalQuestion {
 public:
  // Calls `method` of `interface`; `answered` from the event loop, whatever came of it.
  PortalQuestion(const QString& interface, const QString& method, const QVariantList& arguments,
                 std::function<void()> answered = nullptr);
  ~PortalQuestion();
  PortalQuestion(const PortalQuestion&) = delete;
  PortalQuestion& operator=(const PortalQuestion&) = delete;

  // Until there is an answer, or it is known that there will be none.
  bool isOpen() const;

  // The first value of the answer, without the variants around it; std::nullopt while the question
  // is open, and where there is no portal or it has none.
  std::optional<QVariant> answer() const;

 private:
  std::unique_ptr<QDBusPendingCallWatcher> call_;  // null where nobody was asked
};

}  // namespace qv_commons::desktop
