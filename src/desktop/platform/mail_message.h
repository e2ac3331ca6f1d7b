// A prepared message as a file: MIME, UTF-8, attachments in, marked as not sent yet.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/text.h"

namespace talvor {

struct PreparedMail {
  struct Attachment {
    Text path;
    Text name;  // the name it bears in the message; that of its file when empty
  };
  Text recipient;
  Text subject;
  Text text;  // lines end in CR LF
  std::vector<Attachment> attachments;
};

// A text on one line: whatever could end a header or a line is a blank.
[[nodiscard]] Text OneLine(TextView text);

// The message; an attachment that cannot be read is left out.
[[nodiscard]] std::string MimeOf(const PreparedMail& mail);

// Writes the message into a folder, which is made when needed, under a name that tells its subject and
// that no other file bears. The file, or nothing when it could not be written.
[[nodiscard]] std::optional<std::filesystem::path> LeaveMessage(const PreparedMail& mail,
                                                                const std::filesystem::path& folder);

}  // namespace talvor
