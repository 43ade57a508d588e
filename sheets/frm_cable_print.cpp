// The printed page of the cable duct sheet.

#include "common/number.h"
#include "common/text.h"
#include "sheets/calculation_page.h"
#include "sheets/frm_cable.h"
#include "shell/page_frame.h"

namespace sheets {

namespace {

using common::PadLeftToBytes;
using common::PadToBytes;

struct TableColumn {
  const char* heading;
  const char* unit;
  int bytes;
};
constexpr TableColumn kColumns[] = {{"    種 類", "", 16},        {"    線芯数", "", 10},
                                    {" 公称ｻｲｽﾞ", "", 10},        {"仕上り外径", "(mm)", 11},
                                    {" 概算重量", "(kg/km)", 10}, {"  数 量", "(本)", 8},
                                    {"  断面積", "(mm2)", 10},    {"  重 量", "(kg)", 10}};
constexpr int kAreaColumn = 6;
constexpr int kWeightColumn = 7;
constexpr int kLabelBytes = 18;

/// A line of the table: the name to the left, all else to the right. A text that is too long for
/// its column is cut.
void PrintRow(CalculationPage& page, const std::array<std::string, std::size(kColumns)>& texts) {
  std::string line;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const int bytes = kColumns[i].bytes;
    std::string text = texts[i];
    if (common::Cp932Length(text) > bytes) text = common::TruncateToBytes(text, bytes - 1);
    line += i == 0 ? PadToBytes(text, bytes) : PadLeftToBytes(text, bytes);
  }
  page.Row(line);
}

void PrintValue(CalculationPage& page, const std::string& label, const std::string& value,
                const std::string& unit) {
  constexpr int kValueBytes = 10;
  page.Text(PadToBytes(label, kLabelBytes) + PadLeftToBytes(value, kValueBytes) + unit);
}

}  // namespace

void frmCable::PrintCableList(shell::PrintSurface& target) const {
  CalculationPage page(target);
  page.Title("ＣＡＢＬＥ－ＤＵＣＴ　ＳＩＺＩＮＧ ＳＨＥＥＴ");
  page.Text(PadToBytes("エリア", kLabelBytes) + txtTagNo.Text());
  page.Section("ケーブルの積算");
  PrintValue(page, "ダクト支持スパン", txtSpan.Text(), "　m");
  PrintCables(page);
  page.Gap();
  page.Section("ケーブルダクト");
  constexpr double kPictureWidth = 4700;
  const shell::PageGeometry frame;
  target.Draw(pic断面, frame.right - kPictureWidth - 2 * frame.charHeight, target.Y(),
              kPictureWidth);
  PrintDuct(page);
}

void frmCable::PrintCables(CalculationPage& page) const {
  std::array<std::string, std::size(kColumns)> headings;
  std::array<std::string, std::size(kColumns)> units;
  for (std::size_t i = 0; i < std::size(kColumns); ++i) {
    headings[i] = kColumns[i].heading;
    units[i] = kColumns[i].unit;
  }
  PrintRow(page, headings);
  PrintRow(page, units);
  for (int row = 0; row < kRows; ++row) {
    PrintRow(page, {lblCable[row].Text(), lbl芯数[row].Text(), lblSize[row].Text(),
                    lblCableDia[row].Text(), lblUnitWeight[row].Text(), txt本数[row].Text(),
                    lblTotalArea[row].Text(), lblTotalWeight[row].Text()});
  }
  std::array<std::string, std::size(kColumns)> sums;
  sums[0] = "合　計";
  sums[kAreaColumn] = lblSumArea.Text();
  sums[kWeightColumn] = lblSumWeight.Text();
  PrintRow(page, sums);
}

void frmCable::PrintDuct(CalculationPage& page) const {
  const std::string workers = txt作業員.Text();
  const std::string workerWeight =
      workers.empty() ? "" : common::NumberText(common::Val(workers) * ducts::kWorkerWeight);
  if (!lbl区分.Text().empty()) page.Text(lbl区分.Text());
  page.Text("ダクト寸法");
  PrintValue(page, "　　幅", txtWidth.Text(), "　mm");
  PrintValue(page, "　　深さ", txtHeight.Text(), "　mm");
  PrintValue(page, "　　折込", txt折込.Text(), "　mm");
  PrintValue(page, "　　板厚", txtThickness.Text(), "　mm");
  PrintValue(page, "ダクト面積", lblDuctArea.Text(), "　mm2");
  PrintValue(page, "占 積 率", lbl占積率.Text(), "　%");
  PrintValue(page, "ダクト自重", lblDuctWeight.Text(), "　kg");
  PrintValue(page, "作業員重量", workerWeight, "　kg");
  PrintValue(page, "ダクト撓み", lbl撓み.Text(), "　mm");
  if (!lbl未計算.Text().empty()) page.Text(lbl未計算.Text());
}

}  // namespace sheets
