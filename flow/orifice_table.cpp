#include "flow/orifice_table.h"

#include <algorithm>
#include <functional>

#include "common/table_reader.h"

namespace flow {

namespace {

template <class Column>
bool Rises(const Column& column) {
  return std::adjacent_find(column.begin(), column.end(), std::greater_equal<double>()) ==
         column.end();
}

}  // namespace

bool ReadOrificeTable(std::string bytes, OrificeTable& table) {
  table = {};
  common::TableReader reader(std::move(bytes));
  OrificeTable read;
  for (std::size_t i = 0; i < kElementTypes; ++i) {
    read.betaMin[i] = reader.Number();
    read.betaMax[i] = reader.Number();
    read.pipeMin[i] = reader.Number();
    read.pipeMax[i] = reader.Number();
  }
  for (Real& factor : read.downstreamTapFactor) factor = reader.Number();
  for (std::size_t i = 0; i < OrificeTable::kQuarterCircleRows; ++i) {
    read.tableBeta[i] = reader.Number();
    read.tableS[i] = reader.Number();
    read.tableRadius[i] = reader.Number();
  }
  for (std::size_t i = 0; i < OrificeTable::kReynoldsRows; ++i) {
    read.quarterCircleReMax[i] = reader.Number();  // the upper limit stands first
    read.quarterCircleReMin[i] = reader.Number();
  }
  if (!reader.Good() || !Rises(read.tableBeta) || !Rises(read.tableS)) return false;
  table = read;
  return true;
}

}  // namespace flow
