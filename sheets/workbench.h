#pragma once

#include <string>

#include "shell/workspace.h"

namespace sheets {

/// The whole program below its windows: workspace, forms and commands of one run.
class Workbench {
 public:
  /// presenter: whoever shows it; it must outlive the workbench. installDir: folder of the data
  /// files.
  Workbench(forms::Presenter& presenter, std::string installDir);

  /// Reads the data files and readies the main window. Files that cannot be read are named in one
  /// message; the run goes on without them.
  void Start();

  shell::Workspace& Space() { return workspace_; }
  shell::FormManager& Forms() { return workspace_.forms; }
  shell::MainWindow& Window() { return workspace_.window; }

 private:
  void ProvideForms();

  shell::Workspace workspace_;
};

}  // namespace sheets
