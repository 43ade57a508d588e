#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "random.h"

namespace monkey {

/// Where a trial works, as names within its folder: the data files, which the editors rewrite, the
/// settings, and the files that it opens and writes.
inline constexpr const char* kDataFolder = "data";
inline constexpr const char* kSettingsFile = "settings.ini";

/// Fills an empty folder with what a trial starts from: the shipped data, one file of it damaged in
/// one trial of eight, the sample files, and files and folders that cannot be read or written.
/// Whether the data are sound.
bool FillFolder(const std::filesystem::path& folder, Random& random);

/// Names of files to open and to write, good ones more often than bad ones.
const std::vector<std::string>& InstrumentFiles();
const std::vector<std::string>& DuctFiles();
const std::vector<std::string>& PdfFiles();
const std::vector<std::string>& Workbooks();

}  // namespace monkey
