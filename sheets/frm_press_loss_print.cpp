// The printed page of the pressure loss sheet.

#include "common/text.h"
#include "sheets/frm_press_loss.h"

namespace sheets {

namespace {

constexpr const char* kVelocityUnit = "    m/s";
constexpr const char* kMillimetre = "    mm";

/// Fittings of a line of the list, and the columns of one: name and count, CP932 bytes.
constexpr int kFittingsPerLine = 2;
constexpr int kNameBytes = 11;
constexpr int kCountBytes = 6;
constexpr const char* kBetween = "  ";
constexpr int kLineBytes = kFittingsPerLine * (kNameBytes + kCountBytes) + 2;

}  // namespace

bool frmPressLoss::PrintPressLoss(shell::PrintSurface& target) {
  CalculationPage page(target);
  page.Title("配 管 圧 力 損 失　計　算　書");
  page.Section("入 力 デ ー タ");
  PrintConditions(page);
  PrintPipe(page);
  page.Gap();
  page.Section("計　 算 　結 　果");
  PrintResults(page);
  return true;
}

void frmPressLoss::PrintConditions(CalculationPage& page) {
  page.Line("Ｌｉｎｅ　Ｎｏ． ", txtTagNo.Text());
  page.Line("用　   　　　　途", txt用途.Text());
  page.Line("流　   　　　　体", cbo流体.Text());
  page.Line("流　　　　　 　量", txt流量.Text(), FlowUnitBox().Text());
  page.Line("圧　　   　　　力", txt圧力.Text(), cbo圧力単位.Text());
  page.Line("温　　　   　　度", txt温度.Text(), cbo温度単位.Text());
  page.Line("密　　　   　　度", txt密度.Text(), DensityUnitBox().Text());
  page.Line("粘 　性　 係　 数", txt粘性係数.Text(), cbo粘性係数単位.Text());
  if (!IsGas()) return;
  page.Line("相 　対 　湿 　度", humidity.txt相対湿度.Text(), "    ％");
  page.Line("飽 和 水 蒸 気 圧", humidity.txt飽和水蒸気圧.Text(),
            humidity.cbo飽和水蒸気圧単位.Text());
  page.Line("偏 　差 　係 　数", txt偏差係数.Text());
}

void frmPressLoss::PrintPipe(CalculationPage& page) {
  page.Line("配 　 　　 　　管", cbo配管呼称径.Text() + " " + cboSchedule.Text());
  page.Line("配 　管 　内 　径", txt配管内径.Text(), kMillimetre);
  page.Line("管 　内 　粗   さ", txtPipeRoughness.Text(), kMillimetre);
  page.Line("関 　係 　粗 　度", lbl関係粗度.Text());
  page.Line("配 　管 　長 　さ", txtPipeLength.Text(), "    m");
  PrintFittings(page);
  page.Line("流入部配管形状    ", txtInletType.Text().empty() ? "" : "Type " + txtInletType.Text());
  page.Line("流入部管径比率    ", txt管径比率[kIn].Text());
  page.Line("流入部配管角度  　", txt円錐角度[kIn].Text(), "°");
  page.Line("流出部管径比率    ", txt管径比率[kOut].Text());
  page.Line("流出部配管角度  　", txt円錐角度[kOut].Text(), "°");
}

/// The fittings that the line has, two beside each other: the page has room for all ten.
void frmPressLoss::PrintFittings(CalculationPage& page) {
  std::vector<std::string> lines;
  int inLine = kFittingsPerLine;
  for (int i = 0; i < kFittings; ++i) {
    const std::string count = txt付属品数[i].Text();
    if (count.find_first_of("123456789") == std::string::npos) continue;
    if (inLine == kFittingsPerLine) {
      lines.emplace_back();
      inLine = 0;
    }
    lines.back() += (inLine++ == 0 ? "" : kBetween) +
                    common::PadToBytes(lbl付属品[i].Text(), kNameBytes) +
                    common::PadLeftToBytes(count, kCountBytes);
  }
  page.Line("配　管　付  属  品", lines.empty() ? "" : lines.front());
  for (std::size_t i = 1; i < lines.size(); ++i) {
    page.Continued(common::PadToBytes(lines[i], kLineBytes));
  }
}

void frmPressLoss::PrintResults(CalculationPage& page) {
  const std::string lossUnit = lbl圧損単位[0].Text();
  page.Line("レイノルズ数     ", lblReynolds.Text());
  page.Line("管  摩  擦  係  数", lblλ.Text());
  page.Line("流　　   速 (流入)", lblVelosityIn.Text(), kVelocityUnit);
  page.Line("流 　　　速 (流出)", lblVelosityOut.Text(), kVelocityUnit);
  page.Line("流入部圧力損失係数", lblζin.Text());
  page.Line("流出部圧力損失係数", lblζout.Text());
  page.Line("流  入  部  損  失", lblTerminalLoss[kIn].Text(), lossUnit);
  page.Line("流  出  部  損  失", lblTerminalLoss[kOut].Text(), lossUnit);
  page.Line("配管付属品の損失係数(ζ)", lbl付属品ζ.Text());
  page.Line("全  圧  力  損  失", lblTotalLoss.Text(), lossUnit);
}

}  // namespace sheets
