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

  /// Reads the data files. Nothing is shown, so that it can be done while the splash stands.
  void Load();
  /// Names the files that could not be read in one message, and brings the run to where the last
  /// one ended, with this file open instead of the last one. Loads first, if that has not been
  /// done.
  void Start(const std::string& file = {});

  shell::Workspace& Space() { return workspace_; }
  shell::FormManager& Forms() { return workspace_.forms; }
  shell::MainWindow& Window() { return workspace_.window; }

 private:
  void ProvideForms();
  void TellUnreadFiles();

  shell::Workspace workspace_;
  bool loaded_ = false;
};

}  // namespace sheets
