// Columns of the worksheets of control valves and pressure losses: title, decimals, source in the
// tag record.

#include <algorithm>

#include "shell/record_text.h"
#include "shell/workbook_columns.h"
#include "valve/valve_catalogue.h"

namespace shell::workbook {

namespace {

/// The pressure entry of a valve is the pressure behind it, in the unit of the pressure before it;
/// otherwise it is a difference.
bool IsSecondary(const TagRow& record) { return IsSet(record[7]); }

/// The column holds a rating in files of this version only.
CellSource FlangeRating(std::size_t column) {
  return {[=](const TagRow& record, const Tables&) -> CellValue {
            const auto& ratings = valve::kFlangeRatings;
            const bool known =
                std::find(ratings.begin(), ratings.end(), record[column]) != ratings.end();
            return known ? CellValue(record[column]) : CellValue();
          },
          static_cast<int>(column)};
}

}  // namespace

std::vector<WorkbookColumn> ValveColumns() {
  return {
      {"Tag No.", kGeneral, Text(0)},
      {"用途", kGeneral, Text(1)},
      {"流体", kGeneral, Item(2, &Lists::fluids)},
      {"最大流量", 0, Number(3)},
      {"単位", kGeneral, FlowUnit(2, 4)},
      {"圧力", 3, Number(5)},
      {"単位", kGeneral, Item(6, &Lists::pressureUnits)},
      {"計算基準", kGeneral, Text(8)},
      {"差圧/下流圧", 3, Number(9)},
      {"単位", kGeneral,
       If(IsSecondary, Item(6, &Lists::pressureUnits), Item(10, data::kLossUnits))},
      {"温度", 1, Number(11)},
      {"単位", kGeneral, Item(12, &Lists::temperatureUnits)},
      {"密度", 4, Number(13)},
      {"単位", kGeneral, DensityUnit(2, 14)},
      {"粘性係数", 4, Number(15)},
      {"単位", kGeneral, Item(16, &Lists::viscosityUnits)},
      {"飽和蒸気圧", 3, Number(17)},
      {"単位", kGeneral, Item(18, &Lists::vapourPressureUnits)},
      {"臨界圧力", 1, Number(19)},
      {"単位", kGeneral, Item(20, &Lists::vapourPressureUnits)},
      {"偏差係数", kGeneral, Number(21)},
      {"比熱比", 3, Number(22)},
      {"FCI計算Ｃv", kGeneral, Number(23)},
      {"ISA計算Ｃv", kGeneral, Number(24)},
      {"メーカー", kGeneral, Text(25)},
      {"弁モデル", kGeneral, Text(27)},
      {"ＦＬ", 2, Number(29)},
      {"N係数", 1, Number(30)},
      {"内弁サイズ", kGeneral, Text(31)},
      {"弁Ｆｄ", 2, Number(32)},
      {"弁Ｃv", kGeneral, Number(33)},
      {"ﾚﾝｼﾞｱﾋﾞﾘﾃｨ", kGeneral, Number(34)},
      {"弁特性", kGeneral, Text(35)},
      {"弁本体呼称径", kGeneral, Text(37)},
      {"フランジ規格", kGeneral, FlangeRating(28)},
      {"弁口径(mm)", 0, Number(26)},
      {"上流配管外径(mm)", 1, Number(38)},
      {"上流配管厚(mm)", 1, Number(39)},
      {"下流配管外径(mm)", 1, Number(40)},
      {"下流配管厚(mm)", 1, Number(41)},
      {"配管材質", kGeneral, Text(42)},
      {"管壁単位重量", 1, Number(44)},
      {"ｻｲｼﾞﾝｸﾞＣv", kGeneral, Number(45)},
      {"弁開度", 0, Number(46)},
      {"下流流速", 1, Number(47)},
      {"騒音", 0, Number(48)},
  };
}

std::vector<WorkbookColumn> PressureLossColumns() {
  return {
      {"Tag No.", kGeneral, Text(0)},
      {"用途", kGeneral, Text(1)},
      {"流体", kGeneral, Item(2, &Lists::fluids)},
      {"流量", 0, Number(3)},
      {"単位", kGeneral, FlowUnit(2, 4)},
      {"圧力", 3, Number(5)},
      {"単位", kGeneral, Item(6, &Lists::pressureUnits)},
      {"温度", 1, Number(7)},
      {"単位", kGeneral, Item(8, &Lists::temperatureUnits)},
      {"密度", 4, Number(9)},
      {"単位", kGeneral, DensityUnit(2, 10)},
      {"粘性係数", 4, Number(11)},
      {"単位", kGeneral, Item(12, &Lists::viscosityUnits)},
      {"相対湿度(%)", kGeneral, Number(13)},
      {"飽和水蒸気圧", 4, Number(14)},
      {"単位", kGeneral, Item(15, &Lists::vapourPressureUnits)},
      {"偏差係数", kGeneral, Number(16)},
      {"配管呼称径", kGeneral, Item(17, &Lists::nominalSizes, "in")},
      {"ｽｹｼﾞｭｰﾙ", kGeneral, Item(18, &Lists::schedules)},
      {"配管内径", 1, Number(19)},
      {"管内粗さ", 2, Number(20)},
      {"配管長さ", 0, Number(21)},
      {"45ﾟｴﾙﾎﾞｰ", kGeneral, Number(22)},
      {"90ﾟｴﾙﾎﾞｰ", kGeneral, Number(23)},
      {"180ﾟﾍﾞﾝﾄﾞ", kGeneral, Number(24)},
      {"ティー", kGeneral, Number(25)},
      {"ｸﾞﾛｰﾌﾞ弁", kGeneral, Number(26)},
      {"ｱﾝｸﾞﾙ弁", kGeneral, Number(27)},
      {"ｹﾞｰﾄ弁", kGeneral, Number(28)},
      {"ﾀﾞｲｱﾌﾗﾑ弁", kGeneral, Number(29)},
      {"ﾊﾞﾀﾌﾗｲ弁", kGeneral, Number(30)},
      {"ﾁｪｯｸ弁", kGeneral, Number(31)},
      {"配管入口形状", kGeneral, Number(32)},
      {"入口管径比率", 2, Number(33)},
      {"入口円錐角度", kGeneral, Number(34)},
      {"出口管径比率", 2, Number(35)},
      {"出口円錐角度", kGeneral, Number(36)},
      {"関係粗度", kGeneral, Number(37)},
      {"レイノルズ数", 0, Number(40)},
      {"入口流速(m/s)", 2, Number(41)},
      {"出口流速(m/s)", 2, Number(42)},
      {"ζin", 3, Number(43)},
      {"ζout", 3, Number(44)},
      {"入口圧損", 4, Number(45)},
      {"出口圧損", 4, Number(46)},
      {"配管λ", 4, Number(39)},
      {"付属品ζ", 2, Number(48)},
      {"全圧力損失", 4, Number(47)},
      {"単位", kGeneral, Item(6, data::kLossUnits)},
  };
}

}  // namespace shell::workbook
