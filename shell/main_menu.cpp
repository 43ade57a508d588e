#include "shell/main_menu.h"

#include <functional>
#include <string>

#include "forms/controls.h"
#include "shell/duct_commands.h"
#include "shell/instrument_file.h"
#include "shell/lifecycle.h"
#include "shell/recalculation.h"
#include "shell/report.h"
#include "shell/sheet_registry.h"
#include "shell/tag_commands.h"
#include "shell/workbook_export.h"
#include "shell/workspace.h"

namespace shell {

namespace {

/// Adds commands to one submenu after the other.
class MenuBuilder {
 public:
  explicit MenuBuilder(Workspace& workspace) : workspace_(workspace), window_(workspace.window) {}

  void Submenu(const std::string& parent, const std::string& name, const std::string& caption) {
    window_.AddSubmenu(parent, name, caption);
    parent_ = name;
  }
  void In(const std::string& name) { parent_ = name; }
  void Separator() { window_.AddSeparator(parent_); }

  void Add(const std::string& name, const std::string& caption, std::function<void()> run = {},
           const std::string& shortcut = {}, const std::string& icon = {}) {
    window_.AddCommand(parent_,
                       {name, caption, shortcut, icon, std::move(run), true, false, false});
  }

  /// A command that opens a sheet, with the element kind to start from (-1: as it is).
  void AddSheet(const std::string& name, const std::string& caption, const std::string& kind,
                const std::string& icon, int elementKind = -1) {
    Add(name, caption, Opener(kind, elementKind), {}, icon);
  }

  /// A command that shows a form that is no sheet.
  void AddForm(const std::string& name, const std::string& caption, const std::string& form,
               const std::string& icon = {}) {
    Add(name, caption, FormOpener(form), {}, icon);
  }

  void Button(int number, const std::string& toolTip, const std::string& icon,
              std::function<void()> run = {}) {
    window_.AddButton({number, toolTip, icon, std::move(run), true, false, {}});
  }
  /// index: of the program, from 0. Its tool tip comes with the user's programs.
  void UserButton(int index) {
    window_.AddButton({kFirstUserButton + index, "", "user-program",
                       Calls([index](Workspace& workspace) { StartUserProgram(workspace, index); }),
                       true, false,
                       "ユーザープログラム" + std::to_string(index + 1) + "（未登録）"});
  }
  void SeparatorButton(int number) { window_.AddButton({number, {}, {}, {}, false, true, {}}); }

  /// Opens a sheet; empty when the program has no form for it.
  std::function<void()> Opener(const std::string& kind, int elementKind = -1) const {
    if (!workspace_.forms.Knows(FindSheet(kind)->form)) return {};
    Workspace& workspace = workspace_;
    return [&workspace, kind, elementKind] {
      if (elementKind >= 0) workspace.elementKind = elementKind;
      OpenSheet(workspace, kind);
    };
  }

  std::function<void()> FormOpener(const std::string& form) const {
    if (!workspace_.forms.Knows(form)) return {};
    Workspace& workspace = workspace_;
    return [&workspace, form] { workspace.forms.Show(form); };
  }

  /// A command that works on the workspace.
  template <class WorkspaceCommand>
  std::function<void()> Calls(WorkspaceCommand command) const {
    Workspace& workspace = workspace_;
    return [&workspace, command] { command(workspace); };
  }

  /// Sets the window mode and its two check marks.
  std::function<void()> WindowMode(bool multi) const {
    Workspace& workspace = workspace_;
    return [&workspace, multi] {
      workspace.multiWindowMode = multi;
      workspace.window.SetChecked("mnuSingle", !multi);
      workspace.window.SetChecked("mnuMulti", multi);
      if (!multi) CloseOtherForms(workspace);
    };
  }

