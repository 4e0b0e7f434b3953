// Mail by the portal of the desktop, whose own composer opens.
//
// https://flatpak.github.io/xdg-desktop-portal: org.freedesktop.portal.Email
#pragma once

#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include "qv_commons/platform/desktop/mail_hand_over.h"

class QWidget;

namespace qv_commons::desktop {

inline constexpr const char* kMailPortalInterface = "org.freedesktop.portal.Email";

// Waits for the portal without end, since it may be asking the user; for its first answer alone
// there is a limit.
class PortalMail final : public QObject, public MailHandOver {
  Q_OBJECT

 public:
  // What the portal shows belongs to `window`.
  PortalMail(const HandedMail& mail, const QWidget* window, Done done);
  ~PortalMail() override;

 private:
  Q_SLOT void onResponse(uint response, const QVariantMap& results);
  void listenTo(const QString& request);
  void onAccepted();
  void finish(Outcome outcome, const Failure& failure = {});

  Done done_;
  QString request_;
  std::unique_ptr<QDBusPendingCallWatcher> call_;
  std::unique_ptr<QDBusServiceWatcher> portal_;
};

}  // namespace qv_commons::desktop
