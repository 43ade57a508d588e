#include "demo_sheet.h"

namespace desktop {

using forms::Cell;

DemoSheet::DemoSheet() : Form("frmDemo", "Demo: 差圧式流量計", forms::FormRole::kSheet) {
  for (forms::Control* control : Controls()) {
    if (auto* const combo = dynamic_cast<forms::ComboBox*>(control)) combo->SetIndex(0);
  }
  opt差圧_絞り径.SetChecked(true);
  optWetBase.SetChecked(true);
  cbo流体.onClick = [this] { cbo流体_Click(); };
  pic絞り.onPaint = [this](forms::DrawSurface& surface) { PaintElement(surface); };
  cbo流体_Click();
  txt絞り径.SetEnabled(false);
  txt絞り径.SetBackColor(forms::kButtonFace);
  SetLayout(forms::Column({forms::Table({{lblタイトル}}),
                           forms::Row({forms::Stretched(forms::Column({Process()}), 1),
                                       forms::Stretched(forms::Column({Element(), Outcome()}), 1)}),
                           forms::Buttons({cmdデータ消去, Cell(), cmd登録, cmd計算})}));
}

forms::Block DemoSheet::Process() {
  return forms::Group("プロセス条件",
                      forms::Table({{lblTagNo, Cell(txtTagNo).Over(2)},
                                    {"流体", Cell(cbo流体).Over(2)},
                                    {"最大目盛流量", txt目盛流量,
                                     Cell::OneOf({&cbo流量単位L, &cbo流量単位G, &cbo流量単位S})},
                                    {"常用流量", txt常用流量, lbl常用流量単位},
                                    {"圧力", txt圧力, cbo圧力単位},
                                    {"温度", txt温度, cbo温度単位},
                                    {lbl密度, txt密度, Cell::OneOf({&cbo密度単位L, &cbo密度単位G})},
                                    {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
                                    {"相対湿度", txt相対湿度, "%"},
                                    {Cell(), Cell::Side({&optWetBase, &optDryBase}).Over(2)},
                                    {"偏差係数 Z", txt偏差係数},
                                    {"比熱比 κ", txt比熱比}}));
}

forms::Block DemoSheet::Element() {
  return forms::Row(
      {forms::Stretched(
           forms::Group("絞り機構",
                        forms::Table({{"種類", Cell(cbo絞り機構種類).Over(2)},
                                      {"絞り部材質", Cell(cbo絞り部材質).Over(2)},
                                      {"線膨張率", txt絞り部膨張率, "10⁻⁶/℃"},
                                      {Cell(chkドレン).Over(3)},
                                      {Cell::Side({&opt差圧_絞り径, &opt絞り径_差圧}).Over(3)},
                                      {"設計差圧", txt設計差圧, cbo設計差圧単位},
                                      {"絞り径", txt絞り径, "mm"}})),
           1),
       forms::Stretched(
           forms::Group("配管", forms::Table({{"種類", Cell(cbo配管種類).Over(2)},
                                              {"呼称径", Cell(cbo配管呼称径).Over(2)},
                                              {"スケジュール", Cell(cboSchedule).Over(2)},
                                              {"内径 (20℃)", txt配管内径, "mm"},
                                              {Cell(pic絞り).Over(3)}})),
           1)});
}

forms::Block DemoSheet::Outcome() {
  return forms::Results(
      "計算結果",
      forms::Table(
          {{"最大流量時 Re", lblMaxReynolds, Cell(), "常用流量時 Re", lblNorReynolds, Cell()},
           {"流出係数 C", lbl流出係数R, Cell(), "膨張補正係数 ε", lbl膨張補正係数R, Cell()},
           {"絞り直径比 β", lbl表示β, Cell(), "永久圧力損失", lbl永久圧損R, "kPa"},
           {"絞り径", lbl絞り径結果R, "mm", "差圧", lbl差圧結果R, "kPa"},
           {"使用下限", lbl使用下限, "%", "使用上限", lbl使用上限, "%"},
           {"判定", Cell(lbl判定).Over(5)}}));
}

void DemoSheet::cbo流体_Click() {
  const int phase = cbo流体.Index();
  cbo流量単位L.SetVisible(phase == 0);
  cbo流量単位G.SetVisible(phase == 1);
  cbo流量単位S.SetVisible(phase == 2);
  cbo密度単位L.SetVisible(phase == 0);
  cbo密度単位G.SetVisible(phase != 0);
  for (forms::TextBox* box : {&txt相対湿度, &txt偏差係数, &txt比熱比}) {
    box->SetEnabled(phase == 1);
    box->SetBackColor(phase == 1 ? forms::kWhite : forms::kButtonFace);
  }
  optWetBase.SetEnabled(phase == 1);
  optDryBase.SetEnabled(phase == 1);
}

void DemoSheet::FillIn() {
  const std::pair<forms::Control*, const char*> texts[] = {
      {&txtTagNo, "FE-1101A"},
      {&txt目盛流量, "120"},
      {&txt常用流量, "85"},
      {&txt圧力, "500"},
      {&txt温度, "40"},
      {&txt密度, "992.2"},
      {&txt粘性係数, "0.653"},
      {&txt絞り部膨張率, "16.9"},
      {&txt配管内径, "102.3"},
      {&txt設計差圧, "25"},
      {&txt絞り径, "71.284"},
      {&lblMaxReynolds, "630,214"},
      {&lblNorReynolds, "446,402"},
      {&lbl流出係数R, "0.60714"},
      {&lbl膨張補正係数R, "1.00000"},
      {&lbl表示β, "0.69682"},
      {&lbl絞り径結果R, "71.284"},
      {&lbl差圧結果R, "25.000"},
      {&lbl永久圧損R, "12.43"},
      {&lbl使用下限, "1"},
      {&lbl判定, "レイノルズ数が適用範囲外です。"}};
  for (const auto& [control, text] : texts) control->SetText(text);
  lbl判定.SetForeColor(forms::kRed);
  lbl使用下限.SetForeColor(forms::kMagenta);
  cmd登録.SetBackColor(forms::kUnsaved);
  lbl密度.onClick = [] {};
}

void DemoSheet::PaintElement(forms::DrawSurface& surface) const {
  surface.SetLineWidth(1.4);
  surface.Line(150, 350, 3450, 350);
  surface.Line(150, 1150, 3450, 1150);
  surface.DashedLine(150, 750, 3450, 750);
  surface.FilledRectangle(1740, 350, 1860, 600);
  surface.FilledRectangle(1740, 900, 1860, 1150);
  surface.SetColor(forms::kBlue);
  surface.Polyline({{400, 600}, {1300, 600}, {1800, 700}, {2100, 720}, {3000, 600}});
  surface.Polyline({{400, 900}, {1300, 900}, {1800, 800}, {2100, 780}, {3000, 900}});
  surface.FilledPolygon({{3000, 570}, {3120, 600}, {3000, 630}});
  surface.SetColor(forms::kBlack);
  surface.SetFont("IPAGothic", 9, false);
  surface.Text(1950, 400, "d=" + txt絞り径.Text());
}

DemoDialog::DemoDialog() : Form("frmDemoDialog", "種々のコントロール", forms::FormRole::kDialog) {
  tab種類.SetItems({"液体", "気体 & 蒸気"});
  tab種類.SetIndex(0);
  lst流体.SetItems({" 水", " メタノール", " ベンゼン"});
  grd一覧.SetRows({{"25", "0.31", "標準"}, {"40", "0.85", ""}, {"50", "1.32", "要確認"}});
  prg進行.SetValue(40);
  SetLayout(forms::Column(
      {forms::Table({{tab種類}}),
       forms::Group(fra条件, forms::Row({forms::Table({{lst流体}}),
                                         forms::Stretched(forms::Table({{grd一覧}}))})),
       forms::Table({{"名称", cbo名称}, {"倍率", hsb倍率}, {"進行", prg進行}, {"注記", lbl注記}}),
       forms::Buttons({Cell(), cmdOK, cmdCancel})}));
}

DemoTool::DemoTool() : Form("frmDemoTool", "Tag List", forms::FormRole::kTool) {
  std::vector<std::string> lines;
  for (int row = 0; row < 16; ++row) {
    const std::string number = std::to_string(1101 + row);
    // 27 columns of tag number and service, 12 of the kind.
    lines.push_back(row % 2 == 0 ? "FE-" + number + "  原料供給流量　　　ｵﾘﾌｨｽ       "
                                 : "TE-" + number + "A ﾎﾞｲﾗ入口温度      測温体     ");
  }
  lst一覧.SetItems(lines);
  SetLayout(forms::Column({forms::Stretched(forms::Table({{lst一覧}}), 1),
                           forms::Buttons({forms::Cell(), cmd閉じる})}));
}

}  // namespace desktop
