#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace shell {

/// The settings kept between runs, per user: a text for each key of a section. Sections and keys
/// are compared without regard to case.
class SettingsStore {
 public:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  virtual ~SettingsStore() = default;

  /// The stored text, "" when there is none.
  virtual std::string Get(const std::string& section, const std::string& key) const = 0;
  /// False when the text could not be kept. Nothing is raised, because settings are written while
  /// the program ends.
  virtual bool Set(const std::string& section, const std::string& key,
                   const std::string& value) = 0;
};

/// Settings of one run.
class MemorySettings : public SettingsStore {
 public:
  std::string Get(const std::string& section, const std::string& key) const override;
  bool Set(const std::string& section, const std::string& key, const std::string& value) override;

  /// The contents as a settings file: a line "[section]", below it lines "key=value". "\\" stands
  /// for a backslash and "\xHH" for a byte that would have a meaning of its own.
  std::string FileText() const;
  /// Takes the contents of a settings file and passes over lines that say nothing.
  void TakeFileText(std::string_view text);

 private:
  struct Entry {
    std::string section, key, value;
  };
  /// By section and key in lower case.
  std::map<std::pair<std::string, std::string>, Entry> entries_;
};

/// Settings in a text file, which is read at every question and replaced as a whole at every
/// change, so that programs that run side by side keep each other's settings.
class FileSettings : public SettingsStore {
 public:
  explicit FileSettings(std::string path) : path_(std::move(path)) {}

  std::string Get(const std::string& section, const std::string& key) const override;
  bool Set(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  bool Read(MemorySettings& settings) const;
  bool Replace(const std::string& text) const;

  std::string path_;
};

/// The program's folder in the one that the environment variable names, or else in that folder of
/// the user's home; "" when the user has no home.
std::string UserFolder(const char* variable, const char* inHome);

/// "zepha/settings.ini" in $XDG_CONFIG_HOME or ~/.config; "" when the user has no home.
std::string DefaultSettingsPath();

/// A stored row number: a whole number within 16 bits, else 0.
int RowNumberSetting(const std::string& text);

}  // namespace shell
