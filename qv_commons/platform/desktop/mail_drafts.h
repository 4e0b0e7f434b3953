// Messages kept as files, in a folder for the user's eyes alone.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/mail_message.h"
#include "qv_commons/platform/desktop/outcome.h"

namespace qv_commons::desktop {

// Writes the file `name` in `directory`, which is made (mode 0700) where it is missing; readable by
// the user alone (mode 0600). At every instant the file holds all of its old or all of its new
// bytes, and when this returns they are on the disk. `write` says whether it went to its end; if it
// didn't, the old file stays.
Failure writeDraft(const std::string& directory, const std::string& name,
                   const std::function<bool(const MailSink&)>& write);

// Takes away what a killed writer has left in `directory`.
void removeUnfinishedDrafts(const std::string& directory);

struct DraftSummary {
  std::string name;  // of the file
  std::string subject;
  std::int64_t written = 0;  // seconds since 1970
};

// The drafts in `directory`, the last one first. Reads the beginning of each.
std::vector<DraftSummary> listDrafts(const std::string& directory);

// The message in a file; only what a composer shows is filled in.
Result<MailMessage> readDraft(const std::string& path);

}  // namespace qv_commons::desktop
