#pragma once

#include "forms/controls.h"
#include "sheets/property_target.h"
#include "shell/workspace.h"

namespace sheets {

/// The fluid pick list over a calculator: fills one property, or all, of the sheet on top.
class frm流体名表示 : public forms::Form, public FluidUser {
 public:
  static constexpr const char* kName = "frm流体名表示";

  forms::ListBox lst物性推算{*this, "lst物性推算", 16};
  forms::Button cmd全物性{*this, "cmd全物性", "全物性"};
  forms::Button cmd単独物性{*this, "cmd単独物性", "単独物性", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frm流体名表示(shell::Workspace& workspace);

  void Load() override;
  /// Lists the fluids of the current phase.
  void FillNames();
  void FluidsChanged() override;

 private:
  void Fill(bool all);

  shell::Workspace& workspace_;
};

}  // namespace sheets
