// The data files that users edit from within the program: fluids, materials, valves, units. The
// first byte of an input chooses the reader.

#include "common/fields.h"
#include "data/fluid_table.h"
#include "data/material_table.h"
#include "data/unit_table.h"
#include "fuzz/fuzz.h"
#include "valve/valve_catalogue.h"

namespace {

using fuzz::Require;

/// A field with a quote loses it and what follows it in the first saving.
bool AnyFieldHasQuote(const std::string& bytes) {
  common::FieldReader reader(bytes);
  while (const auto field = reader.Next()) {
    if (fuzz::HasQuote(*field)) return true;
  }
  return false;
}

/// A file that was refused leaves the table empty. What was read can be saved and read again, and
/// however often that is done nothing wears away.
template <class Table>
void ReadAndWrite(const std::string& bytes, bool (*read)(std::string, Table&),
                  std::string (*write)(const Table&)) {
  Table table;
  if (!read(bytes, table)) {
    Require(table.Empty() || std::is_same_v<Table, data::MaterialTable>);
    return;
  }
  const std::string saved = write(table);
  Table again;
  Require(read(saved, again));
  const std::string savedAgain = write(again);
  Require(savedAgain == saved || AnyFieldHasQuote(bytes));
  Require(read(savedAgain, table));
  Require(write(table) == savedAgain);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes = fuzz::Bytes(data + 1, size - 1);
  switch (data[0]) {
    case 'f':
      ReadAndWrite(bytes, data::ReadFluidTable, data::WriteFluidTable);
      break;
    case 'm':
      ReadAndWrite(bytes, data::ReadMaterialTable, data::WriteMaterialTable);
      break;
    case 'u':
      ReadAndWrite(bytes, data::ReadUnitTable, data::WriteUnitTable);
      break;
    case 'v':
      ReadAndWrite(bytes, valve::ReadValveCatalogue, valve::WriteValveCatalogue);
      break;
    default:
      return -1;
  }
  return 0;
}
