#include "common/text.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>

namespace common {

namespace {

class Converter {
 public:
  Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {
    // NOLINTNEXTLINE: the failure value of iconv_open is defined as this cast
    if (handle_ == reinterpret_cast<iconv_t>(-1)) {
      throw std::runtime_error("the C library has no CP932 conversion");
    }
  }
  ~Converter() { iconv_close(handle_); }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  /// Converts all of input. Where the input is damaged or has no counterpart, onError gets the
  /// remaining input, appends what shall stand there and returns how many bytes to skip.
  template <class OnError>
  std::string Convert(std::string_view input, OnError onError) {
    std::string output;
    std::string data(input);
    char* in = data.data();
    std::size_t inLeft = data.size();
    char buffer[4096];
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    while (inLeft > 0) {
      char* out = buffer;
      std::size_t outLeft = sizeof buffer;
      const std::size_t result = iconv(handle_, &in, &inLeft, &out, &outLeft);
      const int error = errno;
      output.append(buffer, sizeof buffer - outLeft);
      if (result == static_cast<std::size_t>(-1) && error != E2BIG) {
        const std::size_t skip = std::min(onError(std::string_view(in, inLeft), output), inLeft);
        in += skip;
        inLeft -= skip;
      }
    }
    return output;
  }

 private:
  iconv_t handle_;
};

Converter& Encoder() {
  static Converter converter("CP932", "UTF-8");
  return converter;
}

Converter& Decoder() {
  static Converter converter("UTF-8", "CP932");
  return converter;
}

/// Bytes of the UTF-8 character that text begins with, at least 1.
std::size_t CharacterLength(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80) {
    ++length;
  }
  return length;
}

}  // namespace

std::u32string CodePoints(std::string_view text) {
  std::u32string result;
  while (!text.empty()) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = CharacterLength(text);
    const std::size_t expected = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t point = lead < 0x80 ? lead : lead & (0x7FU >> expected);
    for (std::size_t i = 1; i < length; ++i) {
      point = (point << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    const bool damaged = length != expected || (lead >= 0x80 && lead < 0xC2) || point > 0x10FFFF;
    result += damaged ? U'\uFFFD' : point;
    text.remove_prefix(length);
  }
  return result;
}

std::string Utf8(std::u32string_view codePoints) {
  std::string text;
  for (const char32_t point : codePoints) {
    if (point < 0x80) {
      text += static_cast<char>(point);
      continue;
    }
    const int extra = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
    constexpr unsigned kLead[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(kLead[extra] | (point >> (6 * extra)));
    for (int i = extra - 1; i >= 0; --i) {
      text += static_cast<char>(0x80U | ((point >> (6 * i)) & 0x3FU));
    }
  }
  return text;
}

std::string ToCp932(std::string_view text) {
  return Encoder().Convert(text, [](std::string_view rest, std::string& output) {
    output += '?';
    return CharacterLength(rest);
  });
}

std::string FromCp932(std::string_view bytes) {
  return Decoder().Convert(bytes, [](std::string_view, std::string& output) {
    output += '?';
    return std::size_t{1};
  });
}

std::optional<std::string> FirstOutsideCp932(std::string_view text) {
  std::optional<std::string> found;
  Encoder().Convert(text, [&found](std::string_view rest, std::string&) {
    if (!found) found = std::string(rest.substr(0, CharacterLength(rest)));
    return rest.size();
  });
  return found;
}

std::string CodePageForm(const std::string& text) {
  return FirstOutsideCp932(text) ? text : FromCp932(ToCp932(text));
}

int Cp932Length(std::string_view text) {
  const bool ascii = std::all_of(text.begin(), text.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return static_cast<int>(ascii ? text.size() : ToCp932(text).size());
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

std::string UpperCase(std::string_view text) {
  std::u32string points = CodePoints(text);
  for (char32_t& c : points) {
    const auto within = [c](char32_t first, char32_t last) { return c >= first && c <= last; };
    if (within(U'a', U'z') || within(U'ａ', U'ｚ') || within(U'а', U'я') ||
        (within(U'α', U'ω') && c != U'ς')) {
      c -= 0x20;
    } else if (c == U'ё') {
      c = U'Ё';
    }
  }
  return Utf8(points);
}

std::string TruncateToBytes(std::string_view text, int n) {
  int bytes = 0;
  std::size_t end = 0;
  while (end < text.size()) {
    const std::size_t length = CharacterLength(text.substr(end));
    bytes += Cp932Length(text.substr(end, length));
    end += length;
    if (bytes >= n) break;
  }
  return std::string(text.substr(0, end));
}

std::string PadToBytes(std::string text, int n) {
  const int length = Cp932Length(text);
  if (length < n) text.append(static_cast<std::size_t>(n - length), ' ');
  return text;
}

std::string PadLeftToBytes(const std::string& text, int n) {
  const int length = Cp932Length(text);
  return length < n ? std::string(static_cast<std::size_t>(n - length), ' ') + text : text;
}

std::string FileNameOf(std::string_view path) {
  const auto separator = path.find_last_of("/\\");
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

}  // namespace common
