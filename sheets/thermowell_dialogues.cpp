#include "sheets/thermowell_dialogues.h"

#include "common/number.h"
#include "sheets/frm_tw.h"

namespace sheets {

namespace {

using common::NumberText;
using common::Val;

constexpr double kStep = 0.1;  // mm of radius per step of the bar

frmTW* Thermowell(const shell::Workspace& workspace) {
  return dynamic_cast<frmTW*>(workspace.forms.ActiveSheet());
}

}  // namespace

frm形状係数::frm形状係数(shell::Workspace& workspace)
    : Form(kName, "応力集中係数", forms::FormRole::kDialog), workspace_(workspace) {
  txt切欠き.onChange = [this] { txt切欠き_Change(); };
  VScroll1.onChange = [this] { VScroll1_Change(); };
  Command1.onClick = [this] { Command1_Click(); };
  Command2.onClick = [this] { workspace_.forms.Unload(*this); };
  VScroll1.SetLargeChange(10);
  SetLayout(forms::Column({
      forms::Row({forms::Stretched(forms::Table({{lbl根元外径, lblRootDia, "mm"},
                                                 {lbl切欠き, txt切欠き, "mm"},
                                                 {lblKt, lbl係数R, ""}})),
                  forms::Table({{VScroll1}})}),
      forms::Buttons({{}, Command1, Command2}),
  }));
}

void frm形状係数::Load() {
  const Quiet quiet(*this);
  VScroll1.SetValue(kSteps);
  if (const frmTW* const sheet = Thermowell(workspace_)) {
    lblRootDia.SetText(sheet->txt根元外径.Text());
  }
  SetFocus(txt切欠き);
}

/// The bar stands at its foot for a radius of 0.
void frm形状係数::VScroll1_Change() {
  txt切欠き.SetText(NumberText(common::RoundDigits((kSteps - VScroll1.Value()) * kStep, 1)));
}

/// Shows the coefficient of a radius that can be calculated, without a message while it is typed.
void frm形状係数::txt切欠き_Change() {
  const common::Real radius = Val(txt切欠き.Text());
  const common::Real diameter = Val(lblRootDia.Text());
  lbl係数R.SetText("");
  {
    const Quiet quiet(*this);
    const common::Real steps = kSteps - common::RoundDigits(radius / kStep, 0);
    VScroll1.SetValue(steps > 0 ? common::IntIndex(steps) : 0);
  }
  if (diameter == 0) return;
  if (const auto Kt = temperature::NotchStressConcentration(radius, diameter)) {
    lbl係数R.SetText(NumberText(common::RoundDigits(*Kt, 2)));
  }
}

void frm形状係数::Command1_Click() {
  const auto Kt =
      temperature::NotchStressConcentration(Val(txt切欠き.Text()), Val(lblRootDia.Text()));
  if (!Kt) {
    workspace_.Shown().Show("面取り半径/保護管直径が0.5以上は計算できません。", "応力集中係数");
    return;
  }
  if (frmTW* const sheet = Thermowell(workspace_)) {
    sheet->txt応力集中係数.SetText(NumberText(common::RoundDigits(*Kt, 2)));
  }
  workspace_.forms.Unload(*this);
}

frmTW判定条件::frmTW判定条件(shell::Workspace& workspace)
    : Form(kName, "JSME S 012 同期振動発生の判定", forms::FormRole::kDialog) {
  cmdOK.onClick = [this, &workspace] { workspace.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{lblTitle}, {lblSubtitle}}),
      forms::Group("", forms::Table({{lbl説明}, {lbl条件a}, {lbl条件b}, {lbl条件c}})),
      forms::Buttons({{}, cmdOK}),
  }));
}

frm振動数判定::frm振動数判定(shell::Workspace& workspace)
    : Form(kName, "参考", forms::FormRole::kDialog), workspace_(workspace) {
  cmdOK.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{lblMethod}}),
      forms::Stretched(forms::Table({{grd振動数}})),
      forms::Table({{lblRemark}}),
      forms::Buttons({{}, cmdOK}),
  }));
}

void frm振動数判定::Load() {
  if (const frmTW* const sheet = Thermowell(workspace_)) grd振動数.SetRows(sheet->ModeRows());
}

}  // namespace sheets
