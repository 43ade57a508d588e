#pragma once

#include <cstdint>
#include <string>

namespace shell {

struct Workspace;

/// Offers what earlier runs left unsaved, newest first, until the user takes one or wants to be
/// asked again at the next start. What he takes becomes unsaved changes of the file that it belongs
/// to. A copy that says the same as its file is not offered.
void OfferRecovery(Workspace& workspace);

/// Brings the recovery copy to the state of the lists. Called every few seconds, and where a list
/// has been saved or given up.
void KeepRecovery(Workspace& workspace);

/// Seconds since 1970 as date and time where the user is, "不明" for what the calendar does not
/// reach.
std::string LocalTimeText(std::int64_t seconds);

}  // namespace shell
