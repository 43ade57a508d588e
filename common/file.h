#pragma once

#include <string>
#include <string_view>

namespace common {

/// Folder and file name joined by the platform's separator.
std::string JoinPath(std::string_view folder, std::string_view name);

/// Folder for files that need not last.
std::string TemporaryFolder();

/// All bytes of a file. Raises kFileNotFound when it or its folder does not exist, kFileAccess with
/// the reason when it cannot be read. Refuses what is no data of ours: files beyond 64 MiB,
/// devices, and pipes, whose other end might keep us waiting for ever.
std::string ReadFile(const std::string& path);

/// Replaces a file's contents in place. Raises kFileAccess with the reason when that fails at any
/// point; the file may then be cut short. Its first byte is NUL until all others are written, so
/// that a file whose writing did not come to its end is told from a shorter one.
void WriteFile(const std::string& path, std::string_view bytes);

/// Replaces a file so that a crash at any moment leaves its old or its new contents, whole: they
/// are written beside it under its name + ".new", brought to the disk, and renamed. The file is for
/// the user's eyes only. Raises kFileAccess with the reason; the old contents then stand.
void ReplaceFile(const std::string& path, std::string_view bytes);

/// Whether bytes that were read are those of a file whose writing did not come to its end.
bool IsUnfinished(std::string_view bytes);

}  // namespace common
