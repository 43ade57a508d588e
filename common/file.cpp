#include "common/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "common/fault.h"

namespace common {

namespace {

constexpr off_t kLargestFile = 64LL << 20;
constexpr std::string_view kUnfinished("\0", 1);
constexpr const char* kNotRegular = "通常のファイルではありません。";

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Number() const { return number_; }
  /// Closes now, because a full disk may show only here.
  int Close() { return close(std::exchange(number_, -1)); }

 private:
  int number_;
};

[[noreturn]] void RaiseAccessFault(const std::string& path, const std::string& reason) {
  throw RuntimeFault(Fault::kFileAccess,
                     std::string(FaultText(Fault::kFileAccess)) + "\n" + path + "\n" + reason);
}

std::string ReasonOf(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return "ディスクの空き容量が不足しています。";
    case EFBIG:
      return "ファイルが大きすぎます。";
    case EACCES:
    case EPERM:
    case EROFS:
      return "アクセスが許可されていません。";
    case EISDIR:
      return "ファイルではなくフォルダです。";
    case ENAMETOOLONG:
      return "ファイル名が長すぎます。";
    case EBUSY:
    case ETXTBSY:
      return "ほかのプログラムが使用中です。";
    case EIO:
    case ESTALE:
      return "ディスクまたはネットワークの読み書きに失敗しました。";
    case ENXIO:
    case ENODEV:
      return kNotRegular;
    default:
      // The system's own words are in the language and the code of the locale.
      return "システムエラー " + std::to_string(error) + " が発生しました。";
  }
}

[[noreturn]] void RaiseFileFault(const std::string& path, int error) {
  if (error == ENOENT || error == ENOTDIR) throw RuntimeFault(Fault::kFileNotFound);
  RaiseAccessFault(path, ReasonOf(error));
}

void WriteAll(const Descriptor& file, const std::string& path, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file.Number(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseFileFault(path, errno);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

/// An old file stays as it is until the mark stands in it; then it is cut.
void ReplaceContents(const Descriptor& file, const std::string& path, std::string_view bytes) {
  const std::size_t marked = std::min(bytes.size(), kUnfinished.size());
  WriteAll(file, path, kUnfinished.substr(0, marked));
  if (ftruncate(file.Number(), static_cast<off_t>(marked)) != 0) RaiseFileFault(path, errno);
  WriteAll(file, path, bytes.substr(marked));
  if (lseek(file.Number(), 0, SEEK_SET) != 0) RaiseFileFault(path, errno);
  WriteAll(file, path, bytes.substr(0, marked));
}

/// A new file whose contents have reached the disk.
void WriteDurably(const std::string& path, std::string_view bytes) {
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
  if (file.Number() < 0) RaiseFileFault(path, errno);
  WriteAll(file, path, bytes);
  if (fsync(file.Number()) != 0 || file.Close() != 0) RaiseFileFault(path, errno);
}

}  // namespace

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && path.back() != '/') path += '/';
  return path.append(name);
}

std::string TemporaryFolder() {
  std::error_code none;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(none);
  return none ? "/tmp" : folder.string();
}

std::string ReadFile(const std::string& path) {
  Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (file.Number() < 0 || fstat(file.Number(), &status) != 0) RaiseFileFault(path, errno);
  if (S_ISDIR(status.st_mode)) RaiseFileFault(path, EISDIR);
  if (!S_ISREG(status.st_mode)) RaiseAccessFault(path, kNotRegular);
  if (status.st_size > kLargestFile) RaiseFileFault(path, EFBIG);
  std::string bytes;
  char buffer[65536];
  while (true) {
    const ssize_t count = read(file.Number(), buffer, sizeof buffer);
    if (count == 0) return bytes;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseFileFault(path, errno);
    bytes.append(buffer, static_cast<std::size_t>(count));
    if (bytes.size() > static_cast<std::size_t>(kLargestFile)) RaiseFileFault(path, EFBIG);
  }
}

void WriteFile(const std::string& path, std::string_view bytes) {
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666));
  struct stat status {};
  if (file.Number() < 0 || fstat(file.Number(), &status) != 0) RaiseFileFault(path, errno);
  if (S_ISREG(status.st_mode)) {
    ReplaceContents(file, path, bytes);
  } else {
    WriteAll(file, path, bytes);
  }
  if (file.Close() != 0) RaiseFileFault(path, errno);
}

void ReplaceFile(const std::string& path, std::string_view bytes) {
  const std::string passing = path + ".new";
  try {
    WriteDurably(passing, bytes);
    if (std::rename(passing.c_str(), path.c_str()) != 0) RaiseFileFault(path, errno);
  } catch (const RuntimeFault&) {
    std::remove(passing.c_str());  // a part of it would fill the disk further
    throw;
  }
}

bool IsUnfinished(std::string_view bytes) { return bytes.starts_with(kUnfinished); }

}  // namespace common
