#pragma once

#include <string>
#include <vector>

#include "shell/tag_store.h"

namespace shell {

struct Workspace;

inline constexpr const char* kTagListForm = "frmTagList";
inline constexpr const char* kRecalculateCommand = "mnuRecalculate";

/// Registers the sheet on top under its tag number, with the question whether to replace.
void RegisterTag(Workspace& workspace);

/// Fills the sheet on top from a row, if the row is of its kind.
void RecallTag(Workspace& workspace, int row);

/// Recalls the tag of the selected line; the sheet of its kind is opened first.
void RecallSelectedTag(Workspace& workspace);

/// Writes the tag list anew and shows its window.
void RefreshTagList(Workspace& workspace);

// The file commands work on the duct list while its sheet is on top.

/// Empties the tag list for a new file, after a question.
void NewFile(Workspace& workspace);

/// Asks for an instrument file and opens it.
void OpenFile(Workspace& workspace);
void OpenFileNamed(Workspace& workspace, const std::string& path);
/// Whether a path has the extension of duct files, in capital or small letters.
bool IsDuctFile(const std::string& path);
/// Opens an instrument or a duct file, by its extension, whatever is on top.
void OpenFileOfItsKind(Workspace& workspace, const std::string& path);
/// Takes rows, header first, as unsaved changes of a file, "" for a new one.
void TakeUnsavedTags(Workspace& workspace, std::vector<TagRow> rows, const std::string& path);
/// Puts a file in front of those opened last.
void RememberFile(Workspace& workspace, const std::string& path);

/// Saves under the present name, or asks for one.
void SaveFile(Workspace& workspace);
void SaveFileAs(Workspace& workspace);
void SaveFileNamed(Workspace& workspace, const std::string& path);

/// Shows the open file's name, and a mark while there are unsaved changes, as the window's title;
/// offers what works on all tags while there are any.
void ShowTitle(Workspace& workspace);

/// Lists the files opened last in their submenu.
void ShowRecentFiles(Workspace& workspace);

}  // namespace shell
