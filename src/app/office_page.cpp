#include "app/office_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "app/picture.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"
#include "cv/model_files.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

// Elements that fetch something, and `meta`, whose character set no longer holds.
constexpr std::array<TextView, 17> LeftOut{u"applet", u"audio", u"base",  u"bgsound", u"embed",   u"frame",
                                           u"iframe", u"image", u"input", u"link",    u"meta",    u"object",
                                           u"source", u"svg",   u"track", u"video",   u"frameset"};

// The attributes that say how a text looks or where it leads; any other may fetch or run something.
constexpr std::array<TextView, 27> Kept{
    u"align", u"bgcolor", u"border",  u"bordercolor", u"cellpadding", u"cellspacing", u"class",
    u"color", u"colspan", u"dir",     u"face",        u"height",      u"href",        u"id",
    u"lang",  u"name",    u"noshade", u"nowrap",      u"rowspan",     u"rules",       u"size",
    u"start", u"style",   u"title",   u"type",        u"valign",      u"width"};

bool IsAsciiLetter(char16_t c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }
bool IsBlank(char16_t c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == u'\f'; }

// `what` is in lower case.
std::size_t FindAnyCase(TextView text, TextView what, std::size_t from) {
  for (std::size_t at = from; at + what.size() <= text.size(); ++at)
    if (LowerCase(text.substr(at, what.size())) == what) return at;
  return TextView::npos;
}

// Replaces `what` (in lower case) by `by`, both of the same length, without regard to case.
void BlankOut(Text& text, TextView what, TextView by) {
  for (std::size_t at = 0; (at = FindAnyCase(text, what, at)) != Text::npos; at += by.size())
    text.replace(at, what.size(), by);
}

// A style fetches what stands in url(...) and behind @import.
void Disarm(Text& styled) {
  BlankOut(styled, u"url(", u"non(");
  BlankOut(styled, u"@import", u"@ignore");
  for (const TextView spelling : {u"\\", u"&#"}) {  // the same in other words
    for (std::size_t at = 0; (at = styled.find(spelling, at)) != Text::npos;) styled[at] = u' ';
  }
  // Markup hidden in markup.
  std::replace(styled.begin(), styled.end(), u'<', u' ');
}

// The end of the tag that begins at `from`, behind its ">". A quote counts behind a "=" alone.
std::size_t TagEnd(TextView page, std::size_t from) {
  char16_t quote = 0;
  char16_t before = 0;  // the last character that was no blank
  for (std::size_t at = from; at < page.size(); ++at) {
    const char16_t c = page[at];
    if (quote != 0)
      quote = c == quote ? u'\0' : quote;
    else if (before == u'=' && (c == u'"' || c == u'\''))
      quote = c;
    else if (c == u'>')
      return at + 1;
    if (!IsBlank(c)) before = c;
  }
  return page.size();
}

bool BeginsMarkup(TextView text) {
  return text.size() > 1 && (IsAsciiLetter(text[1]) || text[1] == u'/' || text[1] == u'!' || text[1] == u'?');
}

// «/img» for «</IMG>».
Text TagName(TextView tag) {
  std::size_t end = 1;
  while (end < tag.size() && !IsBlank(tag[end]) && tag[end] != u'>' && (end == 1 || tag[end] != u'/')) ++end;
  return LowerCase(tag.substr(1, end - 1));
}

// «h1», «/p»; declarations and what another reader might divide otherwise are none.
bool IsElementName(TextView name) {
  if (name.starts_with(u'/')) name.remove_prefix(1);
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char16_t c) {
    return IsAsciiLetter(c) || (c >= u'0' && c <= u'9');
  });
}

struct Attribute {
  Text name;  // in lower case
  std::optional<Text> value;
};

std::vector<Attribute> AttributesOf(TextView tag) {
  std::vector<Attribute> found;
  std::size_t at = 1 + TagName(tag).size();
  const auto skipBlanks = [&] {
    while (at < tag.size() && IsBlank(tag[at])) ++at;
  };
  while (at < tag.size()) {
    const std::size_t begin = at;
    while (at < tag.size() && (IsAsciiLetter(tag[at]) || tag[at] == u'-')) ++at;
    if (at == begin) {
      ++at;
      continue;
    }
    found.push_back({LowerCase(tag.substr(begin, at - begin)), std::nullopt});
    skipBlanks();
    if (at == tag.size() || tag[at] != u'=') continue;
    ++at;
    skipBlanks();
    const bool quoted = at < tag.size() && (tag[at] == u'"' || tag[at] == u'\'');
    const std::size_t value = at + (quoted ? 1 : 0);
    std::size_t end = value;
    while (end < tag.size() && (quoted ? tag[end] != tag[at] : !IsBlank(tag[end]) && tag[end] != u'>')) ++end;
    found.back().value = tag.substr(value, end - value);
    at = quoted ? end + 1 : end;
  }
  return found;
}

