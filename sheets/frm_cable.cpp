#include "sheets/frm_cable.h"

#include "common/number.h"
#include "common/text.h"
#include "sheets/duct_dialogues.h"
#include "sheets/frm_duct_list.h"

namespace sheets {

namespace {

using common::Format;
using common::IsBlank;
using common::NumberText;
using common::Real;
using common::Val;
using forms::Cell;

constexpr const char* kWhole = "#,##0";
constexpr const char* kTenths = "#,##0.0";
constexpr const char* kUngroupedTenths = "##0.0";
constexpr const char* kUncalculated = "ケーブルまたはスパンが変わっています。計算してください。";

/// Shows a value that is above 0; another one leaves what stands there.
void ShowPositive(forms::Label& label, Real value, const char* format) {
  if (value > 0) label.SetText(Format(value, format));
}

}  // namespace

frmCable* OpenCableSheet(const shell::Workspace& workspace) {
  return dynamic_cast<frmCable*>(workspace.forms.Find(frmCable::kName));
}

frmCable::frmCable(shell::Workspace& workspace)
    : Sheet(workspace, kKind, "ケーブルダクトサイジング") {
  BindHandlers();
  DeclareLayout();
}

void frmCable::BindHandlers() {
  for (int row = 0; row < kRows; ++row) {
    cmd編集[row].SetText(std::to_string(row + 1));
    cmd編集[row].SetToolTip("ケーブルデータ編集");
    cmd編集[row].onClick = [this, row] { EditRow(row); };
    for (ResultLabel* label :
         {&lblCable[row], &lbl芯数[row], &lblSize[row], &lblCableDia[row], &lblUnitWeight[row]}) {
      label->onClick = cmd編集[row].onClick;
    }
    txt本数[row].onChange = [this] { TellUncalculated(); };
    // Numbers are typed down the column; behind the last cable comes the button for a new one.
    txt本数[row].onEnter = [this, row] {
      if (row + 1 < kRows && !IsBlank(lblCable[row + 1].Text())) {
        SetFocus(txt本数[row + 1]);
      } else {
        FocusNext(txt本数[row]);
      }
    };
  }
  txtSpan.onChange = [this] { TellUncalculated(); };
  for (TextBox* box : {&txtWidth, &txtHeight, &txt折込, &txtThickness, &txt作業員}) {
    box->onChange = [this] { Evaluate(); };
  }
  cmd寸法.onClick = [this] { Space().forms.Show(frmSetDuctSize::kName); };
  for (TextBox* box : {&txtWidth, &txtHeight, &txt折込, &txtThickness}) {
    box->onRightClick = cmd寸法.onClick;
  }
  pic断面.onPaint = [this](forms::DrawSurface& surface) {
    drawing_.Draw(surface, pic断面.Width(), pic断面.Height(), false);
  };
  cmdDuct初期化.onClick = [this] { cmdDuct初期化_Click(); };
  cmd断面図.onClick = [this] { Space().forms.Show(frmDuctDraw::kName); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmCable::Load() { cmdDuct初期化_Click(); }

void frmCable::Unload() {
  for (const char* const name :
       {frmDuctList::kName, frmDataInput::kName, frmSetDuctSize::kName, frmDuctDraw::kName}) {
    if (forms::Form* const form = Space().forms.Find(name)) Space().forms.Unload(*form);
  }
  Sheet::Unload();
}

void frmCable::EditRow(int row) {
  editedRow_ = row;
  Space().forms.Show(frmDataInput::kName);
}

CableEntry frmCable::Cable(int row) const {
  return {common::At(choices_, row), lblCable[row].Text(),    lbl芯数[row].Text(),
          lblSize[row].Text(),       lblCableDia[row].Text(), lblUnitWeight[row].Text(),
          txt本数[row].Text()};
}

void frmCable::SetCable(int row, const CableEntry& entry) {
  common::At(choices_, row) = entry.choice;
  lblCable[row].SetText(entry.name);
  lbl芯数[row].SetText(entry.cores);
  lblSize[row].SetText(entry.size);
  lblCableDia[row].SetText(entry.diameter);
  lblUnitWeight[row].SetText(entry.unitWeight);
  txt本数[row].SetText(entry.quantity);
  ClearRowResults(row);
  TellUncalculated();
  SetFocus(txt本数[row]);
}

void frmCable::ClearRowResults(int row) {
  lblTotalArea[row].SetText("");
  ClearRowWeights(row);
}

void frmCable::ClearRowWeights(int row) {
  lblWeight1[row].SetText("");
  lblTotalWeight[row].SetText("");
}

void frmCable::SetSize(const std::array<std::string, 4>& size) {
  {
    const Quiet quiet(*this);
    txtWidth.SetText(size[0]);
    txtHeight.SetText(size[1]);
    txtThickness.SetText(size[2]);
    txt折込.SetText(size[3]);
  }
  Evaluate();
}

void frmCable::cmdDuct初期化_Click() {
  const Quiet quiet(*this);
  for (int row = 0; row < kRows; ++row) SetCable(row, {});
  for (TextBox* box : {&txtTagNo, &txtWidth, &txtHeight, &txt折込, &txtThickness}) {
    box->SetText("");
  }
  txtSpan.SetText("5");
  txt作業員.SetText("2");
  ClearResults();
  SetFocus(txtTagNo);
  Space().calcDone = false;
}

void frmCable::ClearResults() {
  for (ResultLabel* label : {&lblSumArea, &lblUnitWeightSub, &lblSumWeight, &lblDuctArea,
                             &lbl占積率, &lblDuctWeight, &lbl撓み}) {
    label->SetText("");
  }
  lbl区分.SetText("");
  lbl未計算.SetText("");
  SetSagColor(forms::kBlack);
  drawing_ = {};
  RedrawDuct();
}

void frmCable::TellUncalculated() {
  if (lblDuctArea.Text().empty()) return;
  lbl未計算.SetText(kUncalculated);
  lbl未計算.SetForeColor(forms::kMagenta);
}

ducts::CableRun frmCable::Run(int row) const {
  return {Val(lblCableDia[row].Text()), Val(lblUnitWeight[row].Text()), Val(txt本数[row].Text())};
}

std::vector<int> frmCable::CountedRows() const {
  std::vector<int> rows;
  for (int row = 0; row < kRows; ++row) {
    if (!IsBlank(lblCable[row].Text()) && Val(txt本数[row].Text()) > 0) rows.push_back(row);
  }
  return rows;
}

ducts::CableLoad frmCable::LoadOf(int row) const {
  return ducts::LoadOf(Run(row), Val(txtSpan.Text()));
}

ducts::CableLoad frmCable::TotalLoad() const {
  ducts::CableLoad sum;
  for (const int row : CountedRows()) sum = sum + LoadOf(row);
  return sum;
}

ducts::DuctSection frmCable::Section() const {
  return {Val(txtWidth.Text()), Val(txtHeight.Text()), Val(txt折込.Text()),
          Val(txtThickness.Text())};
}

void frmCable::ShowRow(int row) {
  ShowPositive(lblTotalArea[row], LoadOf(row).area, kWhole);
  ShowRowWeights(row);
}

void frmCable::ShowRowWeights(int row) {
  const ducts::CableLoad load = LoadOf(row);
  ShowPositive(lblWeight1[row], load.unitWeight, kTenths);
  ShowPositive(lblTotalWeight[row], load.weight, kTenths);
}

void frmCable::ShowSums(const ducts::CableLoad& sum) {
  lblSumArea.SetText(Format(sum.area, kWhole));
  ShowSumWeights(sum);
}

void frmCable::ShowSumWeights(const ducts::CableLoad& sum) {
  lblUnitWeightSub.SetText(Format(sum.unitWeight, kTenths));
  lblSumWeight.SetText(Format(sum.weight, kTenths));
}

void frmCable::cmd計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  Space().calcDone = false;
  if (!HasData({"CableDuct.dat"})) return;
  ClearResults();
  for (const int row : CountedRows()) ShowRow(row);
  const ducts::DuctCatalogue::Row& size =
      ducts::SmallestDuct(Space().tables.ducts, TotalLoad().area);
  const ducts::Plate plate = ducts::PlateOf(ducts::ClassOf(size.width, size.depth));
  SetSize({NumberText(size.width), NumberText(size.depth), NumberText(plate.thickness),
           NumberText(plate.foldIn)});
  Space().calcDone = true;
}

void frmCable::Evaluate() {
  const Quiet quiet(*this);
  ClearResults();  // a fault must not leave those of other dimensions
  const ducts::CableLoad sum = TotalLoad();
  const ducts::DuctCheck check =
      ducts::CheckDuct(Section(), sum, Val(txtSpan.Text()), Val(txt作業員.Text()));
  ShowSums(sum);
  ShowClass(check.duct);
  lblDuctArea.SetText(Format(check.clearArea, kWhole));
  lbl占積率.SetText(check.fill ? Format(*check.fill, kUngroupedTenths) : "");
  lblDuctWeight.SetText(Format(check.ductWeight, kWhole));
  ShowSag(check);
  ShowDrawing(check.fill);
}

void frmCable::ShowClass(ducts::DuctClass duct) {
  lbl区分.SetText(duct == ducts::DuctClass::kSeparate ? "（セパレート型)" : "");
}

void frmCable::ShowSag(const ducts::DuctCheck& check) {
  lbl撓み.SetText(check.sag ? Format(*check.sag, kUngroupedTenths) : "");
  SetSagColor(check.sagsTooMuch ? forms::kRed : forms::kBlack);
}

void frmCable::SetSagColor(forms::Color color) {
  lbl撓み.SetForeColor(color);
  lbl撓み.SetToolTip(color == forms::kRed ? "支持スパンの1/1000を超えています。" : "");
}

void frmCable::ShowDrawing(const std::optional<Real>& fill) {
  std::vector<ducts::CableRun> cables;
  for (const int row : CountedRows()) cables.push_back(Run(row));
  drawing_.Set(Section(), cables, fill);
  RedrawDuct();
}

void frmCable::RedrawDuct() {
  pic断面.Redraw();
  if (auto* const view = dynamic_cast<frmDuctDraw*>(Space().forms.Find(frmDuctDraw::kName))) {
    view->picDuct.Redraw();
  }
}

void frmCable::DeclareLayout() {
  SetLayout(forms::Column({
      forms::Row({forms::Stretched(forms::Table({{lblTagNo, Cell(txtTagNo).Wide(28)}})),
                  forms::Table({{lblSpan, Cell(txtSpan).Wide(8), "m"}}),
                  forms::Table({{lbl作業員, Cell(txt作業員).Wide(8), "名"}})}),
      forms::Stretched(forms::Row({
          forms::Stretched(CableBlock(), 3),
          forms::Stretched(forms::Column({SizeBlock(), ResultBlock(),
                                          forms::Stretched(forms::Table({{pic断面}})),
                                          forms::Buttons({{}, cmdDuct初期化, cmd断面図, cmd計算})}),
                           1),
      })),
  }));
}

forms::Block frmCable::CableBlock() {
  std::vector<forms::Line> lines = {{"", "種　類", "線芯数", "公称ｻｲｽﾞ", "仕上り外径", "概算重量",
                                     "数　量", "断面積", "単位重量", "重　量"},
                                    {"", "", "", "", "mm", "kg/km", "本", "mm2", "kg/m", "kg"}};
  for (int row = 0; row < kRows; ++row) {
    lines.push_back({Cell(cmd編集[row]).Wide(3), Cell(lblCable[row]).Wide(11),
                     Cell(lbl芯数[row]).Wide(6), Cell(lblSize[row]).Wide(6),
                     Cell(lblCableDia[row]).Wide(6), Cell(lblUnitWeight[row]).Wide(7),
                     Cell(txt本数[row]).Wide(6), Cell(lblTotalArea[row]).Wide(8),
                     Cell(lblWeight1[row]).Wide(7), Cell(lblTotalWeight[row]).Wide(8)});
  }
  lines.push_back({"", "合　計", "", "", "", "", "", Cell(lblSumArea).Wide(8),
                   Cell(lblUnitWeightSub).Wide(7), Cell(lblSumWeight).Wide(8)});
  return forms::Group("ケーブル", forms::Table(std::move(lines)));
}

forms::Block frmCable::SizeBlock() {
  return forms::Group(
      "ダクト寸法",
      forms::Table({
          {lblWidth, Cell(txtWidth).Wide(7), "mm", lblHeight, Cell(txtHeight).Wide(7), "mm"},
          {lblThickness, Cell(txtThickness).Wide(7), "mm", lbl折込, Cell(txt折込).Wide(7), "mm"},
          {Cell(lbl区分).Over(3), Cell(cmd寸法).Over(3)},
      }));
}

forms::Block frmCable::ResultBlock() {
  return forms::Results("計算結果", forms::Table({
                                        {"ダクト面積", lblDuctArea, "mm2"},
                                        {"占積率", lbl占積率, "%"},
                                        {"ダクト自重", lblDuctWeight, "kg"},
                                        {"ダクト撓み", lbl撓み, "mm"},
                                        {Cell(lbl未計算).Over(3)},
                                    }));
}

}  // namespace sheets
