// The data files that the program only reads; each has a fixed number of fields. The first byte of
// an input chooses the reader.

#include <vector>

#include "common/fields.h"
#include "common/text.h"
#include "fuzz/fuzz.h"
#include "shell/tables.h"

namespace {

using fuzz::Require;

/// A file of these fields, a line each.
std::string FileOf(const std::vector<std::string>& fields, std::size_t count) {
  std::string bytes;
  for (std::size_t i = 0; i < count; ++i) {
    bytes += common::QuotedField(common::ToCp932(fields[i])) + "\r\n";
  }
  return bytes;
}

/// A file that was refused leaves the table empty. One that was taken has all its fields, is taken
/// wherever the line ends fall, and is refused when it is cut short by one field.
template <class Table>
void Read(const std::string& bytes, std::size_t fieldsOfTable, bool (*read)(std::string, Table&)) {
  Table table;
  if (!read(bytes, table)) {
    Require(table.Empty());
    return;
  }
  std::vector<std::string> fields;
  common::FieldReader reader(bytes);
  while (auto field = reader.Next()) fields.push_back(std::move(*field));
  Require(fields.size() >= fieldsOfTable);
  Require(!read(FileOf(fields, fieldsOfTable - 1), table) && table.Empty());
  Require(read(FileOf(fields, fieldsOfTable), table));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes = fuzz::Bytes(data + 1, size - 1);
  switch (data[0]) {
    case 'P':
      Read(bytes, 375, data::ReadPipeTable);
      break;
    case 'S':
      Read(bytes, 20, data::ReadSteamViscosityTable);
      break;
    case 'L':
      Read(bytes, 181, data::ReadConvertLists);
      break;
    case 'O':
      Read(bytes, 374, flow::ReadOrificeTable);
      break;
    case 'I':
      Read(bytes, 222, flow::ReadIntegralTable);
      break;
    case 'V':
      Read(bytes, 94, flow::ReadVortexTable);
      break;
    case 'T':
      Read(bytes, 534, temperature::ReadSensorTable);
      break;
    case 'B':
      Read(bytes, 432, valve::ReadValveDiaTable);
      break;
    case 'R':
      Read(bytes, 28, piping::ReadPressLossTable);
      break;
    case 'C':
      Read(bytes, 1475, ducts::ReadCableTable);
      break;
    case 'D':
      Read(bytes, 27, ducts::ReadDuctCatalogue);
      break;
    default:
      return -1;
  }
  return 0;
}
