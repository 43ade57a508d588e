#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/form.h"

namespace desktop {

/// A sheet as dense as the densest of the product: process conditions with unit selectors, options,
/// a picture, results and buttons.
class DemoSheet : public forms::Form {
 public:
  DemoSheet();

  forms::Label lblタイトル{*this, "lblタイトル", "Orifice Plate Calculation",
                           forms::LabelStyle::kHeading};
  forms::Label lblTagNo{*this, "lblTagNo", "TAG No."};
  forms::TextBox txtTagNo{*this, "txtTagNo", forms::AnyKey, 26};
  forms::ComboBox cbo流体{*this, "cbo流体", {"液体", "気体", "蒸気"}};
  forms::TextBox txt目盛流量{*this, "txt目盛流量", forms::NumberKeys};
  forms::ComboBox cbo流量単位L{*this, "cbo流量単位L", {"m3/h", "l/h", "l/min", "kg/h", "t/h"}};
  forms::ComboBox cbo流量単位G{*this, "cbo流量単位G", {"Nm3/h", "Nl/h", "Nl/min", "kg/h", "t/h"}};
  forms::ComboBox cbo流量単位S{*this, "cbo流量単位S", {"kg/h", "t/h"}};
  forms::TextBox txt常用流量{*this, "txt常用流量", forms::NumberKeys};
  forms::Label lbl常用流量単位{*this, "lbl常用流量単位", "m3/h", forms::LabelStyle::kUnit};
  forms::TextBox txt圧力{*this, "txt圧力", forms::NumberKeys};
  forms::ComboBox cbo圧力単位{*this, "cbo圧力単位", {"kPaG", "MPaG", "kgf/cm2G", "kgf/cm2abs"}};
  forms::TextBox txt温度{*this, "txt温度", forms::SignedNumberKeys};
  forms::ComboBox cbo温度単位{*this, "cbo温度単位", {"℃", "K", "F"}};
  forms::Label lbl密度{*this, "lbl密度", "密度"};
  forms::TextBox txt密度{*this, "txt密度", forms::NumberKeys};
  forms::ComboBox cbo密度単位L{*this, "cbo密度単位L", {"kg/m3", "kg/l"}};
  forms::ComboBox cbo密度単位G{*this, "cbo密度単位G", {"kg/Nm3", "S.G."}};
  forms::Label lbl粘性係数{*this, "lbl粘性係数", "粘性係数"};
  forms::TextBox txt粘性係数{*this, "txt粘性係数", forms::NumberKeys};
  forms::ComboBox cbo粘性係数単位{*this, "cbo粘性係数単位", {"mPa･S", "cP", "kgf･s/m2"}};
  forms::TextBox txt相対湿度{*this, "txt相対湿度", forms::NumberKeys};
  forms::OptionButton optWetBase{*this, "optWetBase", "湿りベース", "base"};
  forms::OptionButton optDryBase{*this, "optDryBase", "乾きベース", "base"};
  forms::TextBox txt偏差係数{*this, "txt偏差係数", forms::NumberKeys};
  forms::TextBox txt比熱比{*this, "txt比熱比", forms::NumberKeys};

  forms::ComboBox cbo絞り機構種類{*this,
                                  "cbo絞り機構種類",
                                  {"オリフィス（コーナータップ）", "オリフィス（フランジタップ）",
                                   "オリフィス（Ｄ－Ｄ／２タップ）", "四分円オリフィス"}};
  forms::ComboBox cbo絞り部材質{*this, "cbo絞り部材質", {"SUS304", "SUS316", "SUS316L"}};
  forms::TextBox txt絞り部膨張率{*this, "txt絞り部膨張率", forms::NumberKeys};
  forms::ComboBox cbo配管種類{*this, "cbo配管種類", {"JIS G3454 STPG", "JIS G3459 SUS-TP"}};
  forms::ComboBox cbo配管呼称径{*this, "cbo配管呼称径", {"2in", "3in", "4in", "6in"}};
  forms::ComboBox cboSchedule{*this, "cboSchedule", {"Sch 10", "Sch 40", "Sch 80"}};
  forms::TextBox txt配管内径{*this, "txt配管内径", forms::NumberKeys};
  forms::OptionButton opt差圧_絞り径{*this, "opt差圧→絞り径", "差圧→絞り径", "mode"};
  forms::OptionButton opt絞り径_差圧{*this, "opt絞り径→差圧", "絞り径→差圧", "mode"};
  forms::TextBox txt設計差圧{*this, "txt設計差圧", forms::NumberKeys};
  forms::ComboBox cbo設計差圧単位{*this, "cbo設計差圧単位", {"kPa", "Pa", "mmH2O", "mmHg"}};
  forms::TextBox txt絞り径{*this, "txt絞り径", forms::NumberKeys};
  forms::CheckBox chkドレン{*this, "chkドレン", "ドレン孔を設ける"};

  forms::ResultLabel lblMaxReynolds{*this, "lblMaxReynolds"};
  forms::ResultLabel lblNorReynolds{*this, "lblNorReynolds"};
  forms::ResultLabel lbl流出係数R{*this, "lbl流出係数R"};
  forms::ResultLabel lbl膨張補正係数R{*this, "lbl膨張補正係数R"};
  forms::ResultLabel lbl表示β{*this, "lbl表示β"};
  forms::ResultLabel lbl絞り径結果R{*this, "lbl絞り径結果R"};
  forms::ResultLabel lbl差圧結果R{*this, "lbl差圧結果R"};
  forms::ResultLabel lbl永久圧損R{*this, "lbl永久圧損R"};
  forms::ResultLabel lbl使用下限{*this, "lbl使用下限"};
  forms::ResultLabel lbl使用上限{*this, "lbl使用上限"};
  forms::Label lbl判定{*this, "lbl判定", "判定", forms::LabelStyle::kResult};
  forms::Picture pic絞り{*this, "pic絞り", 3600, 1500};

  forms::Button cmdデータ消去{*this, "cmdデータ消去", "データ消去"};
  forms::Button cmd登録{*this, "cmd登録", "登　録"};
  forms::Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  /// Fills the sheet as after a calculation.
  void FillIn();
  void cbo流体_Click();

 private:
  forms::Block Process();
  forms::Block Element();
  forms::Block Outcome();
  void PaintElement(forms::DrawSurface& surface) const;
};

/// One control of each kind that the sheet lacks.
class DemoDialog : public forms::Form {
 public:
  DemoDialog();

  forms::TabStrip tab種類{*this, "tab種類"};
  forms::ListBox lst流体{*this, "lst流体", 6};
  forms::Grid grd一覧{*this, "grd一覧", {{"呼称径", 1200}, {"下限", 1500}, {"備考", 2400, false}}};
  forms::ScrollBar hsb倍率{*this, "hsb倍率", forms::ScrollBar::Direction::kHorizontal, 100};
  forms::ProgressBar prg進行{*this, "prg進行"};
  forms::Frame fra条件{*this, "fra条件", "条件"};
  forms::ComboBox cbo名称{*this, "cbo名称", {"水", "空気"}, forms::ComboBox::Style::kEditable};
  forms::Label lbl注記{*this, "lbl注記", "20℃における値 <b>&", forms::LabelStyle::kNote};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};
};

/// A tool with a list whose lines are columns.
class DemoTool : public forms::Form {
 public:
  DemoTool();

  forms::ListBox lst一覧{*this, "lst一覧", 16, true};
  forms::Button cmd閉じる{*this, "cmd閉じる", "閉じる", forms::ButtonRole::kCancel};
};

}  // namespace desktop
