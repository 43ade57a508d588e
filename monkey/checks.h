#pragma once

#include <string>

#include "headless/driver.h"

namespace monkey {

/// Something that must not be; ends the trial.
struct Finding {
  std::string what;
};

/// What the driver answered: valid text throughout, finite numbers, and a refusal only for the
/// reasons that a refusal may have.
void CheckAnswer(const headless::Json& answer);
/// What stands on the open forms and in the window's title. thoroughly: lists, grids and pictures,
/// too.
void CheckForms(sheets::Workbench& bench, bool thoroughly);
/// The stores agree with themselves.
void CheckStores(const shell::Workspace& space);
/// All records of tags and ducts.
void CheckRecords(const shell::Workspace& space);
/// After a save that went well: the file, read back, is what the store holds.
void CheckSavedTags(const shell::Workspace& space);
void CheckSavedDucts(const shell::Workspace& space);

}  // namespace monkey
