#pragma once

#include "forms/controls.h"
#include "shell/workspace.h"

namespace sheets {

/// The issuer's name, which stands at the foot of every report.
class frmRegCompany : public forms::Form {
 public:
  static constexpr const char* kName = "frmRegCompany";

  forms::Label lblCompany{*this, "lblCompany", "発行者名"};
  forms::TextBox txtCompany{*this, "txtCompany", forms::AnyKey, 40};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmRegCompany(shell::Workspace& workspace);
  void Load() override;

 private:
  void cmdOK_Click();

  shell::Workspace& workspace_;
};

/// The programs behind the last three buttons of the tool bar.
class frmUserProgram : public forms::Form {
 public:
  static constexpr const char* kName = "frmUserProgram";
  static constexpr int kPrograms = 3;

  forms::Label lblTitle{*this, "lblTitle", "プログラムの名称"};
  forms::Label lblCommand{*this, "lblCommand", "登録するプログラム（フルパス）"};
  forms::ControlArray<forms::Label> lblProgram{*this, "lblProgram", kPrograms};
  forms::ControlArray<forms::TextBox> txtUserProTitle{*this, "txtUserProTitle", kPrograms};
  forms::ControlArray<forms::TextBox> txtUser{*this, "txtUser", kPrograms};
  forms::Button cmd登録{*this, "cmd登録", "登　録", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmUserProgram(shell::Workspace& workspace);
  void Load() override;

 private:
  void cmd登録_Click();

  shell::Workspace& workspace_;
};

/// The program's version.
class frmAbout : public forms::Form {
 public:
  static constexpr const char* kName = "frmAbout";

  forms::Picture picLogo{*this, "picLogo", 2400, 1200};
  forms::Label lblTitle{*this, "lblTitle", "ZEPHA", forms::LabelStyle::kHeading};
  forms::Label lblVersion{*this, "lblVersion", "", forms::LabelStyle::kNote};
  forms::Button cmdSysInfo{*this, "cmdSysInfo", "ｼｽﾃﾑ情報"};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};

  explicit frmAbout(shell::Workspace& workspace);
};

}  // namespace sheets
