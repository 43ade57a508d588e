// Columns of the worksheets of thermowells and temperature sensors: title, decimals, source in the
// tag record.

#include "shell/workbook_columns.h"
#include "temperature/thermowell.h"

namespace shell::workbook {

namespace {

/// In a tank the sheet stores the diameter of the impeller before its speed; the titles want them
/// the other way round.
bool IsTank(const TagRow& record) { return ListPosition(record[11]) == temperature::kInTank; }

CellSource SensorName(std::size_t column) {
  return {[=](const TagRow& record, const Tables& tables) {
            return NameOr(record[column], tables.sensors.sensorName);
          },
          static_cast<int>(column)};
}

}  // namespace

std::vector<WorkbookColumn> ThermowellColumns() {
  return {
      {"Tag No.", kGeneral, Text(0)},
      {"用途", kGeneral, Text(1)},
      {"流体", kGeneral, Item(2, &Lists::fluids)},
      {"圧力", 3, Number(3)},
      {"単位", kGeneral, Item(4, &Lists::pressureUnits)},
      {"温度", 1, Number(5)},
      {"単位", kGeneral, Item(6, &Lists::temperatureUnits)},
      {"密度", kGeneral, Number(7)},
      {"単位", kGeneral, DensityUnit(2, 8)},
      {"粘性係数", kGeneral, Number(9)},
      {"単位", kGeneral, Item(10, &Lists::viscosityUnits)},
      {"設置形式", kGeneral, Item(11, &Lists::thermowellMountings)},
      {"管内径/回転数/流速", kGeneral, If(IsTank, Number(13), Number(12))},
      {"流量/ｲﾝﾍﾟﾗｰ直径", 0, If(IsTank, Number(12), Number(13))},
      {"単位", kGeneral, If(IsTank, Constant("mm"), FlowUnit(2, 14))},
      {"攪拌槽内径", kGeneral, Number(15)},
      {"保護管材質", kGeneral, Text(17)},
      {"保護管密度", 0, Number(18)},
      {"ヤング率", 0, Number(19)},
      {"単位", kGeneral, Item(20, &Lists::reportStressUnits)},
      {"許容応力", 1, Number(21)},
      {"単位", kGeneral, Item(22, &Lists::reportStressUnits)},
      {"先端外経(mm)", kGeneral, Number(23)},
      {"根元外経(mm)", kGeneral, Number(24)},
      {"保護管内径(mm)", kGeneral, Number(25)},
      {"保護管長(mm)", 0, Number(26)},
      {"挿入長(mm)", 0, Number(27)},
      {"先端厚さ(mm)", 0, Number(28)},
      {"臨界減衰係数", 3, Number(29)},
      {"応力集中係数", 2, Number(30)},
      {"流速(m/s)", 1, Number(31)},
      {"レイノルズ数", 1, Number(32)},
      {"ストローハル数", 1, Number(33)},
      {"カルマン渦波数", 1, Number(34)},
      {"1次固有振動数", 2, Number(36)},
      {"換算流速(Vr)", 2, Number(37)},
      {"換算減衰率(Cn)", 2, Number(38)},
      {"判定", 2, Judgement(39, 40)},
      {"定常抗力", 3, Number(41)},
      {"単位", 3, Item(22, &Lists::reportStressUnits)},
      {"判定", 3, Judgement(42, 43)},
      {"ランダム励振力", kGeneral, Number(44)},
      {"単位", kGeneral, Item(22, &Lists::reportStressUnits)},
      {"判定", kGeneral, Judgement(45, 46)},
  };
}

std::vector<WorkbookColumn> SensorColumns() {
  return {
      {"Tag No.", kGeneral, Text(0)},         {"用途", kGeneral, Text(1)},
      {"Maker", kGeneral, Text(2)},           {"Model", kGeneral, Text(3)},
      {"下限目盛", kGeneral, Number(4)},      {"上限目盛", kGeneral, Number(5)},
      {"単位", kGeneral, Constant("℃")},      {"測温体種類", kGeneral, SensorName(7)},
      {"0％指示", kGeneral, Number(8)},       {"出力", kGeneral, Number(19)},
      {"１０％指示", kGeneral, Number(9)},    {"出力", kGeneral, Number(20)},
      {"２０％指示", kGeneral, Number(10)},   {"出力", kGeneral, Number(21)},
      {"３０％指示", kGeneral, Number(11)},   {"出力", kGeneral, Number(22)},
      {"４０％指示", kGeneral, Number(12)},   {"出力", kGeneral, Number(23)},
      {"５０％指示", kGeneral, Number(13)},   {"出力", kGeneral, Number(24)},
      {"６０％指示", kGeneral, Number(14)},   {"出力", kGeneral, Number(25)},
      {"７０％指示", kGeneral, Number(15)},   {"出力", kGeneral, Number(26)},
      {"８０％指示", kGeneral, Number(16)},   {"出力", kGeneral, Number(27)},
      {"９０％指示", kGeneral, Number(17)},   {"出力", kGeneral, Number(28)},
      {"１００％指示", kGeneral, Number(18)}, {"出力", kGeneral, Number(29)},
  };
}

}  // namespace shell::workbook
