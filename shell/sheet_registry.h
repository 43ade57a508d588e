#pragma once

#include <string>
#include <vector>

namespace shell {

struct Workspace;

/// Buttons of the tool bar that follow the sheet on top.
inline constexpr int kPrintButton = 4;
inline constexpr int kPreviewButton = 7;

/// A sheet as the main window knows it.
struct SheetEntry {
  std::string kind;                    // sheet name, also in tag rows
  std::string form;                    // form name
  std::vector<std::string> menuItems;  // commands that open it
  int button = 0;                      // tool bar button
  bool holdsTags = false;
  bool isEditor = false;  // of reference data: not printed, but copied from the screen
  std::string guidePage;  // name of its page in the user's guide, without folder and extension
};

/// All sheets in the order of their buttons.
const std::vector<SheetEntry>& SheetRegistry();

/// Entry of a kind, or null.
const SheetEntry* FindSheet(const std::string& kind);

/// Opens the sheet of a kind, unless it is on top already: in single-window mode the sheet on top
/// is unloaded first. Does nothing for an unknown kind or one that this program has no form for.
void OpenSheet(Workspace& workspace, const std::string& kind);

/// Enables and disables the main window's commands as this sheet wants them while it is on top.
void EnableCommandsFor(Workspace& workspace, const SheetEntry& sheet);

/// The sheet is closed: its commands can open it again.
void EnableOpening(Workspace& workspace, const SheetEntry& sheet);

/// Unloads all sheets but the one on top; tag list and tools stay.
void CloseOtherForms(Workspace& workspace);

}  // namespace shell
