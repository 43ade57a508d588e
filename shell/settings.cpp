#include "shell/settings.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <utility>

#include "common/fault.h"
#include "common/file.h"
#include "common/parse.h"

namespace shell {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string LowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

std::string_view Trimmed(std::string_view text) {
  const auto begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

void AppendHex(std::string& text, char c) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  text += {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 15]};
}

/// A text as it stands in the file. `marks` are characters with a meaning of their own there;
/// blanks at the ends would be trimmed.
std::string Escaped(std::string_view text, std::string_view marks) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool end = i == 0 || i + 1 == text.size();
    if (c == '\\') {
      result += "\\\\";
    } else if (static_cast<unsigned char>(c) < 0x20 || (c == ' ' && end) ||
               marks.find(c) != std::string_view::npos) {
      AppendHex(result, c);
    } else {
      result += c;
    }
  }
  return result;
}

std::string EscapedName(std::string_view name) { return Escaped(name, "=[];#"); }

std::optional<char> HexByte(std::string_view text) {
  unsigned value = 0;
  const auto end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value, 16);
  if (text.size() != 2 || result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return static_cast<char>(value);
}

/// A backslash that begins neither "\\" nor "\xHH" stands for itself.
std::string Unescaped(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    std::size_t taken = 1;
    char c = text.front();
    if (text.starts_with("\\\\")) {
      taken = 2;
    } else if (text.starts_with("\\x")) {
      if (const auto byte = HexByte(text.substr(2, 2))) {
        c = *byte;
        taken = 4;
      }
    }
    result += c;
    text.remove_prefix(taken);
  }
  return result;
}

std::string_view TakeLine(std::string_view& text) {
  const auto end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return Trimmed(line);
}

/// The file behind symbolic links, so that a link to a settings file kept elsewhere stays one.
std::filesystem::path FinalPath(const std::string& path) {
  std::error_code error;
  const auto final = std::filesystem::canonical(path, error);
  return error ? std::filesystem::path(path) : final;
}

}  // namespace

std::string MemorySettings::Get(const std::string& section, const std::string& key) const {
  const auto entry = entries_.find({LowerCase(section), LowerCase(key)});
  return entry == entries_.end() ? std::string() : entry->second.value;
}

bool MemorySettings::Set(const std::string& section, const std::string& key,
                         const std::string& value) {
  entries_[{LowerCase(section), LowerCase(key)}] = {section, key, value};
  return true;
}

std::string MemorySettings::FileText() const {
  std::string text;
  const std::string* section = nullptr;
  for (const auto& [name, entry] : entries_) {
    if (section == nullptr || *section != name.first) {
      text.append("[").append(EscapedName(entry.section)).append("]\n");
    }
    text.append(EscapedName(entry.key)).append("=").append(Escaped(entry.value, "")).append("\n");
    section = &name.first;
  }
  return text;
}

void MemorySettings::TakeFileText(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::optional<std::string> section;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (line.empty() || line.front() == ';' || line.front() == '#') continue;
    if (line.front() == '[') {
      const auto end = line.find(']');
      section.reset();  // entries below a damaged heading would get into the wrong section
      if (end != std::string_view::npos) section = Unescaped(Trimmed(line.substr(1, end - 1)));
      continue;
    }
    const auto equals = line.find('=');
    if (!section || equals == std::string_view::npos) continue;
    Set(*section, Unescaped(Trimmed(line.substr(0, equals))),
        Unescaped(Trimmed(line.substr(equals + 1))));
  }
}

bool FileSettings::Read(MemorySettings& settings) const {
  try {
    settings.TakeFileText(common::ReadFile(path_));
  } catch (const common::RuntimeFault& fault) {
    return fault.Number() == common::Fault::kFileNotFound;
  }
  return true;
}

bool FileSettings::Replace(const std::string& text) const {
  std::error_code error;
  const auto target = FinalPath(path_);
  std::filesystem::create_directories(target.parent_path(), error);
  const std::string passing = target.string() + "." + std::to_string(getpid()) + ".new";
  try {
    common::WriteFile(passing, text);
    if (std::rename(passing.c_str(), target.c_str()) == 0) return true;
  } catch (const common::RuntimeFault&) {
    // Told by the result.
  }
  std::filesystem::remove(passing, error);
  return false;
}

std::string FileSettings::Get(const std::string& section, const std::string& key) const {
  MemorySettings settings;
  Read(settings);
  return settings.Get(section, key);
}

bool FileSettings::Set(const std::string& section, const std::string& key,
                       const std::string& value) {
  MemorySettings settings;
  // A file that is there and cannot be read may hold more than this one value.
  if (path_.empty() || !Read(settings)) return false;
  settings.Set(section, key, value);
  return Replace(settings.FileText());
}

std::string UserFolder(const char* variable, const char* inHome) {
  const char* const configured = std::getenv(variable);
  // A relative path counts for nothing, as the base directory rules have it.
  if (configured != nullptr && configured[0] == '/') return common::JoinPath(configured, "zepha");
  const char* const home = std::getenv("HOME");
  if (home == nullptr || home[0] == '\0') return {};
  return common::JoinPath(common::JoinPath(home, inHome), "zepha");
}

std::string DefaultSettingsPath() {
  const std::string folder = UserFolder("XDG_CONFIG_HOME", ".config");
  return folder.empty() ? folder : common::JoinPath(folder, "settings.ini");
}

int RowNumberSetting(const std::string& text) {
  return common::ParseNumber<std::int16_t>(text).value_or(0);
}

}  // namespace shell
