#pragma once

#include <optional>
#include <string>

#include "data/property_estimator.h"
#include "forms/controls.h"
#include "sheets/property_target.h"
#include "sheets/tag_record.h"
#include "shell/sheet.h"

namespace sheets {

using common::Real;

/// Reads seven properties of a liquid, a gas or steam at a pressure and a temperature. It holds no
/// tags; its tag number is printed only.
class frm物性 : public shell::Sheet, public FluidUser {
 public:
  static constexpr const char* kKind = "物性推算";
  static constexpr int kRows = 7;

  forms::Label lblTagNo{*this, "lblTagNo", "Tag No."};
  forms::TextBox txtTagNo{*this, "txtTagNo", forms::AnyKey, kTagNumberBytes};
  forms::OptionButton opt液体{*this, "opt液体", "液体"};
  forms::OptionButton opt気体{*this, "opt気体", "気体"};
  forms::OptionButton opt蒸気{*this, "opt蒸気", "蒸気"};
  forms::Label lblPress{*this, "lblPress", "圧力"};
  forms::TextBox txtPress{*this, "txtPress", forms::NumberKeys};
  forms::UnitBox cboPressUnit{*this, "cboPressUnit"};
  forms::Label lblTemp{*this, "lblTemp", "温度"};
  forms::TextBox txtTemp{*this, "txtTemp", forms::SignedNumberKeys};
  forms::UnitBox cboTempUnit{*this, "cboTempUnit"};
  forms::ListBox lst流体名称{*this, "lst流体名称", 12};
  forms::Button cmd計算{*this, "cmd計算", "計算", forms::ButtonRole::kDefault};

  forms::Label lbl流体名{*this, "lbl流体名", "", forms::LabelStyle::kHeading};
  forms::ControlArray<forms::Label> lbl物性{*this, "lbl物性", kRows};
  forms::ControlArray<forms::ResultLabel> lbl物性値{*this, "lbl物性値", kRows};
  forms::ControlArray<forms::Label> lbl単位{*this, "lbl単位", kRows, std::string(),
                                            forms::LabelStyle::kUnit};

  explicit frm物性(shell::Workspace& workspace);

  void Load() override;
  void Activate() override;
  std::string TagNumber() const override { return txtTagNo.Text(); }
  bool PrintBody(shell::PrintSurface& target) override;
  void FluidsChanged() override;

 private:
  void DeclareLayout();

  data::ProcessState& Process() const { return Space().process; }
  const shell::Tables& Tables() const { return Space().tables; }

  void ShowPhase(data::FluidPhase phase);
  void FillNames();
  void ShowFluidName();
  void Entry_Change();
  void cmd計算_Click();

  void StoreConditions();
  void StoreTemperature(Real celsius);
  /// What the estimator says at 0 degC, which is the standard state of this sheet.
  template <class Estimate>
  auto AtStandardState(Estimate estimate);

  void EstimateSteam();
  void EstimateGas(data::PropertyEstimator& estimator, int fluid);
  void EstimateLiquid(data::PropertyEstimator& estimator, int fluid);

  void ClearResults();
  void ShowText(int row, const std::string& text);
  void ShowValue(int row, Real value);
  void ShowExponent(int row, std::optional<Real> exponent);
  /// Shows a value that cannot be true in the caution colour, with the reason.
  void ShowCaution(int row, const std::string& reason);

  data::FluidPhase phase_ = data::kLiquid;
};

}  // namespace sheets
