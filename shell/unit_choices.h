#pragma once

namespace forms {
class Form;
}

namespace shell {

struct Workspace;

/// Keeps the units that are selected on a sheet, if the run keeps units, also for later runs.
void KeepUnits(Workspace& workspace, const forms::Form& sheet);

/// Selects on a sheet the units that were kept last. A unit that its list no longer has, and a
/// field for which none was kept, stay as they are.
void RestoreUnits(Workspace& workspace, forms::Form& sheet);

}  // namespace shell
