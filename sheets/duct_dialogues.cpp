#include "sheets/duct_dialogues.h"

#include "common/number.h"

namespace sheets {

namespace {

using ducts::CableGroup;

/// Fills a list; one that has a single entry needs no choice.
void Fill(forms::ComboBox& box, const std::vector<std::string>& items) {
  box.SetItems(items);
  if (items.size() == 1) box.SetIndex(0);
}

}  // namespace

frmDataInput::frmDataInput(shell::Workspace& workspace)
    : Form(kName, "ケーブルデータ編集", forms::FormRole::kDialog), workspace_(workspace) {
  constexpr const char* kGroupNames[] = {"制御ケーブル", "補償導線", "被覆銅管", "その他"};
  for (int i = 0; i < ducts::kCableGroups; ++i) {
    const auto group = static_cast<CableGroup>(i);
    Opt種類[i].SetText(kGroupNames[i]);
    Opt種類[i].onClick = [this, group] { ChooseGroup(group); };
  }
  cboCable.onClick = [this] { cboCable_Change(); };
  cboCable.onChange = cboCable.onClick;
  for (ComboBox* box : {&cbo芯数, &cboSize}) {
    box->onClick = [this] { LookUp(); };
    box->onChange = box->onClick;
  }
  cmdErase.onClick = [this] { Leave({}); };
  cmdOK.onClick = [this] {
    Leave({Choice(), cboCable.Text(), cbo芯数.Text(), cboSize.Text(), txtCableDia.Text(),
           txtUnitWeight.Text(), txt本数.Text()});
  };
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  DeclareLayout();
}

void frmDataInput::DeclareLayout() {
  const auto cell = [](forms::Control& control) { return forms::Cell(control).Wide(11); };
  SetLayout(forms::Column({
      forms::Group("種　類", forms::Table({{Opt種類[0], Opt種類[1], Opt種類[2], Opt種類[3]}})),
      forms::Table({
          {"", "種　類", "線芯数", "公称ｻｲｽﾞ", "仕上り外径 mm", "概算重量 kg/km", "数量 本"},
          {"現在", cell(lblCable), cell(lbl芯数), cell(lblSize), cell(lblCableDia),
           cell(lblUnitWeight), cell(lbl本数)},
          {"変更", cell(cboCable), cell(cbo芯数), cell(cboSize), cell(txtCableDia),
           cell(txtUnitWeight), cell(txt本数)},
      }),
      forms::Buttons({cmdErase, {}, cmdOK, cmdCancel}),
  }));
}

void frmDataInput::Load() {
  const Quiet quiet(*this);
  const frmCable* const sheet = OpenCableSheet(workspace_);
  ShowRow(sheet == nullptr ? CableEntry() : sheet->Cable(sheet->EditedRow()));
  SetFocus(cboCable);
}

void frmDataInput::ShowRow(const CableEntry& entry) {
  group_ = entry.choice.group;
  Opt種類[static_cast<int>(group_)].SetChecked(true);
  FillLists();
  cboCable.SetText(entry.name);
  FillCores();
  cbo芯数.SetText(entry.cores);
  cboSize.SetText(entry.size);
  txtCableDia.SetText(entry.diameter);
  txtUnitWeight.SetText(entry.unitWeight);
  txt本数.SetText(entry.quantity);
  lblCable.SetText(entry.name);
  lbl芯数.SetText(entry.cores);
  lblSize.SetText(entry.size);
  lblCableDia.SetText(entry.diameter);
  lblUnitWeight.SetText(entry.unitWeight);
  lbl本数.SetText(entry.quantity);
}

ducts::CableChoice frmDataInput::Choice() const {
  return {group_, cboCable.Index(), cbo芯数.Index(), cboSize.Index()};
}

void frmDataInput::FillLists() {
  Fill(cboCable, ducts::CableNames(group_));
  Fill(cbo芯数, ducts::CoreCounts(group_, cboCable.Index()));
  Fill(cboSize, ducts::CableSizes(group_));
}

/// Shielded cables are made of pairs and not of cores.
void frmDataInput::FillCores() {
  const std::vector<std::string>& cores = ducts::CoreCounts(group_, cboCable.Index());
  if (cbo芯数.Items() != cores) Fill(cbo芯数, cores);
}

/// What has no table is typed, beginning with what stands there.
void frmDataInput::ChooseGroup(CableGroup group) {
  if (group == group_) return;
  const std::string texts[] = {cboCable.Text(), cbo芯数.Text(), cboSize.Text()};
  group_ = group;
  {
    const Quiet quiet(*this);
    FillLists();
    if (group == CableGroup::kOther) {
      cboCable.SetText(texts[0]);
      cbo芯数.SetText(texts[1]);
      cboSize.SetText(texts[2]);
    }
  }
  LookUp();
}

void frmDataInput::cboCable_Change() {
  {
    const Quiet quiet(*this);
    FillCores();
  }
  LookUp();
}

/// The figures of another cable must not stay beside a new name.
void frmDataInput::LookUp() {
  if (group_ == CableGroup::kOther) return;
  const auto figures = ducts::FiguresOf(workspace_.tables.cables, Choice());
  txtCableDia.SetText(figures ? common::Format(figures->diameter, "##0.0") : "");
  txtUnitWeight.SetText(figures ? common::SingleText(figures->weightPerKm) : "");
}

void frmDataInput::Leave(const CableEntry& entry) {
  if (frmCable* const sheet = OpenCableSheet(workspace_))
    sheet->SetCable(sheet->EditedRow(), entry);
  workspace_.forms.Unload(*this);
}

frmSetDuctSize::frmSetDuctSize(shell::Workspace& workspace)
    : Form(kName, "Cableduct Size Set", forms::FormRole::kDialog), workspace_(workspace) {
  lstWidth.SetItems({"100", "200", "250", "300", "400", "500", "600", "800", "1000"});
  lstHeight.SetItems({"50", "100", "150", "200", "250", "300", "400"});
  lstThickness.SetItems({"1.6", "2.3", "3.2"});
  lst折込.SetItems({"15", "20", "50"});
  cmdOK.onClick = [this] { cmdOK_Click(); };
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({
          {"幅 mm", "深さ mm", "板厚 mm", "折込 mm"},
          {lstWidth, lstHeight, lstThickness, lst折込},
      })),
      forms::Buttons({{}, cmdOK, cmdCancel}),
  }));
}

