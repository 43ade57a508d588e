#include "ducts/cable_table.h"

#include "common/table_reader.h"

namespace ducts {

namespace {

using common::TableReader;

void ReadEntry(TableReader& reader, float& diameter, float& weight) {
  constexpr int kLabels = 3;
  for (int i = 0; i < kLabels; ++i) reader.Text();
  diameter = reader.SingleNumber();
  weight = reader.SingleNumber();
}

void ReadCables(TableReader& reader, CableTable::ByCable& diameter, CableTable::ByCable& weight) {
  for (std::size_t type = 0; type < CableTable::kTypes; ++type) {
    for (std::size_t cores = 0; cores < CableTable::kCoreCounts; ++cores) {
      for (std::size_t size = 0; size < CableTable::kSizes; ++size) {
        ReadEntry(reader, diameter[type][cores][size], weight[type][cores][size]);
      }
    }
  }
}

}  // namespace

bool ReadCableTable(std::string bytes, CableTable& table) {
  table = {};
  TableReader reader(std::move(bytes));
  CableTable read;
  ReadCables(reader, read.controlCableDia, read.controlCableWeight);
  ReadCables(reader, read.leadCableDia, read.leadCableWeight);
  for (std::size_t row = 0; row < CableTable::kTubes; ++row) {
    ReadEntry(reader, read.copperTubeDia[row], read.copperTubeWeight[row]);
  }
  if (!reader.Good()) return false;
  table = read;
  return true;
}

bool ReadDuctCatalogue(std::string bytes, DuctCatalogue& catalogue) {
  catalogue = {};
  TableReader reader(std::move(bytes));
  DuctCatalogue read;
  for (DuctCatalogue::Row& row : read.rows) {
    row.width = reader.SingleNumber();
    row.depth = reader.SingleNumber();
    row.area = reader.SingleNumber();
  }
  if (!reader.Good()) return false;
  catalogue = read;
  return true;
}

}  // namespace ducts
