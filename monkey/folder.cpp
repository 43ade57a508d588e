#include "folder.h"

#include <algorithm>

#include "common/file.h"

namespace monkey {

namespace {

namespace fs = std::filesystem;

/// Spoils the contents of a file as a full disk, a stray editor or a bad sector would.
std::string Damaged(std::string bytes, Random& random) {
  switch (random.Below(4)) {
    case 0:
      return bytes.substr(0, random.Below(bytes.size()));
    case 1:
      return {};
    case 2:
      for (int i = 0; i < 20 && !bytes.empty(); ++i) {
        bytes[random.Below(bytes.size())] = static_cast<char>(random.Below(256));
      }
      return bytes;
    default:
      bytes.erase(random.Below(bytes.size()), 1 + random.Below(200));
      return bytes;
  }
}

void Write(const fs::path& path, const std::string& bytes) {
  common::WriteFile(path.string(), bytes);
}

}  // namespace

bool FillFolder(const fs::path& folder, Random& random) {
  const fs::path source = ZEPHA_SOURCE_DIR;
  fs::create_directories(folder / kDataFolder);
  fs::create_directories(folder / "tmp");
  std::vector<fs::path> data;
  for (const auto& entry : fs::directory_iterator(source / "dat")) {
    if (entry.path().extension() == ".dat") data.push_back(entry.path().filename());
  }
  std::sort(data.begin(), data.end());
  for (const fs::path& name : data) {
    fs::copy_file(fs::path(ZEPHA_BUILD_DIR) / name, folder / kDataFolder / name);
  }
  const bool sound = random.Below(8) != 0;
  if (!sound) {
    const fs::path victim = folder / kDataFolder / random.Of(data);
    Write(victim, Damaged(common::ReadFile(victim.string()), random));
  }
  for (const char* extension : {".zph", ".dct", ".pdf", ".xlsx"}) {
    fs::create_directory(folder / (std::string("folder") + extension));
    fs::create_symlink("/dev/full", folder / (std::string("full") + extension));
  }
  for (const std::string name : {"plant.zph", "ducts.dct"}) {
    fs::copy_file(source / "samples" / name, folder / name);
    const std::string extension = name.substr(name.size() - 4);
    Write(folder / ("damaged" + extension),
          Damaged(common::ReadFile((folder / name).string()), random));
    Write(folder / ("empty" + extension), "");
    fs::copy_file(folder / name, folder / ("locked" + extension));
    fs::permissions(folder / ("locked" + extension), fs::perms::owner_read);
  }
  return sound;
}

const std::vector<std::string>& InstrumentFiles() {
  static const std::vector<std::string> kNames = {
      "plant.zph", "plant.zph",  "plant.zph",    "own.zph",   "own",        "計器 一覧.zph",
      "ducts.dct", "own.zph",    "damaged.zph",  "empty.zph", "folder.zph", "full.zph",
      "lost.zph",  "locked.zph", "lost/own.zph", "é.zph"};
  return kNames;
}

const std::vector<std::string>& DuctFiles() {
  static const std::vector<std::string> kNames = {
      "ducts.dct", "ducts.dct",   "own.dct",     "own",     "ダクト.dct",
      "plant.zph", "damaged.dct", "empty.dct",   "own.dct", "folder.dct",
      "full.dct",  "lost.dct",    "lost/own.dct"};
  return kNames;
}

const std::vector<std::string>& PdfFiles() {
  static const std::vector<std::string> kNames = {"own.pdf", "頁.pdf", "folder.pdf", "full.pdf",
                                                  "lost/own.pdf"};
  return kNames;
}

const std::vector<std::string>& Workbooks() {
  static const std::vector<std::string> kNames = {"own.xlsx",    "own.xlsx",  "表.xlsx",
                                                  "folder.xlsx", "full.xlsx", "lost/own.xlsx"};
  return kNames;
}

}  // namespace monkey
