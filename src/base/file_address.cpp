#include "base/file_address.h"

#include <string_view>

namespace talvor {

Text FileAddress(const std::filesystem::path& file) {
  static constexpr TextView Hexadecimal = u"0123456789ABCDEF";
  static constexpr std::string_view Plain = "-._~/";
  Text address = u"file://";
  for (const char byte : std::filesystem::absolute(file).string()) {
    const auto code = static_cast<unsigned char>(byte);
    const bool letterOrDigit =
        (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
    if (letterOrDigit || Plain.find(byte) != std::string_view::npos)
      address += static_cast<char16_t>(code);
    else
      address.append({u'%', Hexadecimal[code / 16], Hexadecimal[code % 16]});
  }
  return address;
}

}  // namespace talvor
