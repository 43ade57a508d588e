#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace common {

/// Code points of a UTF-8 text; a damaged byte becomes U+FFFD.
std::u32string CodePoints(std::string_view text);

/// UTF-8 form of code points.
std::string Utf8(std::u32string_view codePoints);

/// CP932 form of a UTF-8 text. A character that the code page lacks becomes "?"; ask
/// `FirstOutsideCp932` first where that must not happen.
std::string ToCp932(std::string_view text);

/// UTF-8 form of CP932 bytes; a byte that belongs to no character becomes "?".
std::string FromCp932(std::string_view bytes);

/// The first character of a text that CP932 lacks, or nothing.
std::optional<std::string> FirstOutsideCp932(std::string_view text);

/// The text as it comes back from a file: wave dash, minus and a few more have two code points, of
/// which input methods give the one and CP932 the other. A text that cannot be stored at all is
/// left for the save to refuse.
std::string CodePageForm(const std::string& text);

/// Bytes that a text takes in CP932, which are its columns in a fixed-pitch font: two for a
/// full-width character, one for a half-width one.
int Cp932Length(std::string_view text);

/// Whether a text has nothing but blanks.
bool IsBlank(std::string_view text);

/// The text in capital letters: Latin, Greek and Cyrillic, half-width and full-width. Independent
/// of the locale; two such texts compare by code point.
std::string UpperCase(std::string_view text);

/// The text cut for a limit of n CP932 bytes: the first prefix that has n bytes or more. A
/// double-byte character that crosses the limit stays, so the result may have n + 1 bytes.
std::string TruncateToBytes(std::string_view text, int n);

/// The text with blanks behind it up to n CP932 bytes; a longer one stays as it is.
std::string PadToBytes(std::string text, int n);

/// The same with the blanks in front.
std::string PadLeftToBytes(const std::string& text, int n);

/// The part of a path behind its last "\\" or "/".
std::string FileNameOf(std::string_view path);

}  // namespace common
