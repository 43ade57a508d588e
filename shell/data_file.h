#pragma once

#include <functional>
#include <string>

#include "shell/workspace.h"

namespace shell {

/// Rewrites a data file beside the program from the table that the user has edited.
/// encode: the bytes of the file; raises where a text cannot stand in it. modified: cleared when
/// the file is written. A failed save is told, gives false and gives nothing up: the edits stay in
/// the table, marked as unsaved, even when the form that made them is about to go.
bool SaveDataFile(Workspace& workspace, const std::string& fileName, bool& modified,
                  const std::function<std::string()>& encode);

}  // namespace shell
