#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "data/property_estimator.h"
#include "forms/controls.h"
#include "sheets/material_user.h"
#include "sheets/property_target.h"
#include "sheets/tag_record.h"
#include "shell/sheet.h"

namespace sheets {

using common::Real;
using forms::Button;
using forms::Cell;
using forms::ComboBox;
using forms::Form;
using forms::Label;
using forms::LabelStyle;
using forms::OptionButton;
using forms::ResultLabel;
using forms::TextBox;
using forms::UnitBox;

class CalculationPage;

/// Humidity of a gas and the saturation pressure that goes with it.
struct HumidityFields {
  explicit HumidityFields(Form& form);
  Label lbl相対湿度;
  TextBox txt相対湿度;
  Label lbl相対湿度単位;
  Label lbl飽和水蒸気圧;
  TextBox txt飽和水蒸気圧;
  UnitBox cbo飽和水蒸気圧単位;
};

/// Saturated vapour pressure of a liquid.
struct VapourPressureFields {
  explicit VapourPressureFields(Form& form);
  Label lbl飽和蒸気圧;
  TextBox txt飽和蒸気圧;
  UnitBox cbo飽和蒸気圧単位;
};

/// Critical pressure of a liquid.
struct CriticalPressureFields {
  explicit CriticalPressureFields(Form& form);
  Label lbl臨界圧力;
  TextBox txt臨界圧力;
  UnitBox cbo臨界圧力単位;
};

/// Whether a humid gas flow counts its moisture.
struct BaseFields {
  explicit BaseFields(Form& form);
  Label lbl計算基準;
  OptionButton optWetBase;
  OptionButton optDryBase;
};

/// A calculator sheet with the panel of process conditions. The panel's fields have the same names,
/// units and reactions on all sheets; a sheet adds the fields of its own and hands the panel those
/// that only some sheets have.
class ProcessSheet : public shell::Sheet, public PropertyTarget, public MaterialUser {
 public:
  Label lblTagNo{*this, "lblTagNo", "Tag No."};
  TextBox txtTagNo{*this, "txtTagNo", forms::AnyKey, kTagNumberBytes};
  Label lbl用途{*this, "lbl用途", "用途"};
  TextBox txt用途{*this, "txt用途"};
  Label lbl流体{*this, "lbl流体", "流体"};
  ComboBox cbo流体{*this, "cbo流体"};
  UnitBox cbo流量単位L{*this, "cbo流量単位L"};
  UnitBox cbo流量単位G{*this, "cbo流量単位G"};
  UnitBox cbo流量単位S{*this, "cbo流量単位S"};
  Label lbl圧力{*this, "lbl圧力", "圧力"};
  TextBox txt圧力{*this, "txt圧力", forms::NumberKeys};
  UnitBox cbo圧力単位{*this, "cbo圧力単位"};
  Label lbl温度{*this, "lbl温度", "温度"};
  TextBox txt温度{*this, "txt温度", forms::SignedNumberKeys};
  UnitBox cbo温度単位{*this, "cbo温度単位"};
  Label lbl密度{*this, "lbl密度", "密度"};
  TextBox txt密度{*this, "txt密度", forms::NumberKeys};
  UnitBox cbo密度単位L{*this, "cbo密度単位L"};
  UnitBox cbo密度単位G{*this, "cbo密度単位G"};
  UnitBox cbo密度単位S{*this, "cbo密度単位S"};
  Label lbl粘性係数{*this, "lbl粘性係数", "粘性係数"};
  TextBox txt粘性係数{*this, "txt粘性係数", forms::NumberKeys};
  UnitBox cbo粘性係数単位{*this, "cbo粘性係数単位"};

  ProcessSheet(shell::Workspace& workspace, const std::string& kind, std::string caption);

  void Load() override;
  void Activate() override;
  void Unload() override;
  /// A calculation that ends in a fault leaves no results.
  void OnFault(const forms::Control* source, const common::RuntimeFault& fault) override;

  void FillProperty(const std::string& word, int fluidIndex) override;
  void FillAllProperties(int fluidIndex) override;
  void MaterialsChanged() override;

 protected:
  /// The panel's fields that not every sheet has; null where it lacks them.
  struct OptionalFields {
    HumidityFields* humidity = nullptr;
    BaseFields* base = nullptr;
    Label* deviationLabel = nullptr;
    TextBox* deviation = nullptr;
    Label* kappaLabel = nullptr;
    TextBox* kappa = nullptr;
    /// Shows the flow unit of the phase behind a second flow.
    Label* secondFlowUnit = nullptr;
    VapourPressureFields* vapour = nullptr;
    CriticalPressureFields* critical = nullptr;
  };
  /// To be called once, in the constructor of the sheet.
  void UseFields(const OptionalFields& fields);
  /// The sheet's lists of materials, which take over every new name of one. To be called once, in
  /// the constructor of the sheet, which fills them itself.
  void FollowMaterials(std::vector<ComboBox*> lists) { materialLists_ = std::move(lists); }

  /// Empties the sheet's results; every change of an entry calls it.
  virtual void ClearResults() = 0;
  /// The properties of a gas or liquid in the order in which "all properties" fills them.
  virtual std::vector<std::string> PropertyOrder() const = 0;
  /// Deviation factor of a gas as this sheet estimates it.
  virtual Real EstimateDeviation(data::PropertyEstimator& estimator, int fluidIndex);

