#include "sheets/frm_tag_list.h"

#include "shell/tag_commands.h"

namespace sheets {

frmTagList::frmTagList(shell::Workspace& workspace)
    : Form(kName, "Tag List", forms::FormRole::kTool), workspace_(workspace) {
  lstTagNo.onClick = [this] { lstTagNo_Click(); };
  lstTagNo.onDblClick = [this] { cmdTagCall_Click(); };
  lstTagNo.onEnter = lstTagNo.onDblClick;
  cmdTagCall.onClick = lstTagNo.onDblClick;
  cmdTagCall.SetToolTip("計算画面へのデータの呼び出し");
  cmd追加.onClick = [this] {
    shell::RegisterTag(workspace_);
    ShowEdited();
  };
  cmd追加.SetToolTip("Tag List へ追加");
  cmdTagDelete.onClick = [this] {
    workspace_.tags.Delete(workspace_.Shown());
    ShowEdited();
  };
  cmdTagDelete.SetToolTip("Tag List から削除");
  Edits(cmdUp, &shell::TagStore::MoveUp);
  cmdUp.SetToolTip("登録順を上へ移動");
  Edits(cmdDown, &shell::TagStore::MoveDown);
  cmdDown.SetToolTip("登録順を下へ移動");
  Edits(cmdTagSort, &shell::TagStore::SortByTag);
  cmdTagSort.SetToolTip("Tag No. 順にソート");
  Edits(cmdCategorySort, &shell::TagStore::SortByKind);
  cmdCategorySort.SetToolTip("分類別にソート");
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lstTagNo}})),
      forms::Buttons(
          {lblNo, forms::Cell(lblListNo).Wide(4), cmdUp, cmdDown, {}, cmdTagSort, cmdCategorySort}),
      forms::Buttons({cmd追加, cmdTagDelete, {}, cmdTagCall}),
  }));
}

void frmTagList::Edits(forms::Button& button, void (shell::TagStore::*edit)()) {
  button.onClick = [this, edit] {
    (workspace_.tags.*edit)();
    ShowEdited();
  };
}

void frmTagList::Load() {
  workspace_.tags.ListOpened();
  ShowStore();
  lblListNo.SetText(std::to_string(workspace_.tags.lastTagIndex));
}

void frmTagList::Activate() { ShowStore(); }

void frmTagList::Unload() { workspace_.tags.ListClosed(); }

void frmTagList::ShowStore() {
  const Quiet quiet(*this);
  const shell::TagStore& tags = workspace_.tags;
  if (lstTagNo.Items() != tags.Lines()) lstTagNo.SetItems(tags.Lines());
  lstTagNo.SetIndex(tags.Selection() < lstTagNo.Count() ? tags.Selection() : -1);
  SetCaption(tags.ListCaption());
  shell::ShowTitle(workspace_);
}

void frmTagList::ShowEdited() {
  ShowStore();
  ShowNumber();
}

void frmTagList::ShowNumber() { lblListNo.SetText(std::to_string(workspace_.tags.ListNumber())); }

void frmTagList::lstTagNo_Click() {
  if (lstTagNo.Index() < 0) return;
  workspace_.tags.SelectLine(lstTagNo.Index());
  ShowNumber();
}

void frmTagList::cmdTagCall_Click() {
  shell::RecallSelectedTag(workspace_);
  ShowNumber();
}

}  // namespace sheets
