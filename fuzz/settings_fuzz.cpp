#include "fuzz/fuzz.h"
#include "shell/settings.h"

/// Settings that were read are written to a file that gives them again; a text that is set stands
/// there afterwards, whatever its section, its key and the settings beside it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes = fuzz::Bytes(data, size);
  shell::MemorySettings settings;
  settings.TakeFileText(bytes);
  const std::string written = settings.FileText();
  shell::MemorySettings again;
  again.TakeFileText(written);
  fuzz::Require(again.FileText() == written);

  const std::string section = bytes.substr(0, size / 3);
  const std::string key = bytes.substr(size / 3, size / 3);
  const std::string value = bytes.substr(2 * (size / 3));
  again.Set(section, key, value);
  shell::MemorySettings last;
  last.TakeFileText(again.FileText());
  fuzz::Require(last.Get(section, key) == value);
  shell::RowNumberSetting(value);
  return 0;
}