 private:
  Workspace& workspace_;
  MainWindow& window_;
  std::string parent_;
};

/// Takes back the last edit of the field with the focus.
void UndoEntry(Workspace& workspace) {
  const forms::Form* const sheet = workspace.forms.ActiveSheet();
  if (sheet == nullptr) return;
  if (auto* const box = dynamic_cast<forms::TextBox*>(sheet->Focused())) box->Undo();
}

void AddFileMenu(MenuBuilder& menu) {
  menu.Submenu("", "mnuFile", "ファイル(&F)");
  menu.Add("mnuNewFileOpen", "新規ファイル作成(&N)", menu.Calls(NewFile), "Ctrl+N", "new");
  menu.Add("mnuOpen", "開く(&O)", menu.Calls(OpenFile), "Ctrl+O", "open");
  menu.Submenu("mnuFile", "mnuRecent", "最近使ったファイル(&R)");
  menu.In("mnuFile");
  menu.Add("mnuUpdate", "上書き保存(&S)", menu.Calls(SaveFile), "Ctrl+S", "save");
  menu.Add("mnuSave", "名前を付けて保存(&S)", menu.Calls(SaveFileAs));
  menu.Separator();
  menu.AddForm("mnuExcel", "EXCELデータ生成(&E)", kExportForm, "excel");
  menu.AddForm(kRecalculateCommand, "全タグ再計算(&C)", kRecalculateForm);
  menu.Separator();
  menu.Add("mnuPrint", "印刷(&P)", menu.Calls(Print), "Ctrl+P", "print");
  menu.AddForm("mnuPrintAll", "一括印刷(&A)", kPrintAllForm, "print");
  menu.Add("mnuHCopy", "画面ハードコピー", menu.Calls(HardCopy));
  menu.Separator();
}

void AddEditMenu(MenuBuilder& menu) {
  menu.Submenu("", "mnuEdit", "編集(&E)");
  menu.Add("mnuUndo", "入力を直前値に戻す(&U)", menu.Calls(UndoEntry), {}, "undo");
  menu.Separator();
  menu.AddSheet("mnuCVcatalog", "調節弁カタログデータベース", "EditCV", "catalogue");
  menu.AddSheet("mnuEditPropData", "物性推算用データベース", "EditProp", "fluid-data");
  menu.AddSheet("mnuMaterial", "材料データベース", "Material", "material");
  menu.Separator();
  menu.AddForm("mnuCompany", "発行者名の編集", "frmRegCompany");
  menu.AddForm("mnuUserProgram", "ユーザープログラム登録", "frmUserProgram");
}

void AddDisplayMenu(MenuBuilder& menu) {
  menu.Submenu("", "mnuDisplay", "表示(&V)");
  menu.Submenu("mnuDisplay", "mnuDataList", "データリスト");
  menu.Add("mnuTagList", "Ｔａｇ　Ｌｉｓｔ", menu.Calls(RefreshTagList), {}, "taglist");
  menu.Add("mnuDuct", "ケーブルダクトリスト", menu.Calls(ShowDuctList));
  menu.Submenu("mnuDisplay", "mnuDiaplay", "表示設定(&V)");
  menu.Add("mnuInitialize", "表示サイズ・位置初期化(&I)", menu.Calls(InitialisePlacement));
  menu.Add("mnuSingle", "シングルウィンドウ(&S)", menu.WindowMode(false));
  menu.Add("mnuMulti", "マルチウインドウ(&M)", menu.WindowMode(true));
  menu.In("mnuDisplay");
  menu.Add("mnuPreview", "プレビュー", menu.Calls(ShowPreview), {}, "preview");
}

void AddProgramMenu(MenuBuilder& menu) {
  menu.Submenu("", "mnuProgram", "設計計算(&R)");
  menu.Submenu("mnuProgram", "mnuDP", "差圧式流量計");
  menu.AddSheet("mnuOrifice", "オリフィス　プレート", "⊿P Flow", "dp-flow", 0);
  menu.AddSheet("mnuFlownozzle", "フローノズル", "⊿P Flow", {}, 5);
  menu.AddSheet("mnuVenturi", "ベンチュリー管", "⊿P Flow", {}, 7);
  menu.AddSheet("mnuIntegral", "インテグラルオリフィス", "Integral", "integral");
  menu.In("mnuProgram");
  menu.AddSheet("mnuVortex", "渦流量計", "Vortex", "vortex");
  menu.AddSheet("mnuThermowell", "温度計保護管", "TW", "thermowell");
  menu.AddSheet("mnuTC", "熱電対・測温抵抗体", "測温体", "sensor");
  menu.AddSheet("mnuControlValve", "自動調節弁", "CV", "valve");
  menu.AddSheet("mnuCableDuct", "ｹｰﾌﾞﾙﾀﾞｸﾄｻｲｼﾞﾝｸﾞ", "CableDuct", "duct");
  menu.AddSheet("mnuPressLoss", "配管圧力損失", "圧力損失", "pressure-loss");
  menu.AddSheet("mnuRO", "制限オリフィス", "制限ｵﾘﾌｨｽ", "restriction");
  menu.AddSheet("mnuBussei", "簡易物性推算", "物性推算", "properties");
  menu.Separator();
  menu.Submenu("mnuProgram", "mnuAssist", "計算補助");
  menu.AddForm("mnuUnit", "単位系変換", "frm単位換算", "units");
  menu.AddForm("mnuPipeWeight", "配管重量", "frmPipeWeight", "pipe-weight");
}

void AddButtons(MenuBuilder& menu) {
  menu.Button(1, "新規データシート作成", "new", menu.Calls(NewFile));
  menu.Button(2, "既存データファイルを開く", "open", menu.Calls(OpenFile));
  menu.Button(3, "上書き保存", "save", menu.Calls(SaveFile));
  menu.Button(4, "印刷", "print", menu.Calls(Print));
  menu.Button(5, "データリスト", "taglist", menu.Calls(ShowDataList));
  menu.Button(6, "データシートをEXCELに変換", "excel", menu.FormOpener(kExportForm));
  menu.Button(7, "プレビュー", "preview", menu.Calls(ShowPreview));
  menu.Button(8, "修正前の値に戻す", "undo", menu.Calls(UndoEntry));
  menu.SeparatorButton(9);
  menu.SeparatorButton(10);
  menu.Button(11, "差圧式流量計", "dp-flow", menu.Opener("⊿P Flow"));
  menu.Button(12, "インテグラルオリフィス", "integral", menu.Opener("Integral"));
  menu.Button(13, "渦流量計", "vortex", menu.Opener("Vortex"));
  menu.Button(14, "温度計保護管", "thermowell", menu.Opener("TW"));
  menu.Button(15, "熱電対・測温抵抗体", "sensor", menu.Opener("測温体"));
  menu.Button(16, "自動調節弁", "valve", menu.Opener("CV"));
  menu.Button(17, "ｹｰﾌﾞﾙﾀﾞｸﾄｻｲｼﾞﾝｸﾞ", "duct", menu.Opener("CableDuct"));
  menu.Button(18, "配管圧力損失", "pressure-loss", menu.Opener("圧力損失"));
  menu.Button(19, "制限オリフィス", "restriction", menu.Opener("制限ｵﾘﾌｨｽ"));
  menu.Button(20, "簡易物性推算", "properties", menu.Opener("物性推算"));
  menu.SeparatorButton(21);
  menu.Button(22, "単位系変換", "units", menu.FormOpener("frm単位換算"));
  menu.SeparatorButton(23);
  menu.Button(24, "調節弁カタログデータベース", "catalogue", menu.Opener("EditCV"));
  menu.Button(25, "物性推算用データベース", "fluid-data", menu.Opener("EditProp"));
  menu.Button(26, "材料データベース", "material", menu.Opener("Material"));
  menu.SeparatorButton(27);
  menu.SeparatorButton(28);
  for (int i = 0; i < static_cast<int>(UserPrograms().size()); ++i) menu.UserButton(i);
}

}  // namespace

void BuildMainMenu(Workspace& workspace) {
  MenuBuilder menu(workspace);
  AddFileMenu(menu);
  menu.Add("mnuExit", "終了(&X)", menu.Calls(WorkspaceEnd));
  AddEditMenu(menu);
  AddDisplayMenu(menu);
  menu.Add("mnuToolBar", "ツールバーの表示(&T)", [&workspace] {
    const bool visible = !workspace.window.ToolBarVisible();
    workspace.window.SetToolBarVisible(visible);
    workspace.window.SetChecked("mnuToolBar", visible);
  });
  AddProgramMenu(menu);
  menu.Submenu("", "mnuWindow", "ウィンドウ(&W)");
  menu.Submenu("", "mnuHelp", "ヘルプ(&H)");
  menu.Add("mnuZEPHAHelp", "ヘルプ(&H)", menu.Calls(ShowHelp), "F1");
  menu.Submenu("mnuHelp", "mnuVersion", "バージョン情報");
  menu.AddForm("mnuSystemVersion", "ｼｽﾃﾑのバージョン情報", "frmAbout");
  menu.Add("mnuDataVersion", "ZEPHA Data File のバージョン",
           menu.Calls([](Workspace& space) { ShowDataVersion(space.tags, space.Shown()); }));
  AddButtons(menu);
  workspace.window.onFileDropped = [&workspace](const std::string& path) {
    OpenFileOfItsKind(workspace, path);
  };
  ShowTitle(workspace);
  workspace.window.SetButtonEnabled(kPrintButton, false);  // no sheet is open yet
  workspace.window.SetChecked("mnuToolBar", true);
  workspace.window.SetChecked("mnuSingle", true);
}

}  // namespace shell
