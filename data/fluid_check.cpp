#include "data/fluid_check.h"

#include <algorithm>
#include <vector>

#include "common/number.h"
#include "common/text.h"

namespace data {

namespace {

/// A cell that holds the code of an equation. The liquid's density and vapour pressure have texts,
/// which must be exact; the others have numbers.
struct CodeCell {
  FluidPhase phase;
  int field;
  bool text;
  std::vector<std::string> codes;
  const char* equations;
};

const std::vector<CodeCell>& CodeCells() {
  static const std::vector<CodeCell> kCells = {
      {kLiquid,
       kLiquidDensityCode,
       true,
       {"1", "2", "3", "NH3", "H2O", kFiveBlanks},
       "1: A + B･T + C･T^2 + D･T^3\n"
       "2: A･f(TK/C)/f(B/C)　A: 温度B(K)での密度、C: 臨界温度(K)\n"
       "3: A - B･T - C/(D - T)\n"
       "NH3: アンモニア（50℃を超えると式3）\n"
       "H2O: 水（230℃を超えると式3）\n"
       "空白5文字: 推算式なし"},
      {kLiquid,
       kLiquidViscosityCode,
       false,
       {"1", "2", "3", "0"},
       "1: A + B･T + C･T^2 + D･T^3\n"
       "2: A･exp(B/(T + C))\n"
       "3: C/(1 + A･T + B･T^2)\n"
       "0または空白: 推算式なし"},
      {kLiquid,
       kLiquidVapourCode,
       true,
       {"1", "2", "H2O"},
       "1: 10^(A - B/(T + C))　(kgf/cm2A)\n"
       "2: A + B･T + C･T^2 + D･T^3　(kgf/cm2A)\n"
       "H2O: 水\n"
       "空白: 推算式なし"},
      {kGas,
       kGasViscosityCode,
       false,
       {"1", "2", "3", "4", "0"},
       "1: a + b･T + c･T^2 + d･T^3\n"
       "2: a･(273.15 + b)/(TK + b)･(TK/273.15)^1.5\n"
       "3: a･(TK/273.15)^b\n"
       "4: 分子量と臨界値から（μPで、mPa･Sの10000倍の値になる）\n"
       "0または空白: 推算式なし"},
      {kGas,
       kGasHeatCode,
       false,
       {"1", "2", "3", "0"},
       "モル比熱 cal/(mol･K)\n"
       "1: a + b･TK + c･TK^2 + d･TK^3\n"
       "2: a･exp(b/(TK - c))\n"
       "3: c/(1 + a･T + b･T^2)\n"
       "0または空白: 推算式なし"},
  };
  return kCells;
}

const CodeCell* FindCodeCell(FluidPhase phase, int field) {
  const auto& cells = CodeCells();
  const auto found = std::find_if(cells.begin(), cells.end(), [&](const CodeCell& cell) {
    return cell.phase == phase && cell.field == field;
  });
  return found == cells.end() ? nullptr : &*found;
}

/// Names and the fields behind the last range, which no estimator reads.
bool IsFreeText(FluidPhase phase, int field) {
  const int lastRead = phase == kLiquid ? int{kLiquidVapourHigh} : int{kGasHeatHigh};
  return field == 0 || field > lastRead;
}

/// Whether the estimators know the code; one that is a number may be written in any way.
bool IsKnown(const CodeCell& cell, const std::string& code) {
  if (cell.field == kLiquidDensityCode && cell.phase == kLiquid) {
    if (code.starts_with(kFiveBlanks)) return true;
  } else if (common::IsBlank(code)) {
    return true;
  }
  return std::any_of(cell.codes.begin(), cell.codes.end(), [&](const std::string& known) {
    if (cell.text) return code == known;
    return common::WholeNumber(code) == common::Val(known);
  });
}

/// The end of a range without a number. An end that is no limit is written as nothing at all, that
/// of a heat capacity as five blanks; any other blank counts 0.
std::string BlankEndRemark(FluidPhase phase, int field, const std::string& text) {
  const auto isOneOf = [field](std::initializer_list<int> lows) {
    return std::any_of(lows.begin(), lows.end(),
                       [field](int low) { return field == low || field == low + 1; });
  };
  if (phase == kGas && isOneOf({kGasHeatLow})) {
    return text == kFiveBlanks ? "" : "0℃として扱われます。範囲なしは空白5文字とします。";
  }
  const bool end = phase == kLiquid
                       ? isOneOf({kLiquidDensityLow, kLiquidViscosityLow, kLiquidVapourLow})
                       : isOneOf({kGasViscosityLow});
  return end && !text.empty() ? "0℃として扱われます。範囲なしは空欄とします。" : "";
}

}  // namespace

std::string FluidCellRemark(FluidPhase phase, const FluidTable::Record& record, int field) {
  const std::string& text = common::At(record, field);
  if (const auto foreign = common::FirstOutsideCp932(text)) {
    return "「" + *foreign + "」はファイルに保存できない文字です。";
  }
  if (IsFreeText(phase, field) || common::IsBlank(record[kLiquidName])) return {};
  if (const CodeCell* const cell = FindCodeCell(phase, field)) {
    return IsKnown(*cell, text) ? std::string() : "推算式の番号が不明です。推算値は得られません。";
  }
  if (common::IsBlank(text)) return BlankEndRemark(phase, field, text);
  if (common::WholeNumber(text)) return {};
  try {
    return "数値ではありません。" + common::NumberText(common::Val(text)) + "として計算されます。";
  } catch (const common::RuntimeFault&) {
    return "数値が大きすぎます。";
  }
}

std::string EquationCodes(FluidPhase phase, int field) {
  const CodeCell* const cell = FindCodeCell(phase, field);
  return cell == nullptr ? std::string() : cell->equations;
}

}  // namespace data