// The value of an attribute, `name` in lower case; nothing without one.
std::optional<Text> ValueOf(const std::vector<Attribute>& attributes, TextView name) {
  for (const Attribute& attribute : attributes)
    if (attribute.name == name && attribute.value) return attribute.value;
  return std::nullopt;
}

// As it stands in the copy; empty for a value that would end before its time.
Text Written(const Attribute& attribute) {
  if (!attribute.value) return u' ' + attribute.name;
  if (Contains(*attribute.value, u"\"")) return {};
  Text disarmed = *attribute.value;
  Disarm(disarmed);
  return u' ' + attribute.name + u"=\"" + disarmed + u'"';
}

// The tag anew, with what may stay of it.
Text HarmlessTag(TextView tag, const Text& name) {
  Text copy = u'<' + name;
  for (const Attribute& attribute : AttributesOf(tag))
    if (std::find(Kept.begin(), Kept.end(), attribute.name) != Kept.end()) copy += Written(attribute);
  return copy + u'>';
}

std::string Base64(std::string_view bytes) {
  constexpr std::string_view Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::uint32_t group = 0;
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    for (std::size_t k = 0; k < 3; ++k)
      group = group << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0U);
    for (std::size_t k = 0; k < 4; ++k) text += k <= count ? Digits[group >> (18 - 6 * k) & 63U] : '=';
  }
  return text;
}

// The picture inside the page with both its measures; empty for one that does not lie in the folder.
Text EmbeddedPicture(TextView tag, const std::filesystem::path& folder) {
  constexpr double WidestWidth = 2000;
  const auto attributes = AttributesOf(tag);
  const auto name = ValueOf(attributes, u"src");
  if (!name || !IsBareName(*name)) return {};
  const auto file = ExistingFile(FileIn(folder, *name));
  if (!file) return {};
  const auto bytes = ReadBytes(*file);
  const auto kind = bytes ? PictureKindOf(*bytes) : std::nullopt;
  if (!kind) return {};
  double width = ValeurNumerique(ValueOf(attributes, u"width").value_or(Text{}));
  if (width < 1 || width > WidestWidth) width = std::min<double>(kind->width, WidestWidth);
  const double height = std::max(1.0, width * kind->height / kind->width);
  const auto style = ValueOf(attributes, u"style");
  return u"<img" + (style ? Written({u"style", style}) : Text{}) + u" src=\"data:" +
         *FromUtf8(kind->mimeType) + u";base64," + *FromUtf8(Base64(*bytes)) + u"\" width=" +
         NumberText(static_cast<long long>(width)) + u" height=" +
         NumberText(static_cast<long long>(height + 0.5)) + u">";
}

class PageCopy {
 public:
  PageCopy(TextView page, const std::filesystem::path& folder) : page_(page), folder_(folder) {}

  Text Make() {
    while (at_ < page_.size()) {
      const auto tag = page_.find(u'<', at_);
      copy_ += page_.substr(at_, tag - at_);
      if (tag == TextView::npos) break;
      at_ = tag;
      TakeMarkup();
    }
    return std::move(copy_);
  }

 private:
  void TakeMarkup() {
    if (!BeginsMarkup(page_.substr(at_))) {
      copy_ += page_[at_++];
      return;
    }
    if (page_.substr(at_).starts_with(u"<!--")) return Skip(u"-->");
    const std::size_t end = TagEnd(page_, at_);
    const TextView tag = page_.substr(at_, end - at_);
    const Text name = TagName(tag);
    at_ = end;
    if (name == u"script") return Skip(u"</script>");
    if (name == u"img") {
      copy_ += EmbeddedPicture(tag, folder_);
      return;
    }
    if (std::find(LeftOut.begin(), LeftOut.end(), name) != LeftOut.end()) return;
    if (!IsElementName(name)) return;
    copy_ += HarmlessTag(tag, name);
    if (name == u"style") TakeStyleSheet();
  }

  void TakeStyleSheet() {
    const auto end = std::min(FindAnyCase(page_, u"</style", at_), page_.size());
    Text sheet = ReplaceAll(page_.substr(at_, end - at_), u"<!--", {});
    Disarm(sheet);
    copy_ += sheet;
    at_ = end;
  }

  void Skip(TextView end) {
    const auto found = FindAnyCase(page_, end, at_);
    at_ = found == TextView::npos ? page_.size() : found + end.size();
  }

  TextView page_;
  const std::filesystem::path& folder_;
  std::size_t at_ = 0;
  Text copy_;
};

// Every character outside ASCII as a reference, so that no character set is to be told.
std::string InAscii(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    const bool pair =
        c >= 0xD800 && c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
    if (pair) c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
    if (c < 0x80)
      bytes += static_cast<char>(c);
    else
      bytes += "&#" + std::to_string(static_cast<std::uint32_t>(c)) + ";";
  }
  return bytes;
}

}  // namespace

std::string OfficePage(TextView page, const std::filesystem::path& folder) {
  return InAscii(PageCopy(page, folder).Make());
}

}  // namespace talvor
