#pragma once

namespace shell {

struct Workspace;

/// Builds the menus and the tool bar of the main window. Commands whose form this program does not
/// have yet exist and are disabled.
void BuildMainMenu(Workspace& workspace);

}  // namespace shell
