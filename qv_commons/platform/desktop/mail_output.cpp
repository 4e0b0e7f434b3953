#include "qv_commons/platform/desktop/mail_output.h"

#include <algorithm>
#include <sys/mman.h>

#include "qv_commons/platform/desktop/mail_drafts.h"

namespace qv_commons::desktop {

void MailOutput::write(Use use, const std::atomic<bool>& isStopped) {
  noDraft_ =
      writeDraft(folder_, name_, [&](const MailSink& sink) { return writeTo(sink, isStopped); });
  wasStopped_ = isStopped;
  if (!noDraft_ || wasStopped_) return;
  if (use == Use::keep) {
    failure_ = noDraft_;
    return;
  }
  memory_ = std::make_unique<FileDescriptor>(::memfd_create("message", MFD_CLOEXEC));
  const bool done =
      memory_->isOpen() &&
      writeTo([this](std::string_view bytes) { return writeAll(*memory_, bytes); }, isStopped);
  wasStopped_ = isStopped;
  if (!done) failure_ = Sentence("There is no room for the message: %1.", {describeError(errno)});
}

bool MailOutput::writeTo(const MailSink& sink, const std::atomic<bool>& isStopped) {
  written_ = 0;
  return writeMailMessage(message_, [&](std::string_view bytes) {
    written_ += bytes.size();
    return !isStopped && sink(bytes);
  });
}

double MailOutput::progress() const {
  const auto all = static_cast<double>(estimateMailSize(message_));
  return std::min(1.0, static_cast<double>(written_) / all);
}

std::string MailOutput::file() const {
  if (memory_) return "/proc/self/fd/" + std::to_string(memory_->number());
  return folder_ + "/" + name_;
}

}  // namespace qv_commons::desktop
