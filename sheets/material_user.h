#pragma once

#include "data/material_table.h"
#include "forms/controls.h"

namespace sheets {

/// Modulus or stress of a material at the temperature of a state, kgf/mm2.
using MaterialProperty = common::Real (*)(const data::MaterialTable& table, int material,
                                          const data::ProcessState& state,
                                          common::Messages& messages);

/// A form that lists the materials.
class MaterialUser {
 public:
  virtual ~MaterialUser() = default;
  /// A name or a cell of the materials has been edited while the form is open: its lists are to
  /// show their names. What the user has chosen and entered stays.
  virtual void MaterialsChanged() = 0;
};

/// Brings a list of the materials to their names; the selection stays.
inline void ShowMaterialNames(forms::ListControl& list, const data::MaterialTable& materials) {
  for (int i = 0; i < list.Count() && i < data::MaterialTable::kMaterials; ++i) {
    list.SetItem(i, common::At(materials.names, i));
  }
}

}  // namespace sheets
