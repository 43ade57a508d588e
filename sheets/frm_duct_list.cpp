#include "sheets/frm_duct_list.h"

#include "sheets/frm_cable.h"

namespace sheets {

frmDuctList::frmDuctList(shell::Workspace& workspace)
    : Form(kName, "Duct List", forms::FormRole::kTool), workspace_(workspace) {
  const auto edits = [this](forms::Button& button, void (shell::DuctStore::*edit)()) {
    button.onClick = [this, edit] {
      (workspace_.ducts.*edit)();
      ShowStore();
    };
  };
  lstDuct.onClick = [this] { workspace_.ducts.Select(lstDuct.Index()); };
  lstDuct.onDblClick = [this] { cmdSend_Click(); };
  lstDuct.onEnter = lstDuct.onDblClick;
  cmdSend.onClick = lstDuct.onDblClick;
  cmdSend.SetToolTip("計算画面へのデータの呼び出し");
  cmdAdd.onClick = [this] { cmdAdd_Click(); };
  cmdAdd.SetToolTip("Duct List へ追加");
  edits(cmdDelete, &shell::DuctStore::Delete);
  cmdDelete.SetToolTip("Duct List から削除");
  edits(cmdUp, &shell::DuctStore::MoveUp);
  cmdUp.SetToolTip("登録順を上へ移動");
  edits(cmdDown, &shell::DuctStore::MoveDown);
  cmdDown.SetToolTip("登録順を下へ移動");
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lstDuct}})),
      forms::Buttons({cmdUp, cmdDown}),
      forms::Buttons({cmdAdd, cmdDelete, {}, cmdSend}),
  }));
}

void frmDuctList::ShowStore() {
  const Quiet quiet(*this);
  const shell::DuctStore& ducts = workspace_.ducts;
  lstDuct.SetItems(ducts.Lines());
  lstDuct.SetIndex(ducts.Selection());
  SetCaption(ducts.ListCaption());
}

void frmDuctList::cmdAdd_Click() {
  frmCable* const sheet = OpenCableSheet(workspace_);
  if (sheet == nullptr) {
    workspace_.Shown().Show("ケーブルダクトサイジングの画面が開かれていません。");
    return;
  }
  workspace_.ducts.Add(sheet->Record(), workspace_.Shown());
  ShowStore();
}

void frmDuctList::cmdSend_Click() {
  const int row = workspace_.ducts.Selection();
  if (row < 0) return;
  shell::OpenSheet(workspace_, frmCable::kKind);
  workspace_.forms.Show(frmCable::kName);
  if (frmCable* const sheet = OpenCableSheet(workspace_)) sheet->Show(workspace_.ducts.Row(row));
}

}  // namespace sheets
