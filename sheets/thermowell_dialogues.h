#pragma once

#include "forms/controls.h"
#include "shell/workspace.h"

namespace sheets {

/// Stress concentration at the root of a thermowell from the radius of its chamfer.
class frm形状係数 : public forms::Form {
 public:
  static constexpr const char* kName = "frm形状係数";

  forms::Label lbl根元外径{*this, "lbl根元外径", "保護管根元外径"};
  forms::ResultLabel lblRootDia{*this, "lblRootDia"};
  forms::Label lbl切欠き{*this, "lbl切欠き", "面取り半径 r"};
  forms::TextBox txt切欠き{*this, "txt切欠き", forms::NumberKeys};
  /// Steps the radius by 0.1 mm, upwards for more.
  forms::ScrollBar VScroll1{*this, "VScroll1", forms::ScrollBar::Direction::kVertical, kSteps};
  forms::Label lblKt{*this, "lblKt", "応力集中係数 Kt"};
  forms::ResultLabel lbl係数R{*this, "lbl係数R"};
  forms::Button Command1{*this, "Command1", "決定", forms::ButtonRole::kDefault};
  forms::Button Command2{*this, "Command2", "キャンセル", forms::ButtonRole::kCancel};

  explicit frm形状係数(shell::Workspace& workspace);
  void Load() override;

 private:
  static constexpr int kSteps = 300;

  void txt切欠き_Change();
  void VScroll1_Change();
  void Command1_Click();

  shell::Workspace& workspace_;
};

/// The conditions by which lock-in is judged.
class frmTW判定条件 : public forms::Form {
 public:
  static constexpr const char* kName = "frmTW判定条件";

  forms::Label lblTitle{*this, "lblTitle", "JSME S 012 同期振動発生の判定",
                        forms::LabelStyle::kHeading};
  forms::Label lblSubtitle{*this, "lblSubtitle", "配管内円柱状構造物の流力振動評価指針"};
  forms::Label lbl説明{*this, "lbl説明", "次の (a) ～ (c) のいずれかの条件を満足すること。"};
  forms::Label lbl条件a{*this, "lbl条件a", "(a) Ｖr＜1.0"};
  forms::Label lbl条件b{*this, "lbl条件b", "(b) Ｃn＞６４"};
  forms::Label lbl条件c{*this, "lbl条件c", "(c) Ｖr＜３.３ かつ Ｃn＞２.５"};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};

  explicit frmTW判定条件(shell::Workspace& workspace);
};

/// Frequencies of the first three modes.
class frm振動数判定 : public forms::Form {
 public:
  static constexpr const char* kName = "frm振動数判定";

  forms::Grid grd振動数{
      *this,
      "grd振動数",
      {{"次数", 900, false}, {"固有振動数 (Hz)", 2000}, {"Vr", 1400}, {"Cn", 1400}}};
  forms::Label lblMethod{*this, "lblMethod", "(JMSE S 012)"};
  forms::Label lblRemark{*this, "lblRemark", "2次，3次の固有振動数は平均径で計算します。",
                         forms::LabelStyle::kNote};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};

  explicit frm振動数判定(shell::Workspace& workspace);
  void Load() override;

 private:
  shell::Workspace& workspace_;
};

}  // namespace sheets
