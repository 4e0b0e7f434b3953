// A message on its way to a draft and to a mail program.
#pragma once

#include <atomic>
#include <string>

#include "qv_commons/platform/desktop/file_descriptor.h"
#include "qv_commons/platform/desktop/mail_message.h"
#include "qv_commons/platform/desktop/outcome.h"

namespace qv_commons::desktop {

class MailOutput {
 public:
  enum class Use : std::uint8_t { keep, send };

  MailOutput(MailMessage message, std::string folder, std::string name)
      : message_(std::move(message)), folder_(std::move(folder)), name_(std::move(name)) {}

  // Writes the message as a draft; what is to be sent goes to the memory where no draft can be
  // written. Any thread; once.
  void write(Use use, const std::atomic<bool>& isStopped);

  // How far it is, from 0 to 1; any thread.
  double progress() const;

  // To be asked once it is written.
  bool wasStopped() const { return wasStopped_; }
  const Failure& noDraft() const { return noDraft_; }
  const Failure& failure() const { return failure_; }  // there is neither a draft nor a file
  std::string file() const;                            // that holds the message

 private:
  bool writeTo(const MailSink& sink, const std::atomic<bool>& isStopped);

  MailMessage message_;
  std::string folder_;
  std::string name_;
  std::atomic<std::size_t> written_ = 0;
  bool wasStopped_ = false;
  Failure noDraft_;
  Failure failure_;
  std::unique_ptr<FileDescriptor> memory_;
};

}  // namespace qv_commons::desktop
