#pragma once

#include <string>
#include <string_view>

namespace common {

/// Folder and file name joined by the platform's separator.
std::string JoinPath(std::string_view folder, std::string_view name);

/// Folder for files that need not last.
std::string TemporaryFolder();

/// All bytes of a file. Raises kFileNotFound when it or its folder does not exist, kFileAccess with
/// the system's reason when it cannot be read, and refuses files beyond 64 MiB as no data of ours.
std::string ReadFile(const std::string& path);

/// Replaces a file's contents. Raises kFileAccess with the system's reason when that fails at any
/// point; the file may then be cut short.
void WriteFile(const std::string& path, std::string_view bytes);

/// Replaces a file so that a crash at any moment leaves its old or its new contents, whole: they
/// are written beside it under its name + ".new", brought to the disk, and renamed. The file is for
/// the user's eyes only. Raises kFileAccess with the system's reason; the old contents then stand.
void ReplaceFile(const std::string& path, std::string_view bytes);

}  // namespace common
