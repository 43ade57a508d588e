#pragma once

#include "forms/controls.h"
#include "sheets/pipe_ends.h"
#include "shell/workspace.h"

namespace sheets {

/// Kinds of pipe with their roughness, for the pressure loss sheet.
class frmRoughness : public forms::Form {
 public:
  static constexpr const char* kName = "frmRoughness";

  forms::Label lbl配管種類{*this, "lbl配管種類", "配管の種類"};
  forms::ListBox lstRoughness{*this, "lstRoughness", 4};
  forms::Label lbl管内粗さ{*this, "lbl管内粗さ", "管内粗さ"};
  forms::ResultLabel lblRoughness{*this, "lblRoughness"};
  forms::Button cmdRoughness{*this, "cmdRoughness", "決定", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmRoughness(shell::Workspace& workspace);
  void Load() override;

 private:
  std::string Selected() const;
  void cmdRoughness_Click();

  shell::Workspace& workspace_;
};

/// Pictures of the inlet shapes; a click on one chooses it for the pressure loss sheet.
class frmInletType : public forms::Form {
 public:
  static constexpr const char* kName = "frmInletType";
  static constexpr int kTypes = 5;

  forms::ControlArray<forms::Picture> picInlet{*this, "picInlet", kTypes, kPipeEndWidth,
                                               kPipeEndHeight};
  forms::ControlArray<forms::Button> cmdInlet{*this, "cmdInlet", kTypes, std::string()};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmInletType(shell::Workspace& workspace);

 private:
  void Choose(int type);

  shell::Workspace& workspace_;
};

}  // namespace sheets
