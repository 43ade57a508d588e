#include "temperature/sensor_table.h"

#include "common/table_reader.h"

namespace temperature {

bool ReadSensorTable(std::string bytes, SensorTable& table) {
  constexpr int kHeaderFields = 14;
  table = {};
  common::TableReader reader(std::move(bytes));
  SensorTable read;
  for (int i = 0; i < kHeaderFields; ++i) reader.Text();
  for (std::size_t kind = 0; kind < SensorTable::kKinds; ++kind) {
    read.sensorName[kind] = reader.Text();
    for (std::size_t range = 0; range < SensorTable::kRanges; ++range) {
      read.rangeLow[kind][range] = reader.Number();
      read.rangeHigh[kind][range] = reader.Number();
      for (Real& coefficient : read.coef[kind][range]) coefficient = reader.Number();
    }
  }
  if (!reader.Good()) return false;
  table = std::move(read);
  return true;
}

}  // namespace temperature
