#pragma once

#include <string>
#include <vector>

namespace shell {

/// Where the data files of a run stand.
struct DataFolder {
  std::string path;
  /// What the user has to be told about it at the start, "" when nothing.
  std::string note;
  /// Files that he has edited and that the installed version brings anew; `note` names them.
  std::vector<std::string> newer;
  /// The files as installed; "" where the programs stand among their data.
  std::string shipped;
};

/// The folder of the running program's file.
std::string ProgramFolder();

/// A folder of what is installed with the programs in that folder ("data", "guide"), whether it is
/// there or not.
std::string InstalledFolder(const std::string& programFolder, const std::string& name);

/// The folder of the user's guide for programs in that folder: beside them, or as installed.
std::string FindGuideFolder(const std::string& programFolder);

/// The folder of the data files for programs in that folder: itself where data files stand beside
/// them, as after a build; the user's own folder where they were installed, because the editors
/// rewrite the files.
DataFolder FindDataFolder(const std::string& programFolder);

/// Brings the user's own folder up to date with the shipped files. own: the folder, made when it is
/// missing; "" when the user has no home. A file that he has not edited follows the shipped one, an
/// edited one is kept and, when the shipped one is another than before, named. Where the folder
/// cannot be made or written, the run works on the shipped files, and the note says why.
DataFolder PrepareOwnData(const std::string& shipped, const std::string& own);

/// The user has been told of the newer files: they are not named again.
void TakeNoteOfNewer(const DataFolder& folder);

}  // namespace shell
