#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "data/process_state.h"
#include "shell/duct_store.h"
#include "shell/form_manager.h"
#include "shell/main_window.h"
#include "shell/platform.h"
#include "shell/print_surface.h"
#include "shell/recovery.h"
#include "shell/settings.h"
#include "shell/tables.h"
#include "shell/tag_store.h"
#include "shell/user_programs.h"

namespace shell {

/// Today's date where the user is.
std::chrono::year_month_day LocalDate();

/// The state that all sheets of one run share. It is created once by the program, outlives all
/// forms, and is handed to them by reference; everything runs on one thread.
struct Workspace {
  /// All three must outlive the workspace; platform may be null where there is no desktop.
  Workspace(forms::Presenter& presenter, SettingsStore& settingsStore, Platform* desktopPlatform)
      : forms(presenter), settings(settingsStore), platform(desktopPlatform) {
    window.onFault = [&presenter](const common::RuntimeFault& fault) {
      presenter.Show(fault.Text(), {}, common::Icon::kWarning);
    };
  }

  /// Folder with the data files.
  std::string installDir;
  /// What the start has to tell about that folder, "" for nothing.
  std::string dataNote;
  /// Folder with the pages of the user's guide, which need not be there.
  std::string guideDir;
  Tables tables;
  /// The valve catalogue has been edited since its file was read or written.
  bool valvesModified = false;
  /// The same of the converter's units and of the materials.
  bool unitsModified = false;
  bool materialsModified = false;
  /// The fluid tables have been edited since their files were read or written.
  bool fluidsModified = false;
  data::ProcessState process;
  TagStore tags;
  DuctStore ducts;
  Recovery recovery;

  /// Kind of the sheet on top ("⊿P Flow", "CV" ...), "" when there is none.
  std::string activeSheetKind;
  /// Form name of the sheet last activated.
  std::string lastFormName;
  /// Sheets stay open side by side; otherwise opening one closes the other.
  bool multiWindowMode = false;
  /// A sheet opens with the units that were chosen on it last. Not for scripts, which must find the
  /// same sheet in every run.
  bool keepsUnits = false;
  /// Element kind with which the differential-pressure sheet opens next.
  int elementKind = 0;
  /// Printed at the foot of every report.
  std::string issuerName;
  /// Letters and lines of the last page: kPaperScale or kPreviewScale.
  float printScale = kPaperScale;
  /// The date on a report, in the local time zone unless a test fixes it.
  std::function<std::chrono::year_month_day()> today = LocalDate;
  UserPrograms userPrograms;
  /// The property that the fluid pick list shall fill, in the words of the sheets.
  std::string propertyWord;

  /// A check of the running calculation has failed.
  bool calcFailed = false;
  /// Results stand on the sheet.
  bool calcDone = false;
  /// What the calculation left to be told with its results: "" or "（外挿計算）".
  std::string calcNote;

  MainWindow window;
  FormManager forms;
  SettingsStore& settings;
  Platform* platform;
  /// Ends the run, once all forms are unloaded.
  std::function<void()> onExit;

  forms::Presenter& Shown() const { return forms.Shown(); }
};

}  // namespace shell