  /// A list that could not be read counts as liquid.
  int Phase() const { return std::max(cbo流体.Index(), 0); }
  bool IsLiquid() const { return Phase() == data::kLiquid; }
  bool IsGas() const { return Phase() == data::kGas; }
  bool IsSteam() const { return Phase() == data::kSteam; }
  /// The selector of the current phase.
  ComboBox& FlowUnitBox();
  ComboBox& DensityUnitBox();
  /// The selectors of all phases in one place.
  Cell FlowUnits() { return Cell::OneOf({&cbo流量単位L, &cbo流量単位G, &cbo流量単位S}); }
  Cell DensityUnits() { return Cell::OneOf({&cbo密度単位L, &cbo密度単位G, &cbo密度単位S}); }
  data::ProcessState& Process() const { return Space().process; }
  const shell::Tables& Tables() const { return Space().tables; }

  /// Stores all entries of the panel in the workspace's process values, in internal units. An entry
  /// that cannot be converted yet stores 0: nobody is disturbed while he types.
  void StoreEntries();
  /// Reads pressure, temperature and the unit selections into the process values.
  void ReadConditions();
  /// Reads the humidity and what depends on it, with its messages; false when it refuses.
  bool ReadHumidity();
  /// The same without a check: an empty saturation pressure counts as 0.
  void ReadMoisture();
  /// Deviation factor and specific heat ratio; an empty one becomes 1 or 1.4 with a message.
  void ReadDeviation(const std::string& name);
  void ReadKappa();
  /// Densities and viscosity, once the conditions are read.
  void ReadDensities();

  /// Fills a field from the steam equations, the tables or the fluid list, as a double click asks.
  void FillTemperature();
  void FillFromFluidOrSteam(const std::string& word);
  void FillSaturationPressure();

  /// Entry that calls ClearResults and stores the panel when it changes.
  void Watch(TextBox& box);
  void Watch(ComboBox& box);
  /// What a double click does where the equations or the fluid list give the value, and where the
  /// data of a material do.
  static constexpr const char* kEstimates = "推算値を入力します。";
  static constexpr const char* kFromMaterial = "材質と温度から入力します。";
  /// Makes a double click on the field and a click on its label run the same automatic entry; the
  /// tips of both tell what it does.
  void OfferEntry(Label& label, TextBox& box, const std::function<void()>& fill,
                  const std::string& does = kEstimates);
  /// An entry that the steam equations or the fluid list can fill by the word of its property.
  void OfferProperty(Label& label, TextBox& box, const char* word);

  /// Prints the density, for a gas that at normal conditions and that in the pipe, as they were
  /// worked out last; 0 leaves a blank.
  void PrintDensities(CalculationPage& page, Real normal, Real operating);
  /// Prints the viscosity and, for gas and steam, the panel's fields that a liquid has not.
  void PrintGas(CalculationPage& page, const std::string& deviationLabel);

  /// A pipe by nominal size and schedule: a pick looks its bore up in the pipe table, as a double
  /// click on the bore does; a right click on it opens the pipe dialogue.
  void OfferPipe(Label& label, ComboBox& size, ComboBox& schedule, TextBox& bore);
  /// Empties every field of the sheet, without an event.
  void EmptyTextBoxes();
  /// What clearing does on every sheet once its own selections are back at their start: all fields
  /// empty, a liquid, no results, the focus on the tag number.
  void ClearData();

  /// Writes a record: phase, columns and kind.
  void PutRecord(int row, int fluidColumn, const TagColumns& columns);
  /// Fills the sheet from a record of its kind: the phase first, because it decides which selectors
  /// the columns name, then selections, entries, results. The record, or null for another kind.
  const shell::TagRow* GetRecord(int row, int fluidColumn,
                                 const std::function<TagColumns()>& columns);

  /// Empties the results, so that none of the record's is taken for a new one, and clicks a button.
  /// Whether results stand then.
  bool Calculate(Button& button);
  /// The calculation of a sheet without modes, for a record in which this result stands.
  std::vector<Calculation> OneWay(const std::string& result, Button& button);

  /// Looks an entry up anew, as a double click on it does, where all selections that it depends on
  /// are in the database, and adds its column then.
  static void LookUp(std::vector<int>& columns, int column, TextBox& box,
                     const std::vector<const ComboBox*>& selections);

  /// Heading and tag line above the body of a sheet.
  forms::Block SheetBlock(Label& heading, forms::Block body);

  /// A field that is off shows so and loses its text.
  static void SwitchField(TextBox& box, bool on);

  /// Fills a list and selects its first entry, if it has one.
  static void FillList(ComboBox& box, const std::vector<std::string>& items);

  /// Shows the unit selectors of the phase and switches the fields that depend on it.
  virtual void ShowUnitsOfPhase();

 private:
  void cbo流体_Click();
  void cbo流量単位_Click();
  void SwitchHumidity();
  /// Phase and units of the selectors, into the process values.
  void StoreUnits();
  void UpdateFluidList();
  void FillPipeBore(const ComboBox& size, const ComboBox& schedule, TextBox& bore);
  void StoreHumidity();
  TextBox* FieldOf(const std::string& word);
  std::optional<Real> Estimate(const std::string& word, int fluidIndex);
  std::optional<Real> EstimateSteam(const std::string& word);
  bool IsSuperheated(const std::string& title);
  void WriteProperty(const std::string& word, std::optional<Real> value);

  OptionalFields fields_;
  std::vector<ComboBox*> materialLists_;
};

}  // namespace sheets
