#include "sheets/frm_rating.h"

namespace sheets {

frmRating::frmRating(shell::Workspace& workspace)
    : Form(kName, "フランジ規格", forms::FormRole::kDialog), workspace_(workspace) {
  cmdOK.onClick = [this] { cmdOK_Click(); };
  lstRating.onDblClick = cmdOK.onClick;
  lstRating.onEnter = cmdOK.onClick;
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lblRating}, {lstRating}})),
      forms::Buttons({{}, cmdOK, cmdCancel}),
  }));
}

RatingTarget* frmRating::Sheet() const {
  return dynamic_cast<RatingTarget*>(workspace_.forms.ActiveSheet());
}

void frmRating::Load() {
  const Quiet quiet(*this);
  lstRating.SetItems(valve::kFlangeRatings);
  const RatingTarget* const sheet = Sheet();
  if (sheet != nullptr) lstRating.SetIndex(lstRating.IndexOf(sheet->FlangeRating()));
}

void frmRating::cmdOK_Click() {
  if (lstRating.Index() < 0) {
    workspace_.Shown().Show("フランジ規格が選択されていません。", {}, common::Icon::kWarning);
    return;
  }
  if (RatingTarget* const sheet = Sheet()) {
    const valve::ValveDiaTable& bores = workspace_.tables.valveDiameters;
    const int size = sheet->BodySizeIndex();
    const std::string bore =
        size < 0 ? std::string() : common::At(common::At(bores.valveDia, lstRating.Index()), size);
    if (bore.empty()) {
      workspace_.Shown().Show("指定の弁サイズはﾃﾞｰﾀﾍﾞｰｽに登録されていません。", "調節弁口径");
      return;
    }
    sheet->TakeRating(lstRating.Text(), bore);
  }
  workspace_.forms.Unload(*this);
}

}  // namespace sheets
