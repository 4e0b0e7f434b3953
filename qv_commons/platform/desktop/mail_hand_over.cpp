#include "qv_commons/platform/desktop/mail_hand_over.h"

#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

#include "qv_commons/platform/desktop/file_descriptor.h"
#include "qv_commons/platform/desktop/mail_addresses.h"
#include "qv_commons/platform/desktop/private_folder.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

constexpr std::size_t kWrittenPiece = 1 << 20;

// Of the 128 KB of an argument, what is left for the body beside addresses, subject and files.
constexpr std::size_t kLongestLinkedBody = 100'000;

// In English, like all that a support mail says by itself.
constexpr const char* kBodyIsAttached =
    "My message is in the attached file %1: it could not be handed over as text.";

// A link carries letters and digits as they stand, a line end as "%0D%0A", and any other byte as
// three characters.
std::size_t lengthInLink(std::string_view text) {
  std::size_t length = 0;
  for (const char c : text) {
    const bool isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    length += isPlain ? 1 : c == '\n' ? 6 : 3;
  }
  return length;
}

bool isLinkable(const MailMessage& message) {
  const std::string& body = message.body;
  return !message.isHTML && lengthInLink(body) <= kLongestLinkedBody &&
         body.find('\0') == std::string::npos && toUtf8(fromUtf8(body)) == body;
}

// The name alone: it must not lead out of its folder.
std::string fileNameOf(const MailAttachment& attachment) {
  const std::string& whole = attachment.fileName;
  const std::string name = whole.substr(whole.rfind('/') + 1);
  return name.empty() || name == "." || name == ".." ? "attachment" : name;
}

// Each file has one, so that no two of the same name meet.
std::string folderOf(const std::string& folder, const std::string& name, qsizetype number) {
  return folder + "/" + name + "-" + std::to_string(number);
}

bool writeFile(const std::string& path, std::string_view bytes, const std::atomic<bool>& isStopped,
               const std::function<void(std::size_t)>& took) {
  const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
  if (!file.isOpen()) return false;
  while (!bytes.empty() && !isStopped) {
    const std::string_view piece = bytes.substr(0, kWrittenPiece);
    if (!writeAll(file, piece)) return false;
    bytes.remove_prefix(piece.size());
    if (took) took(piece.size());
  }
  return !isStopped;
}

}  // namespace

Result<HandedMail> makeHandedMail(const MailMessage& message, const std::string& folder,
                                  const std::string& name, const std::atomic<bool>& isStopped,
                                  const std::function<void(std::size_t)>& took) {
  HandedMail mail;
  for (const std::string& address : splitAddresses(message.recipients)) {
    mail.addresses += fromUtf8(parseMailbox(address).value_or(Mailbox{"", address}).address);
  }
  mail.subject = fromUtf8(message.subject);
  std::vector<SharedAttachment> attachments = message.attachments;
  if (isLinkable(message)) {
    mail.body = fromUtf8(message.body);
  } else {
    const char* file = message.isHTML ? "Message.html" : "Message.txt";
    mail.body = QString(kBodyIsAttached).arg(file);
    attachments.push_back(
        std::make_shared<const MailAttachment>(MailAttachment{message.body, "", file}));
  }
  for (const SharedAttachment& attachment : attachments) {
    const std::string own = folderOf(folder, name, mail.files.size() + 1);
    if (Failure failure = makePrivateFolder(own)) return {std::nullopt, failure};
    const std::string path = own + "/" + fileNameOf(*attachment);
    if (!writeFile(path, attachment->data, isStopped, took)) {
      Failure failure = notWritten(path, errno);
      std::error_code ignored;
      std::filesystem::remove_all(own, ignored);
      return {std::nullopt, std::move(failure)};
    }
    mail.files += fromUtf8(path);
  }
  return {std::move(mail)};
}

void removeOldHandedMail(const std::string& folder) {
  constexpr std::time_t kWeek = 7 * 24 * 60 * 60;
  for (const std::filesystem::path& entry : entriesOf(folder)) {
    struct stat status = {};
    if (::stat(entry.c_str(), &status) != 0) continue;
    std::error_code ignored;
    if (status.st_mtime < std::time(nullptr) - kWeek) std::filesystem::remove_all(entry, ignored);
  }
}

}  // namespace qv_commons::desktop