std::array<frmSetDuctSize::Dimension, 4> frmSetDuctSize::Dimensions(const frmCable& sheet) {
  return {{{&lstWidth, &sheet.txtWidth},
           {&lstHeight, &sheet.txtHeight},
           {&lstThickness, &sheet.txtThickness},
           {&lst折込, &sheet.txt折込}}};
}

void frmSetDuctSize::Load() {
  const frmCable* const sheet = OpenCableSheet(workspace_);
  if (sheet == nullptr) return;
  for (const auto& [list, box] : Dimensions(*sheet)) list->SetIndex(list->IndexOf(box->Text()));
}

/// A dimension without a choice stays as it is.
void frmSetDuctSize::cmdOK_Click() {
  frmCable* const sheet = OpenCableSheet(workspace_);
  if (sheet != nullptr) {
    std::array<std::string, 4> size;
    auto text = size.begin();
    for (const auto& [list, box] : Dimensions(*sheet)) {
      *text++ = list->Index() < 0 ? box->Text() : list->Text();
    }
    sheet->SetSize(size);
  }
  workspace_.forms.Unload(*this);
}

frmDuctDraw::frmDuctDraw(shell::Workspace& workspace)
    : Form(kName, "ケーブルダクト断面図", forms::FormRole::kTool) {
  picDuct.onPaint = [this, &workspace](forms::DrawSurface& surface) {
    const frmCable* const sheet = OpenCableSheet(workspace);
    if (sheet != nullptr) sheet->Drawing().Draw(surface, picDuct.Width(), picDuct.Height(), true);
  };
  cmdReturn.onClick = [this, &workspace] { workspace.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{picDuct}})),
      forms::Buttons({{}, cmdReturn}),
  }));
}

}  // namespace sheets
