#pragma once

#include <string>

namespace shell {

struct Workspace;

/// Brings a run to where the last one ended: issuer, window, user programs, duct file, instrument
/// file, sheet and tag, with an offer of what an earlier run left unsaved. The tables have been
/// read and the forms are known. Each failure is passed over singly.
/// file: an instrument or duct file that the user has started the program with, "" for none. It is
/// opened instead of the last one of its kind; a duct file comes with its sheet. What is no file is
/// told, and the run begins without it.
void RestoreLastRun(Workspace& workspace, const std::string& file = {});

/// Keeps for the next run where this one ends, and unloads all forms. There is deliberately no
/// question about unsaved work; the recovery copy goes.
void WorkspaceEnd(Workspace& workspace);

/// The main window at its first place and size, with the sheet on top alone.
void InitialisePlacement(Workspace& workspace);

/// The tool bar button of the first user program; the others follow.
inline constexpr int kFirstUserButton = 29;

/// Starts the user's program of an index (0 to 2); nothing happens without a command.
void StartUserProgram(Workspace& workspace, int index);

/// Shows the captions of the user programs on their buttons.
void ShowUserPrograms(Workspace& workspace);

/// Opens the help file of the house beside the program, otherwise the page of the user's guide on
/// the sheet on top.
void ShowHelp(Workspace& workspace);

}  // namespace shell
