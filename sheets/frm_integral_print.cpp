// The printed page of the integral orifice sheet.

#include "common/text.h"
#include "sheets/calculation_page.h"
#include "sheets/frm_integral.h"

namespace sheets {

namespace {

using common::PadLeftToBytes;

constexpr const char* kTableHead1 = "   ｵﾘﾌｨｽ     　ｵﾘﾌｨｽ径　　　    　発生差圧       ";
constexpr const char* kTableHead2 = "    型式      　(mm)　　    　(kPa)　     　(mmH2O)    ";

}  // namespace

bool frmIntegral::PrintIntegral(shell::PrintSurface& target) {
  CalculationPage page(target);
  page.Title("ＩＮＴＥＧＲＡＬ　ＯＲＩＦＩＣＥ　ＣＡＬＣＵＬＡＴＩＯＮ　ＳＨＥＥＴ");
  page.Section("入 力 デ ー タ");
  PrintEntries(page);
  PrintBores(page, target);
  page.Section("個別計算結果");
  PrintDetail(page);
  return true;
}

void frmIntegral::PrintEntries(CalculationPage& page) {
  const std::string flowUnit = FlowUnitBox().Text();
  page.Line("Ｔａｇ．　Ｎｏ． ", txtTagNo.Text());
  page.Line("用　   　　　　途", txt用途.Text());
  page.Line("流　   　　　　体", cbo流体.Text());
  page.Line("目 　盛　 流 　量", txt目盛流量.Text(), flowUnit);
  page.Line("常 　用 　流 　量", txt常用流量.Text(), flowUnit);
  page.Line("圧　　   　　　力", txt圧力.Text(), cbo圧力単位.Text());
  page.Line("温　　　   　　度", txt温度.Text(), cbo温度単位.Text());
  PrintDensities(page, Process().densityBase, Process().densityFlow);
  PrintGas(page, "偏差係数");
}

/// A line a bore, below the heads of the table; what cannot be used is red, as on the sheet.
void frmIntegral::PrintBores(CalculationPage& page, shell::PrintSurface& target) {
  page.Text("計 器 型 式　：　" + cbo計器型式.Text());
  page.Text(kTableHead1);
  page.Text(kTableHead2);
  for (int i = 0; i < kRows; ++i) {
    if (lblOrificeDia[i].Text().empty()) continue;
    target.SetColor(lblDPmm[i].ForeColor());
    page.Text(PadLeftToBytes(lblOrificeNo[i].Text(), 7) +
              PadLeftToBytes(lblOrificeDia[i].Text(), 15) + PadLeftToBytes(lblDPkpa[i].Text(), 15) +
              PadLeftToBytes(lblDPmm[i].Text(), 16));
    target.SetColor(forms::kBlack);
  }
}

void frmIntegral::PrintDetail(CalculationPage& page) {
  const int bore = cboOrificeNo.Index();
  const std::string airUnit = "    " + lbl空気相当流量単位.Text();
  const std::string differential = lbl差圧結果[1].Text();
  page.Line("オリフィス型式", cboOrificeNo.Text());
  page.Line("オリフィス径", bore < 0 ? "" : lblOrificeDia[bore].Text(), "    mm");
  page.Line("常用レイノルズ数", lblNorReynolds.Text(), lblReynoldsKind.Text());
  page.Line("流量係数比(Kaf/Ka)", lblKaf.Text());
  page.Line("水相当流量", lbl水相当流量.Text(), "    l/min");
  page.Line("空気相当流量", lbl空気相当流量.Text(), airUnit);
  page.Line("膨張補正係数（ε）", lbl膨張補正係数.Text());
  page.Line("流量係数α", lblα.Text());
  page.Line("発   生   差   圧", differential,
            differential.empty() ? "" : "    kPa (" + lbl差圧結果[0].Text() + " mmH2O)");
  page.Remarks(lbl注意.Text());
}

}  // namespace sheets
