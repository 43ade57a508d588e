#include "common/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace common {

std::optional<FileLock> FileLock::Take(const std::string& path) {
  const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0) return std::nullopt;
  if (flock(file, LOCK_EX | LOCK_NB) != 0) {
    close(file);
    return std::nullopt;
  }
  FileLock lock(path, file);
  // Its last holder may have removed it since it was opened.
  if (!lock.InPlace()) return std::nullopt;
  return lock;
}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  std::swap(path_, other.path_);
  std::swap(file_, other.file_);
  return *this;
}

FileLock::~FileLock() {
  if (file_ < 0) return;
  if (InPlace()) unlink(path_.c_str());
  close(file_);
}

bool FileLock::InPlace() const {
  struct stat held {};
  struct stat named {};
  return fstat(file_, &held) == 0 && stat(path_.c_str(), &named) == 0 &&
         held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}

}  // namespace common
