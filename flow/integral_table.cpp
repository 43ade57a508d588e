#include "flow/integral_table.h"

#include "common/table_reader.h"

namespace flow {

namespace {

using common::TableReader;

/// Number and diameter of one bore; the diameter is kept as text, too.
void ReadBore(TableReader& reader, IntegralTable& table, std::size_t group, std::size_t bore) {
  table.integralNo[group][bore] = reader.Text();
  table.integralDia[group][bore] = reader.Number(table.integralDiaText[group][bore]);
}

void ReadBores(TableReader& reader, IntegralTable& table, std::size_t group, std::size_t count,
               double bodyDiameter) {
  for (std::size_t i = 0; i < count; ++i) {
    ReadBore(reader, table, group, i);
    table.integralBeta[group][i] = table.integralDia[group][i] / bodyDiameter;
  }
}

void ReadLaw(TableReader& reader, IntegralTable& table, std::size_t model, std::size_t bores) {
  for (std::size_t p = 0; p < IntegralTable::kPhases; ++p) {
    for (std::size_t i = 0; i < bores; ++i) {
      table.integralA[model][p][i] = reader.Number();
      table.integralB[model][p][i] = reader.Number();
    }
  }
}

void ReadKaf(TableReader& reader, IntegralTable& table) {
  for (std::size_t p = 0; p < IntegralTable::kPhases; ++p) {
    for (std::size_t i = 0; i < IntegralTable::kBores; ++i) {
      table.kafC2[p][i] = reader.Number();
      table.kafC1[p][i] = reader.Number();
      table.kafC0[p][i] = reader.Number();
      table.kafReLow[p][i] = reader.Number();
      table.kafReHigh[p][i] = reader.Number();
    }
  }
}

void ReadGroup1(TableReader& reader, IntegralTable& table) {
  table.integralName[1] = reader.Text();
  for (std::size_t i = 0; i < IntegralTable::kBores; ++i) {
    ReadBore(reader, table, 1, i);
    table.integralBeta[1][i] = reader.Number();
    table.integralK[i] = reader.Number();
    table.integralReLow[i] = reader.Number();
  }
}

}  // namespace

bool ReadIntegralTable(std::string bytes, IntegralTable& table) {
  constexpr double kBody14 = 14;  // mm, group 0
  constexpr double kBody13 = 13;  // mm, group 2
  table = {};
  TableReader reader(std::move(bytes));
  IntegralTable read;
  read.integralName[0] = reader.Text();
  ReadBores(reader, read, 0, IntegralTable::kBores, kBody14);
  for (std::size_t t = 0; t < IntegralTable::kNamedModels; ++t) {
    read.integralModelName[t] = reader.Text();
    ReadLaw(reader, read, t, IntegralTable::kBores);
  }
  ReadKaf(reader, read);
  ReadGroup1(reader, read);
  read.integralName[2] = reader.Text();
  ReadBores(reader, read, 2, IntegralTable::kWideBores, kBody13);
  ReadLaw(reader, read, IntegralTable::kGroup2Law, IntegralTable::kWideBores);
  if (!reader.Good()) return false;
  table = std::move(read);
  return true;
}

}  // namespace flow
