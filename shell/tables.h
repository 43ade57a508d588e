#pragma once

#include <string>
#include <vector>

#include "data/convert_lists.h"
#include "data/fluid_table.h"
#include "data/material_table.h"
#include "data/pipe_table.h"
#include "data/steam.h"
#include "data/unit_table.h"
#include "ducts/cable_table.h"
#include "flow/integral_table.h"
#include "flow/orifice_table.h"
#include "flow/vortex_table.h"
#include "piping/press_loss_table.h"
#include "temperature/sensor_table.h"
#include "valve/valve_catalogue.h"

namespace shell {

/// The reference data of a run, read once at the start; only their editors change them.
struct Tables {
  data::PipeTable pipes;
  data::FluidTable liquids;
  data::FluidTable gases;
  data::SteamViscosityTable steamViscosity;
  flow::OrificeTable orifice;
  flow::IntegralTable integral;
  flow::VortexTable vortex;
  temperature::SensorTable sensors;
  valve::ValveCatalogue valves;
  valve::ValveDiaTable valveDiameters;
  data::UnitTable units;
  piping::PressLossTable pressLoss;
  data::MaterialTable materials;
  ducts::CableTable cables;
  ducts::DuctCatalogue ducts;
  data::ConvertLists lists;

  /// Files that could not be read completely; what they hold stands empty.
  std::vector<std::string> unread;

  bool IsRead(const std::string& fileName) const;
};

/// Reads all data files of a folder in their fixed order. A file that is missing, short or damaged
/// leaves its table empty, is named in `unread`, and does not keep the others from being read.
Tables LoadTables(const std::string& folder);

}  // namespace shell
