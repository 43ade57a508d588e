#include "sheets/frm_move.h"

#include <utility>

namespace sheets {

using Order = frm単位換算::Order;

frmMove::frmMove(shell::Workspace& workspace)
    : Form(kName, "", forms::FormRole::kDialog), workspace_(workspace) {
  cmdUp.SetToolTip("上へ移動");
  cmdDown.SetToolTip("下へ移動");
  cmdUp.onClick = [this] { Move(-1); };
  cmdDown.onClick = [this] { Move(1); };
  cmdOK.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{lblMove}}),
      forms::Stretched(forms::Table({{lstMove}})),
      forms::Buttons({cmdUp, cmdDown, {}, cmdOK}),
  }));
}

void frmMove::Load() {
  const frm単位換算* const converter = OpenConverter(workspace_);
  if (converter == nullptr || converter->Table().Empty()) return;
  order_ = converter->Moving();
  if (order_ == Order::kCategories) {
    lblMove.SetText("分類名を指定後、移動キーで移動");
    SetCaption("   分類名順序変更");
    lstMove.SetItems(converter->lstCategory.Items());
    lstMove.SetIndex(converter->CategoryPlace());
  } else {
    lblMove.SetText("単位名を指定後、移動キーで移動");
    SetCaption("【" + converter->Category().categoryName + "】 －　単位名順序変更");
    lstMove.SetItems(converter->lstLeft.Items());
    lstMove.SetIndex(converter->UnitPlace());
  }
}

void frmMove::Move(int step) {
  frm単位換算* const converter = OpenConverter(workspace_);
  const int from = lstMove.Index();
  const int to = from + step;
  if (converter == nullptr || from < 0 || to < 0 || to >= lstMove.Count()) return;
  if (order_ == Order::kCategories) {
    auto& categories = converter->Table().categories;
    std::swap(common::At(categories, from), common::At(categories, to));
    converter->Edited(to, 0);
    lstMove.SetItems(converter->lstCategory.Items());
  } else {
    data::ExchangeUnits(converter->Category(), from, to);
    converter->Edited(converter->CategoryPlace(), to);
    lstMove.SetItems(converter->lstLeft.Items());
  }
  lstMove.SetIndex(to);
}

}  // namespace sheets
