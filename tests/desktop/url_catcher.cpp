#include "tests/desktop/url_catcher.h"

#include <QDesktopServices>
#include <utility>

namespace qv_commons::desktop {

UrlCatcher::UrlCatcher(QString scheme) : scheme_(std::move(scheme)) {
  QDesktopServices::setUrlHandler(scheme_, this, "take");
}

UrlCatcher::~UrlCatcher() {
  QDesktopServices::unsetUrlHandler(scheme_);
}

void UrlCatcher::take(const QUrl& url) {
  urls_.push_back(url.toString(QUrl::FullyEncoded).toStdString());
}

}  // namespace qv_commons::desktop
