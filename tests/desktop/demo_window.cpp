#include "demo_window.h"

namespace desktop {

namespace {

void AddMenus(shell::MainWindow& window) {
  const auto run = [&window](const std::string& name) {
    return [&window, name] { window.SetTitle(name); };
  };
  window.AddSubmenu("", "mnuFile", "ファイル(&F)");
  window.AddCommand("mnuFile",
                    {"mnuNewFileOpen", "新規ファイル作成(&N)", "Ctrl+N", "new", run("new")});
  window.AddCommand("mnuFile", {"mnuOpen", "開く(&O)", "Ctrl+O", "open", run("open")});
  window.AddSeparator("mnuFile");
  window.AddSubmenu("mnuFile", "mnuRecent", "最近使ったファイル");
  window.AddCommand("mnuFile", {"mnuHCopy", "画面ハードコピー", "", "", {}});
  window.AddCommand("mnuFile", {"mnuExit", "終了(&X)", "", "", run("exit")});
  window.AddSubmenu("", "mnuEdit", "編集(&E)");
  window.AddSubmenu("", "mnuDisplay", "表示(&V)");
  window.AddSubmenu("mnuDisplay", "mnuDiaplay", "表示設定(&V)");
  window.AddCommand("mnuDiaplay", {"mnuToolBar", "ツールバーの表示(&T)", "", "",
                                   [&window] {
                                     const bool visible = !window.ToolBarVisible();
                                     window.SetToolBarVisible(visible);
                                     window.SetChecked("mnuToolBar", visible);
                                   },
                                   true, true, true});
  window.AddSubmenu("", "mnuProgram", "設計計算(&R)");
  window.AddSubmenu("", "mnuWindow", "ウィンドウ(&W)");
  window.AddSubmenu("", "mnuHelp", "ヘルプ(&H)");
}

void AddButtons(shell::MainWindow& window) {
  const char* icons[] = {
      "new",         "open",       "save",     "print", "taglist",     "excel",
      "preview",     "undo",       "",         "",      "dp-flow",     "integral",
      "vortex",      "thermowell", "sensor",   "valve", "duct",        "pressure-loss",
      "restriction", "properties", "",         "units", "pipe-weight", "",
      "catalogue",   "fluid-data", "material", "",      "user-program"};
  int number = 0;
  for (const char* icon : icons) {
    ++number;
    shell::ToolButton button;
    button.number = number;
    button.toolTip = icon;
    button.icon = icon;
    button.separator = button.icon.empty();
    button.run = [&window, number] { window.SetTitle("button " + std::to_string(number)); };
    window.AddButton(button);
  }
  window.SetButtonEnabled(4, false);
}

}  // namespace

void FillDemoWindow(shell::MainWindow& window) {
  AddMenus(window);
  AddButtons(window);
  window.SetTitle("ZEPHA");
}

}  // namespace desktop
