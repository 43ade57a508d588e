#include "shell/tables.h"

#include <algorithm>

#include "common/fault.h"
#include "common/file.h"

namespace shell {

namespace {

/// Reads one file with its table's own reader.
template <class Table>
void Load(const std::string& folder, const char* name, bool (*read)(std::string, Table&),
          Table& table, std::vector<std::string>& unread) {
  try {
    std::string bytes = common::ReadFile(common::JoinPath(folder, name));
    if (!common::IsUnfinished(bytes) && read(std::move(bytes), table)) return;
  } catch (const common::RuntimeFault&) {
    // Told below with the name; the reason is of no use to the reader of the message.
  }
  unread.emplace_back(name);
}

}  // namespace

bool Tables::IsRead(const std::string& fileName) const {
  return std::find(unread.begin(), unread.end(), fileName) == unread.end();
}

Tables LoadTables(const std::string& folder) {
  Tables t;
  std::vector<std::string>& unread = t.unread;
  Load(folder, "PipeThickness.dat", data::ReadPipeTable, t.pipes, unread);
  Load(folder, "Liqprop.dat", data::ReadFluidTable, t.liquids, unread);
  Load(folder, "Gasprop.dat", data::ReadFluidTable, t.gases, unread);
  Load(folder, "Steam.dat", data::ReadSteamViscosityTable, t.steamViscosity, unread);
  Load(folder, "Orifice.dat", flow::ReadOrificeTable, t.orifice, unread);
  Load(folder, "Integral.dat", flow::ReadIntegralTable, t.integral, unread);
  Load(folder, "Vortex.dat", flow::ReadVortexTable, t.vortex, unread);
  Load(folder, "TE.dat", temperature::ReadSensorTable, t.sensors, unread);
  Load(folder, "ValveSpec.dat", valve::ReadValveCatalogue, t.valves, unread);
  Load(folder, "ValveDia.dat", valve::ReadValveDiaTable, t.valveDiameters, unread);
  Load(folder, "単位変換.dat", data::ReadUnitTable, t.units, unread);
  Load(folder, "PressLoss.dat", piping::ReadPressLossTable, t.pressLoss, unread);
  Load(folder, "Material.dat", data::ReadMaterialTable, t.materials, unread);
  Load(folder, "CableData.dat", ducts::ReadCableTable, t.cables, unread);
  Load(folder, "CableDuct.dat", ducts::ReadDuctCatalogue, t.ducts, unread);
  Load(folder, "ZephaConvertData.dat", data::ReadConvertLists, t.lists, unread);
  return t;
}

}  // namespace shell
