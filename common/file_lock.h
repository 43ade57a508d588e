#pragma once

#include <optional>
#include <string>
#include <utility>

namespace common {

/// A file that says that a program lives. The lock goes with the process, however that ends, so
/// that neither a crash nor a process number that is given out again can leave a wrong sign.
class FileLock {
 public:
  /// Makes the file and locks it; nothing when another program holds it or it cannot be made.
  static std::optional<FileLock> Take(const std::string& path);

  FileLock(FileLock&& other) noexcept
      : path_(std::move(other.path_)), file_(std::exchange(other.file_, -1)) {}
  FileLock& operator=(FileLock&& other) noexcept;
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  /// Removes the file.
  ~FileLock();

  /// Whether the file still stands under its name; if somebody has removed it, another program may
  /// hold the lock, too.
  bool InPlace() const;

 private:
  FileLock(std::string path, int file) : path_(std::move(path)), file_(file) {}

  std::string path_;
  int file_;
};

}  // namespace common
