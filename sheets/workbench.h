#pragma once

#include <string>

#include "shell/workspace.h"

namespace sheets {

/// The whole program below its windows: workspace, forms and commands of one run.
class Workbench {
 public:
  /// presenter: whoever shows it. installDir: folder of the data files. settings: where the last
  /// run left its state. platform: the desktop's services, or null. All must outlive the workbench.
  Workbench(forms::Presenter& presenter, std::string installDir, shell::SettingsStore& settings,
            shell::Platform* platform = nullptr);

  /// Reads the data files, readies the main window and brings the run to where the last one ended.
  /// Files that cannot be read are named in one message; the run goes on without them.
  void Start();

  shell::Workspace& Space() { return workspace_; }
  shell::FormManager& Forms() { return workspace_.forms; }
  shell::MainWindow& Window() { return workspace_.window; }

 private:
  void ProvideForms();
  void TellUnreadFiles();

  shell::Workspace workspace_;
};

}  // namespace sheets
