// Takes the place of the desktop's web browser.
#pragma once

#include <QObject>
#include <QUrl>
#include <string>
#include <vector>

namespace qv_commons::desktop {

// Receives, for as long as it lives, what is opened with `scheme`.
class UrlCatcher : public QObject {
  Q_OBJECT

 public:
  explicit UrlCatcher(QString scheme);
  ~UrlCatcher() override;

  const std::vector<std::string>& urls() const { return urls_; }

 public Q_SLOTS:
  void take(const QUrl& url);

 private:
  QString scheme_;
  std::vector<std::string> urls_;
};

}  // namespace qv_commons::desktop
