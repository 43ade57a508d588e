// The printed page of the restriction orifice sheet.

#include <algorithm>

#include "sheets/calculation_page.h"
#include "sheets/frm_ro.h"

namespace sheets {

namespace {

constexpr const char* kMillimetres = "    mm";

constexpr double kPictureGap = 200;  // twips
/// Smallest height at which the section is worth its place, twips.
constexpr double kLeastPicture = 2200;

}  // namespace

bool frmRO::PrintRO(shell::PrintSurface& target) {
  CalculationPage page(target);
  page.Title("RESTRICTION　ORIFICE　CALCULATION　SHEET");
  page.Section("入 力 デ ー タ");
  PrintEntries(page);
  page.Gap();
  page.Section("計 算 結 果");
  PrintResults(page, target);
  const double share = pic断面.Width() / pic断面.Height();
  const double height = std::min(page.Room() - kPictureGap, pic断面.Height());
  if (height >= kLeastPicture) page.Picture(pic断面, height * share);
  return true;
}

void frmRO::PrintEntries(CalculationPage& page) {
  page.Line("Ｔａｇ．　Ｎｏ． ", txtTagNo.Text());
  page.Line("用　   　　　　途", txt用途.Text());
  page.Line("流　   　　　　体", cbo流体.Text());
  page.Line("流　　　　　量", txt流量.Text(), FlowUnitBox().Text());
  page.Line("圧　　   　　　力", txt圧力.Text(), cbo圧力単位.Text());
  page.Line("差　　   　　　圧", txt差圧.Text(), cbo差圧単位.Text());
  page.Line("温　　　   　　度", txt温度.Text(), cbo温度単位.Text());
  PrintDensities(page, Process().densityBase, Process().densityFlow);
  PrintGas(page, "圧   縮   係   数");
  page.Line("Ｒ.Ｏ. 材 質", cboRO材質.Text());
  page.Line("Ｒ.Ｏ.のヤング率 ", txtヤング率.Text(), cboヤング率単位.Text());
  page.Line("Ｒ.Ｏ.の許容応力 ", txt許容応力.Text(), cbo許容応力単位.Text());
  page.Line("配　 管　 種　 類", cbo配管呼称径.Text() + " " + cboSchedule.Text());
  page.Line("配 　管 　内 　径", txt配管内径.Text(), kMillimetres);
  page.Line("Ｒ.Ｏ. の 板 厚  ", txtThickness.Text(), kMillimetres);
}

void frmRO::PrintResults(CalculationPage& page, shell::PrintSurface& target) {
  const bool calculated = !lblβ.Text().empty();
  const auto warn = [&](const Label& judged, const std::string& text) {
    if (!calculated || judged.ForeColor() != forms::kRed) return;
    target.SetColor(forms::kRed);
    page.Text(text);
    target.SetColor(forms::kBlack);
  };
  page.Line("流  速(上流配管) ", lbl流速1.Text(), "    m/sec");
  page.Line("流   量   係   数", lbl流量係数.Text());
  page.Line("背   圧   補   正", lbl背圧補正.Text());
  page.Line("ノズル絞り比（β）", lblβ.Text());
  page.Line("オリフィス径", lbl絞り径.Text(), kMillimetres);
  page.Line("た わ み 係 数   ", lblたわみ係数.Text());
  page.Line("応   力   係   数", lbl応力係数.Text());
  page.Line("最   大   応   力", lbl最大応力.Text(), lbl最大応力単位.Text());
  if (calculated) {
    page.Text(Label5[0].Text() == kTangential ? "オリフィス内周(絞り部)での円周方向応力です。"
                                              : "オリフィス外周(配管内径部)での半径方向応力です。");
  }
  warn(lbl最大応力, "最大応力が許容応力を超えています。板厚を大きくしてください。");
  page.Line("必   要   板   厚", lblMinThickness.Text(), kMillimetres);
  page.Line("変     形     量 ", lbl変形量.Text(), kMillimetres);
  warn(lbl変形量, "変形量がダム高さの１％を超えています。板厚を大きくしてください。");
  page.Remarks(lbl注意.Text());
}

}  // namespace sheets
