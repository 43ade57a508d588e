#include "flow/vortex_table.h"

#include "common/table_reader.h"

namespace flow {

bool ReadVortexTable(std::string bytes, VortexTable& table) {
  table = {};
  common::TableReader reader(std::move(bytes));
  VortexTable read;
  for (Real& size : read.meterSize) size = reader.Number();
  for (std::size_t maker = 0; maker < VortexTable::kMakers; ++maker) {
    read.makerName[maker] = reader.Text();
    for (Real& bore : read.meterBore[maker]) bore = reader.Number();
    for (Real& factor : read.meterKFactor[maker]) factor = reader.Number();
  }
  if (!reader.Good()) return false;
  table = std::move(read);
  return true;
}

}  // namespace flow
