#pragma once

#include <string>

#include "forms/controls.h"
#include "sheets/valve_targets.h"
#include "shell/workspace.h"

namespace sheets {

/// How the Cv of the last sizing was corrected: piping and gas expansion here, viscosity in the
/// form of each valve class. It takes the detail from the valve sheet on top when it opens.
class CorrectionForm : public forms::Form {
 public:
  forms::Label lblFp{*this, "lblFp"};
  forms::ResultLabel lblFpR{*this, "lblFpR"};
  forms::Label lblY{*this, "lblY", "膨張係数 Y"};
  forms::ResultLabel lblYR{*this, "lblYR"};
  forms::Label lbl説明{*this, "lbl説明", "", forms::LabelStyle::kNote};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};

  void Load() override;

 protected:
  CorrectionForm(shell::Workspace& workspace, const char* name, std::string caption);

  /// Shows what is peculiar to the valve class.
  virtual void ShowDetail(const valve::CorrectionDetail& detail) = 0;
  /// Declares the layout: lines of results, the remark, buttons.
  void LayOut(std::vector<forms::Line> lines, forms::Line buttons);
  shell::Workspace& Space() const { return workspace_; }

 private:
  shell::Workspace& workspace_;
};

/// Correction of the small-flow valves of "本山": Reynolds number and viscosity factor.
class frm本山微少弁 : public CorrectionForm {
 public:
  static constexpr const char* kName = "frm本山微少弁";

  forms::Label lblRe{*this, "lblRe", "レイノルズ数 Re"};
  forms::ResultLabel lblReR{*this, "lblReR"};
  forms::Label lblFr{*this, "lblFr", "粘度補正係数 Fr"};
  forms::ResultLabel lblFrR{*this, "lblFrR"};

  explicit frm本山微少弁(shell::Workspace& workspace);

 private:
  void ShowDetail(const valve::CorrectionDetail& detail) override;
};

/// Correction of the small-flow valves of "山武": viscosity index and factor.
class frm山武微少弁 : public CorrectionForm {
 public:
  static constexpr const char* kName = "frm山武微少弁";

  forms::Label lblRv{*this, "lblRv", "粘度指数 Rv"};
  forms::ResultLabel lblRvR{*this, "lblRvR"};
  forms::Label lblFm{*this, "lblFm", "粘度補正倍率 Fm"};
  forms::ResultLabel lblFmR{*this, "lblFmR"};

  explicit frm山武微少弁(shell::Workspace& workspace);

 private:
  void ShowDetail(const valve::CorrectionDetail& detail) override;
};

/// Correction of every other valve: Reynolds number and factor of a liquid.
class frmCv計算補正 : public CorrectionForm {
 public:
  static constexpr const char* kName = "frmCv計算補正";

  forms::Label lblRe{*this, "lblRe", "弁レイノルズ数 Re"};
  forms::ResultLabel lblReR{*this, "lblReR"};
  forms::Label lblFr{*this, "lblFr", "レイノルズ数係数 Fr"};
  forms::ResultLabel lblFrR{*this, "lblFrR"};
  forms::Button cmd補正データ{*this, "cmd補正データ", "補正データ"};

  explicit frmCv計算補正(shell::Workspace& workspace);

 private:
  void ShowDetail(const valve::CorrectionDetail& detail) override;
};

/// The Reynolds factor over the valve Reynolds number, with the range in which it holds.
class frmCv補正データ : public forms::Form {
 public:
  static constexpr const char* kName = "frmCv補正データ";

  forms::Label lbl適用範囲{*this, "lbl適用範囲", "", forms::LabelStyle::kNote};
  forms::Grid grd補正データ{
      *this,
      "grd補正データ",
      {{"弁レイノルズ数 Re", 2300, true}, {"係数 Fr", 1900, true}, {"Cvの倍率 1/Fr", 2000, true}},
      16};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};

  explicit frmCv補正データ(shell::Workspace& workspace);

  void Load() override;
};

}  // namespace sheets
