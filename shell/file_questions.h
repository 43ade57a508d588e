#pragma once

#include <optional>
#include <string>

#include "forms/presenter.h"

namespace shell {

struct Workspace;

/// Asks the user for a file. The dialogue opens in the folder of inHand, the file that the question
/// is about ("" for none), else in the one where files with this extension were last chosen, also
/// in an earlier run, and proposes its name for saving. The chosen folder is remembered.
std::optional<std::string> AskForFile(Workspace& workspace, forms::FileQuestion question,
                                      const std::string& inHand = {});

}  // namespace shell
