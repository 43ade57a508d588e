#include "sheets/frm_zepha2excel.h"

#include <cstdio>

#include "common/fault.h"
#include "common/file.h"

namespace sheets {

frmZepha2Excel::frmZepha2Excel(shell::Workspace& workspace)
    : Form(kName, "ZEPHA to EXCEL　ファイル変換", forms::FormRole::kDialog), workspace_(workspace) {
  cmdExchangeStart.onClick = [this] { cmdExchangeStart_Click(); };
  cmdEnd.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{forms::Cell(lblMessage).Wide(44)}, {ProgressBar1}}),
      forms::Buttons({{}, cmdExchangeStart, cmdEnd}),
  }));
}

void frmZepha2Excel::Load() {
  ShowIdle();
  SetFocus(cmdExchangeStart);
}

/// The window may be closed in the middle of the work.
void frmZepha2Excel::Unload() {
  if (export_) std::remove(path_.c_str());
  export_.reset();
}

void frmZepha2Excel::ShowIdle() {
  cmdExchangeStart.SetEnabled(true);
  cmdEnd.SetEnabled(true);
  lblMessage.SetText("ＥＸＣＥＬデータを生成します。");
  ProgressBar1.SetValue(0);
}

void frmZepha2Excel::cmdExchangeStart_Click() {
  path_ = shell::NewWorkbookPath(workspace_.tags.zephaFileName);
  export_ = std::make_unique<shell::TagExport>(workspace_);
  cmdExchangeStart.SetEnabled(false);
  cmdEnd.SetEnabled(false);
  lblMessage.SetText("ＥＸＣＥＬデータを生成中です。");
  ProgressBar1.SetMaximum(export_->Steps());
  ProgressBar1.SetValue(0);
  workspace_.Shown().RunSteps(*this, [this] { return Step(); });
}

bool frmZepha2Excel::Step() {
  try {
    return TakeStep();
  } catch (const common::RuntimeFault& fault) {
    export_.reset();
    std::remove(path_.c_str());
    workspace_.Shown().Show(fault.Text(), {}, common::Icon::kWarning);
    ShowIdle();
    return false;
  }
}

bool frmZepha2Excel::TakeStep() {
  if (!export_) return false;
  if (export_->Next()) {
    ProgressBar1.SetValue(export_->Done());
    return true;
  }
  common::WriteFile(path_, export_->Finish());
  export_.reset();
  Finish();
  return false;
}

/// Without a program for workbooks the user has to know where the file is.
void frmZepha2Excel::Finish() {
  const bool opened = workspace_.platform != nullptr && workspace_.platform->OpenWithDesktop(path_);
  if (!opened) {
    workspace_.Shown().Show("Excelを起動できません。\n次のファイルに保存してあります。\n" + path_,
                            {}, common::Icon::kWarning);
  }
  workspace_.Shown().Show("変換は終了しました。", {}, common::Icon::kInformation);
  ShowIdle();
}

}  // namespace sheets
