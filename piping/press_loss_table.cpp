#include "piping/press_loss_table.h"

#include "common/table_reader.h"

namespace piping {

bool ReadPressLossTable(std::string bytes, PressLossTable& table) {
  table = {};
  common::TableReader reader(std::move(bytes));
  PressLossTable read;
  for (PressLossTable::Roughness& pipe : read.pipeRoughnessTable) {
    pipe.name = reader.Text();
    pipe.value = reader.Text();
  }
  for (PressLossTable::Fitting& fitting : read.fittingTable) {
    fitting.name = reader.Text();
    fitting.zeta = reader.SingleNumber();
  }
  if (!reader.Good()) return false;
  table = std::move(read);
  return true;
}

}  // namespace piping
