// The printed page of the thermowell sheet.

#include "common/text.h"
#include "sheets/calculation_page.h"
#include "sheets/frm_tw.h"

namespace sheets {

namespace {

constexpr const char* kMillimetres = "    mm";

/// Columns, in bytes, in which the values of the lines end.
constexpr int kValueEnd = 58;

/// A judgement in its colour.
void PrintJudgement(shell::PrintSurface& target, CalculationPage& page, const Label& label) {
  target.SetColor(label.ForeColor());
  page.Text(label.Text());
  target.SetColor(forms::kBlack);
}

}  // namespace

bool frmTW::PrintTW(shell::PrintSurface& target) {
  CalculationPage page(target);
  page.Title("ＴＨＥＲＭＯ－ＷＥＬＬ　ＣＡＬＣＵＬＡＴＩＯＮ　ＳＨＥＥＴ");
  page.Section("入 力 デ ー タ");
  PrintConditions(page);
  PrintWell(page);
  page.Gap();
  page.Section("計 算 結 果");
  PrintResults(target, page);
  return true;
}

void frmTW::PrintConditions(CalculationPage& page) {
  page.Line("Ｔａｇ  Ｎo．  ", txtTagNo.Text());
  page.Line("使  用  場  所 ", txt用途.Text());
  page.Line("設  置  形  態 ", cbo設置形式.Text());
  page.Line("流  体　相     ", cbo流体.Text());
  page.Line("流  体  圧  力 ", txt圧力.Text(), cbo圧力単位.Text());
  page.Line("流  体  温  度 ", txt温度.Text(), cbo温度単位.Text());
  page.Line("密  度（比  重） ", txt密度.Text(), DensityUnitBox().Text());
  page.Line("粘  性  係  数   ", txt粘性係数.Text(), cbo粘性係数単位.Text());
  if (InTank()) {
    page.Line("撹 拌 機 回 転 数", txt流量.Text(), "    rpm");
    page.Line("インペラー 直 径 ", txt配管内径.Text(), kMillimetres);
    page.Line("撹 拌 槽  内 径  ", txt攪拌槽内径.Text(), kMillimetres);
  } else {
    page.Line("流  速（最　大） ", lbl流速R.Text(), "    m/s");
    page.Line("流  量（最  大） ", txt流量.Text(), FlowUnitBox().Text());
    page.Line("配  管  内  径   ", txt配管内径.Text(), kMillimetres);
  }
}

void frmTW::PrintWell(CalculationPage& page) {
  page.Line("保 護 管 材 質   ", cbo保護管材質.Text());
  page.Line("保 護 管 密 度   ", txt保護管密度.Text(), "    kg/m3");
  page.Line("ヤ  ン  グ  率   ", txtヤング率.Text(), cboヤング率単位.Text());
  page.Line("許  容  応  力   ", txt許容応力.Text(), cbo許容応力単位.Text());
  page.Line("先  端  外  径   ", txt先端外径.Text(), kMillimetres);
  page.Line("根  元  外  径   ", txt根元外径.Text(), kMillimetres);
  page.Line("保 護 管 内 径   ", txt保護管内径.Text(), kMillimetres);
  page.Line("保  護  管  長   ", txt保護管長.Text(), kMillimetres);
  page.Line("挿    入    長   ", txt挿入長.Text(), kMillimetres);
  page.Line("先  端  厚  さ   ", txtWellT.Text(), kMillimetres);
  page.Line("臨 界 減 衰 率   ", txt臨界減衰率.Text());
  page.Line("応力集中係数     ", txt応力集中係数.Text());
}

void frmTW::PrintResults(shell::PrintSurface& target, CalculationPage& page) {
  const std::string stressUnit = cbo許容応力単位.Text();
  if (InTank()) page.Line("流          速   ", lbl流速R.Text(), "    m/s");
  page.Line("レイノルズ数     ", lblレイノルズ数R.Text());
  page.Line("ストローハル数   ", lblストローハル数.Text());
  page.Line("カルマン渦周波数 ", lblカルマン渦周波数R.Text(), "    Hz");
  target.SetColor(lbl固有振動数.ForeColor());
  page.Line("固有振動数(1次)  ", lbl固有振動数.Text(), "    Hz");
  target.SetColor(forms::kBlack);
  page.Line("換算流速   (Ｖr) ", lblVr.Text());
  page.Line("換算減衰率 (Ｃn) ", lblCn.Text());
  PrintJudgement(target, page, lbl同期振動判定);
  page.Line("定常抗力の応力   ", lbl定常抗力.Text(), stressUnit);
  PrintJudgement(target, page, lbl定常抗力判定);
  page.Line("応  力  振  幅   ", lbl励振力.Text(), stressUnit);
  const std::string label = "応力集中を考慮した応力振幅   ";
  page.Text(label +
            common::PadLeftToBytes(concentratedAmplitude_, kValueEnd - common::Cp932Length(label)) +
            (concentratedAmplitude_.empty() ? "" : "    " + stressUnit));
  PrintJudgement(target, page, lbl励振力判定);
}

}  // namespace sheets
