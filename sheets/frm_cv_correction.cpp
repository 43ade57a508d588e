#include "sheets/frm_cv_correction.h"

#include "common/number.h"
#include "data/process_state.h"

namespace sheets {

namespace {

using common::Real;

constexpr const char* kFactor = "#0.0000";

/// A number as mantissa and power of ten, "1.234×10＾5"; the mantissa keeps below 10 when rounded.
std::string PowerOfTenText(Real value) {
  if (value <= 0) return {};
  int exponent = common::IntIndex(common::Int(common::Log10(value)));
  Real mantissa = common::RoundDigits(value / pow(Real(10), exponent), 3);
  if (mantissa >= 10) {
    mantissa /= 10;
    ++exponent;
  }
  return common::Format(mantissa, "#0.000") + "×10＾" + std::to_string(exponent);
}

/// The value in a format; empty where there is none.
std::string TextOf(const std::optional<Real>& value, const char* format) {
  return value ? common::Format(*value, format) : std::string();
}

}  // namespace

CorrectionForm::CorrectionForm(shell::Workspace& workspace, const char* name, std::string caption)
    : Form(name, std::move(caption), forms::FormRole::kDialog), workspace_(workspace) {
  cmdOK.onClick = [this] { workspace_.forms.Unload(*this); };
}

void CorrectionForm::Load() {
  const auto* const sheet = dynamic_cast<CorrectionSource*>(workspace_.forms.ActiveSheet());
  if (sheet == nullptr) return;
  const valve::CorrectionDetail detail = sheet->Correction();
  lblFp.SetText(detail.choked ? "圧力回復・配管形状係数 FLP" : "配管形状係数 Fp");
  const Real factor = detail.PipingFactor();
  lblFpR.SetText(factor == 0 ? std::string() : common::Format(factor, kFactor));
  const bool compressible = detail.fluidPhase != data::kLiquid;
  lblY.SetVisible(compressible);
  lblYR.SetVisible(compressible);
  ShowDetail(detail);
}

void CorrectionForm::LayOut(std::vector<forms::Line> lines, forms::Line buttons) {
  lines.push_back({forms::Cell(lbl説明).Over(2)});
  SetLayout(forms::Column({
      forms::Results("", forms::Table(std::move(lines))),
      forms::Buttons(std::move(buttons)),
  }));
}

frm本山微少弁::frm本山微少弁(shell::Workspace& workspace)
    : CorrectionForm(workspace, kName, "本山 微少流量弁のCv補正") {
  lbl説明.SetText("Cv ＝ 計算Cv ÷ Fr。Re ＞ 10,000 では Fr ＝ 1 です。");
  LayOut({{lblFp, lblFpR}, {lblRe, lblReR}, {lblFr, lblFrR}, {lblY, lblYR}}, {{}, cmdOK});
}

void frm本山微少弁::ShowDetail(const valve::CorrectionDetail& detail) {
  lblReR.SetText(TextOf(detail.re, "#,###"));
  lblFrR.SetText(TextOf(detail.fr, kFactor));
  lblYR.SetText(TextOf(detail.y, kFactor));
}

frm山武微少弁::frm山武微少弁(shell::Workspace& workspace)
    : CorrectionForm(workspace, kName, "山武 微少流量弁のCv補正") {
  lbl説明.SetText("Cv ＝ 計算Cv × Fm");
  LayOut({{lblFp, lblFpR}, {lblRv, lblRvR}, {lblFm, lblFmR}, {lblY, lblYR}}, {{}, cmdOK});
}

void frm山武微少弁::ShowDetail(const valve::CorrectionDetail& detail) {
  lblRvR.SetText(detail.rv ? PowerOfTenText(*detail.rv) : std::string());
  lblFmR.SetText(TextOf(detail.fm, "##0.0"));
  lblYR.SetText(TextOf(detail.y, "#0.000"));
}

frmCv計算補正::frmCv計算補正(shell::Workspace& workspace)
    : CorrectionForm(workspace, kName, "Cv計算の補正") {
  cmd補正データ.onClick = [this] { Space().forms.Show(frmCv補正データ::kName); };
  lblFr.onDblClick = cmd補正データ.onClick;
  lblFrR.onDblClick = cmd補正データ.onClick;
  // A gas has Y in the place where a liquid has its Reynolds number.
  LayOut({{lblFp, lblFpR},
          {forms::Cell::OneOf({&lblY, &lblRe}), forms::Cell::OneOf({&lblYR, &lblReR})},
          {lblFr, lblFrR}},
         {cmd補正データ, {}, cmdOK});
}

void frmCv計算補正::ShowDetail(const valve::CorrectionDetail& detail) {
  constexpr double kShownWithDecimals = 99;
  const bool liquid = detail.fluidPhase == data::kLiquid;
  forms::Label* const ofLiquids[] = {&lblRe, &lblReR, &lblFr, &lblFrR};
  for (forms::Label* label : ofLiquids) label->SetVisible(liquid);
  lblYR.SetText(TextOf(detail.y, kFactor));
  if (!liquid) {
    lbl説明.SetText("気体・蒸気は粘度補正を行いません。");
    return;
  }
  const bool small = detail.re && *detail.re < kShownWithDecimals;
  lblReR.SetText(TextOf(detail.re, small ? "#0.00" : "#,###"));
  lblFrR.SetText(TextOf(detail.fr, kFactor));
  lbl説明.SetText(detail.re ? "Cv ＝ 計算Cv ÷ Fr"
                            : "粘性係数がないため、粘度補正を行っていません。");
}

}  // namespace sheets
