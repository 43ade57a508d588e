#include "common/number.h"
#include "sheets/frm_cv_correction.h"
#include "valve/viscosity.h"

namespace sheets {

namespace {

using common::Real;

/// Reynolds numbers of the table: 1, 2 and 5 of each decade from 0.01 to 1e6, where the rule holds.
std::vector<std::vector<std::string>> ReynoldsFactors() {
  std::vector<std::vector<std::string>> rows;
  const auto add = [&rows](Real re) {
    const Real fr = valve::IsaReynoldsFactor(re);
    const Real multiple = 1 / fr;
    rows.push_back({common::Format(re, re < 1 ? "0.00" : "#,##0"), common::Format(fr, "0.0000"),
                    common::Format(multiple, multiple < 10 ? "0.000" : "##0.0")});
  };
  for (int decade = -2; decade < 6; ++decade) {
    for (const int step : {1, 2, 5}) add(step * pow(Real(10), decade));
  }
  add(1e6);
  return rows;
}

}  // namespace

frmCv補正データ::frmCv補正データ(shell::Workspace& workspace)
    : Form(kName, "Cv補正データ", forms::FormRole::kDialog) {
  lbl適用範囲.SetText(
      "液体のレイノルズ数係数（ISA S75.01の曲線の近似式）。Cv ＝ 計算Cv ÷ Fr\n"
      "適用範囲：0.01 ≦ Re ≦ 1,000,000。範囲外は補正しません（Fr ＝ 1）。\n"
      "Re は弁口径をmmで入れる式によるため規格より4～16倍大きく、補正は不足側です。");
  cmdOK.onClick = [this, &workspace] { workspace.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{lbl適用範囲}}),
      forms::Stretched(forms::Table({{grd補正データ}})),
      forms::Buttons({{}, cmdOK}),
  }));
}

void frmCv補正データ::Load() { grd補正データ.SetRows(ReynoldsFactors()); }

}  // namespace sheets
