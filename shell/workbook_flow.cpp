// Columns of the worksheets of flow meters and orifices: title, decimals, source in the tag record.

#include "flow/integral_orifice.h"
#include "shell/workbook_columns.h"

namespace shell::workbook {

namespace {

/// Number of the bore, by the group that the stored model belongs to.
CellSource IntegralBore(std::size_t modelColumn, std::size_t boreColumn) {
  return {[=](const TagRow& record, const Tables& tables) -> CellValue {
            const int model = ListPosition(record[modelColumn]);
            const int group = model < 0 ? -1 : flow::IntegralGroup(model);
            if (group < 0 || group >= flow::IntegralTable::kGroups) return {};
            return NameOr(record[boreColumn],
                          tables.integral.integralNo[static_cast<std::size_t>(group)]);
          },
          static_cast<int>(boreColumn)};
}

CellSource VortexMaker(std::size_t column) {
  return {[=](const TagRow& record, const Tables& tables) {
            return NameOr(record[column], tables.vortex.makerName);
          },
          static_cast<int>(column)};
}

}  // namespace

std::vector<WorkbookColumn> DifferentialPressureColumns() {
  return {
      {"Tag No.", 2, Text(0)},
      {"用途", kGeneral, Text(1)},
      {"絞り機構種類", kGeneral, Item(2, &Lists::elementKinds)},
      {"流体", kGeneral, Item(3, &Lists::fluids)},
      {"目盛流量", 0, Number(4)},
      {"常用流量", 0, Number(6)},
      {"単位", kGeneral, FlowUnit(3, 5)},
      {"圧力", 3, Number(7)},
      {"単位", kGeneral, Item(8, &Lists::pressureUnits)},
      {"温度", 1, Number(9)},
      {"単位", kGeneral, Item(10, &Lists::temperatureUnits)},
      {"密度", 4, Number(11)},
      {"単位", kGeneral, DensityUnit(3, 12)},
      {"粘性係数", 4, Number(13)},
      {"単位", kGeneral, Item(14, &Lists::viscosityUnits)},
      {"相対湿度(%)", kGeneral, Number(15)},
      {"計算基準", kGeneral, WetOrDry(16)},
      {"飽和水蒸気圧", kGeneral, Number(17)},
      {"単位", kGeneral, Item(18, &Lists::vapourPressureUnits)},
      {"偏差係数", 4, Number(19)},
      {"比熱比", 3, Number(20)},
      {"絞り部材質", kGeneral, Text(21)},
      {"絞り部膨張率", 0, Number(22)},
      {"配管呼称径", kGeneral, Text(23)},
      {"配管種類", kGeneral, Text(24)},
      {"ｽｹｼﾞｭｰﾙ", 4, Text(25)},
      {"配管内径", 1, Number(26)},
      {"配管線膨張率", kGeneral, Number(27)},
      {"設計差圧", 0, Number(28)},
      {"単位", 2, Item(29, &Lists::differentialUnits)},
      {"絞り径(mm)", 2, Number(30)},
      {"使用状態密度", 4, Number(43)},
      {"最大ﾚｲﾉﾙｽﾞ数", kGeneral, Number(32)},
      {"常用ﾚｲﾉﾙｽﾞ数", 0, Number(33)},
      {"流出係数", kGeneral, Number(34)},
      {"流量係数", kGeneral, Number(35)},
      {"膨張補正係数", 4, Number(36)},
      {"β", 4, Number(37)},
      {"四分円半径", kGeneral, Number(38)},
      {"下流Tap位置", kGeneral, Number(39)},
      {"永久圧損", 2, Number(40)},
      {"単位", kGeneral, Item(29, &Lists::differentialUnits)},
      {"使用下限(%FS)", 0, Number(41)},
      {"使用上限(%FS)", 0, Number(42)},
  };
}

std::vector<WorkbookColumn> IntegralColumns() {
  return {
      {"Tag No.", 2, Text(0)},
      {"用途", kGeneral, Text(1)},
      {"計器型式", kGeneral, Item(2, &Lists::integralModels)},
      {"流体", kGeneral, Item(3, &Lists::fluids)},
      {"目盛流量", 0, Number(4)},
      {"常用流量", 0, Number(6)},
      {"単位", kGeneral, FlowUnit(3, 5)},
      {"圧力", 3, Number(7)},
      {"単位", kGeneral, Item(8, &Lists::pressureUnits)},
      {"温度", 1, Number(9)},
      {"単位", kGeneral, Item(10, &Lists::temperatureUnits)},
      {"密度", 4, Number(11)},
      {"単位", kGeneral, DensityUnit(3, 12)},
      {"粘性係数", 4, Number(13)},
      {"単位", kGeneral, Item(14, &Lists::viscosityUnits)},
      {"相対湿度(%)", kGeneral, Number(15)},
      {"", kGeneral, Blank()},
      {"飽和水蒸気圧", kGeneral, Number(17)},
      {"単位", kGeneral, Item(18, &Lists::vapourPressureUnits)},
      {"偏差係数", 4, Number(19)},
      {"比熱比", 3, Number(20)},
      {"ｵﾘﾌｨｽ番号", kGeneral, IntegralBore(2, 31)},
      {"常用ﾚｲﾉﾙｽﾞ数", 0, Number(32)},
      {"補正係数Kaf", kGeneral, Number(33)},
      {"流量係数α", 4, Number(34)},
      {"膨張補正係数", 4, Number(35)},
      {"水相当流量", 3, Number(36)},
      {"空気相当流量", 3, Number(37)},
      {"差圧(mmH2O)", 0, Number(38)},
      {"差圧(kPa)", 2, Number(39)},
      {"永久圧損(mmH2O)", 0, Number(40)},
      {"永久圧損(kPa)", 2, Number(41)},
  };
}

std::vector<WorkbookColumn> VortexColumns() {
  return {
      {"Tag No.", kGeneral, Text(0)},
      {"用途", kGeneral, Text(1)},
      {"流体", kGeneral, Item(2, &Lists::fluids)},
      {"目盛流量", 0, Number(3)},
      {"最少流量", 0, Number(5)},
      {"単位", kGeneral, FlowUnit(2, 4)},
      {"圧力", 3, Number(6)},
      {"単位", kGeneral, Item(7, &Lists::pressureUnits)},
      {"温度", 1, Number(8)},
      {"単位", kGeneral, Item(9, &Lists::temperatureUnits)},
      {"密度", kGeneral, Number(10)},
      {"単位", kGeneral, DensityUnit(2, 11)},
      {"粘性係数", kGeneral, Number(12)},
      {"単位", kGeneral, Item(13, &Lists::viscosityUnits)},
      {"偏差係数", kGeneral, Number(14)},
      {"飽和蒸気圧", 2, Number(15)},
      {"単位", kGeneral, Item(16, &Lists::vapourPressureUnits)},
      {"メーカー", kGeneral, VortexMaker(17)},
      {"ﾒｰﾀｰｻｲｽﾞ", kGeneral, Number(18)},
      {"測定下限(%FS)", 0, NumberPart(19, 0)},
      {"測定上限(%FS)", 0, NumberPart(19, 1)},
      {"圧力損失(mmH2O)", 0, NumberPart(19, 2)},
      {"周波数(Hz)", 1, NumberPart(19, 3)},
      {"備考", kGeneral, TextPart(19, 4)},
  };
}

std::vector<WorkbookColumn> RestrictionColumns() {
  return {
      {"Tag No.", kGeneral, Text(0)},
      {"用途", kGeneral, Text(1)},
      {"流体", kGeneral, Item(3, &Lists::fluids)},
      {"流量", 0, Number(4)},
      {"単位", kGeneral, FlowUnit(3, 5)},
      {"圧力", 3, Number(6)},
      {"単位", kGeneral, Item(7, &Lists::pressureUnits)},
      {"差圧", 3, Number(8)},
      {"単位", kGeneral, Item(9, data::kLossUnits)},
      {"温度", 1, Number(10)},
      {"単位", kGeneral, Item(11, &Lists::temperatureUnits)},
      {"密度", 4, Number(12)},
      {"単位", kGeneral, DensityUnit(3, 13)},
      {"粘性係数", 4, Number(14)},
      {"単位", kGeneral, Item(15, &Lists::viscosityUnits)},
      {"相対湿度(%)", kGeneral, Number(16)},
      {"飽和水蒸気圧", kGeneral, Number(17)},
      {"単位", kGeneral, Item(18, &Lists::vapourPressureUnits)},
      {"圧縮係数", 3, Number(19)},
      {"比熱比", kGeneral, Number(20)},
      {"ＲＯ材質", kGeneral, Text(21)},
      {"ヤング率", 0, Number(22)},
      {"単位", kGeneral, Item(23, &Lists::reportStressUnits)},
      {"許容応力", 1, Number(24)},
      {"単位", kGeneral, Item(25, &Lists::reportStressUnits)},
      {"配管呼称径", kGeneral, Text(26)},
      {"ｽｹｼﾞｭｰﾙ", kGeneral, Text(27)},
      {"配管内径(mm)", 1, Number(28)},
      {"板厚(mm)", 1, Number(29)},
      {"入口流速(m/s)", 2, Number(30)},
      {"流量係数", 2, Number(31)},
      {"背圧補正", 3, Number(32)},
      {"絞り比(β)", 4, Number(33)},
      {"絞り径", 2, Number(34)},
      {"応力係数", 2, Number(35)},
      {"たわみ係数", 2, Number(36)},
      {"最大応力", 2, Number(38)},
      {"変形量(mm)", 2, Number(40)},
  };
}

}  // namespace shell::workbook
