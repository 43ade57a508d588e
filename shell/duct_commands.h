#pragma once

#include <string>
#include <vector>

#include "shell/duct_store.h"

namespace shell {

struct Workspace;

inline constexpr const char* kDuctSheet = "CableDuct";
inline constexpr const char* kDuctListForm = "frmDuctList";
inline constexpr const char* kDuctExtension = ".dct";

/// Whether the cable duct sheet is on top, and the file commands with it.
bool DuctsOnTop(const Workspace& workspace);

/// Shows the duct list with its first duct selected.
void ShowDuctList(Workspace& workspace);
/// Shows the list of the sheet on top: ducts or tags.
void ShowDataList(Workspace& workspace);

/// Empties the duct list for a new file, after a question.
void NewDuctList(Workspace& workspace);

/// Asks for a duct file and opens it.
void OpenDuctList(Workspace& workspace);
void OpenDuctListNamed(Workspace& workspace, const std::string& path);
/// Takes rows as unsaved changes of a file, "" for a new one.
void TakeUnsavedDucts(Workspace& workspace, std::vector<DuctRow> rows, const std::string& path);

/// Saves under the present name, or asks for one.
void SaveDuctList(Workspace& workspace);
void SaveDuctListAs(Workspace& workspace);
void SaveDuctListNamed(Workspace& workspace, const std::string& path);

}  // namespace shell
