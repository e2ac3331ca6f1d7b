#include "desktop/platform/mail_message.h"

#include <gmime/gmime.h>

#include <array>
#include <memory>
#include <system_error>
#include <utility>

#include "base/line_file.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr const char* Charset = "utf-8";

struct Release {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <class Object>
using Owned = std::unique_ptr<Object, Release>;

struct ReleaseOptions {
  void operator()(GMimeFormatOptions* options) const { g_mime_format_options_free(options); }
};

bool EndsALine(char16_t c) {
  return c < u' ' || (c >= 0x7F && c <= 0x9F) || c == u'\u2028' || c == u'\u2029';
}

const char* MimeTypeOf(const Text& name) {
  static constexpr std::array<std::pair<TextView, const char*>, 5> Types{{
      {u".doc", "application/msword"},
      {u".docx", "application/vnd.openxmlformats-officedocument.wordprocessingml.document"},
      {u".odt", "application/vnd.oasis.opendocument.text"},
      {u".pdf", "application/pdf"},
      {u".rtf", "application/rtf"},
  }};
  const Text lower = LowerCase(name);
  for (const auto& [ending, type] : Types)
    if (lower.ends_with(ending)) return type;
  return "application/octet-stream";
}

Owned<GMimePart> Part(const char* type, std::string_view bytes, GMimeContentEncoding encoding) {
  const std::string_view whole = type;
  const auto slash = whole.find('/');
  Owned<GMimePart> part{
      g_mime_part_new_with_type(std::string{whole.substr(0, slash)}.c_str(), type + slash + 1)};
  const Owned<GMimeStream> stream{g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size())};
  const Owned<GMimeDataWrapper> content{
      g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT)};
  g_mime_part_set_content(part.get(), content.get());
  g_mime_part_set_content_encoding(part.get(), encoding);
  return part;
}

Owned<GMimePart> TextPart(TextView text) {
  const std::string bytes = ToUtf8(ReplaceAll(text, LineEnd, u"\n"));
  auto part = Part("text/plain", bytes, GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE);
  g_mime_object_set_content_type_parameter(GMIME_OBJECT(part.get()), "charset", Charset);
  return part;
}

Owned<GMimePart> AttachmentPart(const PreparedMail::Attachment& attachment) {
  const fs::path file = PathOf(attachment.path);
  const auto bytes = ReadBytes(file);
  if (!bytes) return {};
  const Text name =
      OneLine(attachment.name.empty() ? TextOf(file.filename()).value_or(Text{}) : attachment.name);
  auto part = Part(MimeTypeOf(name), *bytes, GMIME_CONTENT_ENCODING_BASE64);
  g_mime_object_set_disposition(GMIME_OBJECT(part.get()), GMIME_DISPOSITION_ATTACHMENT);
  g_mime_part_set_filename(part.get(), ToUtf8(name).c_str());
  return part;
}

void Address(GMimeMessage* message, const Text& recipient) {
  const std::string to = ToUtf8(OneLine(recipient));
  const Owned<InternetAddressList> list{internet_address_list_parse(nullptr, to.c_str())};
  if (list)
    internet_address_list_append(g_mime_message_get_addresses(message, GMIME_ADDRESS_TYPE_TO), list.get());
  else if (!to.empty())  // no address, and kept all the same for the user to mend
    g_mime_object_set_header(GMIME_OBJECT(message), "To", to.c_str(), Charset);
}

// The subject as a part of a file name.
Text FileNamePart(const Text& subject) {
  constexpr TextView Forbidden = u"/\\:*?\"<>|";
  constexpr std::size_t Longest = 60;
  Text part = OneLine(subject).substr(0, Longest);
  for (char16_t& c : part)
    if (Contains(Forbidden, TextView{&c, 1}) || (c >= 0xD800 && c <= 0xDFFF)) c = u' ';
  return Text{TrimBlanks(part)};
}

}  // namespace

Text OneLine(TextView text) {
  Text line{text};
  for (char16_t& c : line)
    if (EndsALine(c)) c = u' ';
  return line;
}

std::string MimeOf(const PreparedMail& mail) {
  g_mime_init();
  const Owned<GMimeMessage> message{g_mime_message_new(TRUE)};
  Address(message.get(), mail.recipient);
  g_mime_message_set_subject(message.get(), ToUtf8(OneLine(mail.subject)).c_str(), Charset);
  // Mail clients open a message with this mark for writing.
  g_mime_object_set_header(GMIME_OBJECT(message.get()), "X-Unsent", "1", nullptr);

  const Owned<GMimeMultipart> parts{g_mime_multipart_new_with_subtype("mixed")};
  g_mime_multipart_add(parts.get(), GMIME_OBJECT(TextPart(mail.text).get()));
  for (const auto& attachment : mail.attachments)
    if (const auto part = AttachmentPart(attachment))
      g_mime_multipart_add(parts.get(), GMIME_OBJECT(part.get()));
  g_mime_message_set_mime_part(message.get(), GMIME_OBJECT(parts.get()));

  const std::unique_ptr<GMimeFormatOptions, ReleaseOptions> options{g_mime_format_options_new()};
  g_mime_format_options_set_newline_format(options.get(), GMIME_NEWLINE_FORMAT_DOS);
  const std::unique_ptr<char, decltype(&g_free)> bytes{
      g_mime_object_to_string(GMIME_OBJECT(message.get()), options.get()), &g_free};
  return bytes.get();
}

std::optional<fs::path> LeaveMessage(const PreparedMail& mail, const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  const Text subject = FileNamePart(mail.subject);
  const Text stem = subject.empty() ? Text{u"Message à envoyer"} : u"Message à envoyer - " + subject;
  constexpr int MostOfOneName = 1000;
  for (int copy = 1; copy <= MostOfOneName; ++copy) {
    const Text number = copy == 1 ? Text{} : u" (" + NumberText(copy) + u")";
    const fs::path file = FileIn(folder, stem + number + u".eml");
    if (fs::exists(fs::symlink_status(file, error))) continue;
    if (WriteBytes(file, MimeOf(mail)).Failed()) return std::nullopt;
    return file;
  }
  return std::nullopt;
}

}  // namespace talvor
