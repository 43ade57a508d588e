#include "sheets/frm_cv.h"

#include "common/number.h"
#include "data/material_table.h"
#include "data/units.h"
#include "sheets/frm_cv_set.h"
#include "sheets/frm_pipe_dia.h"
#include "sheets/frm_rating.h"
#include "sheets/list_texts.h"
#include "valve/opening.h"

namespace sheets {

namespace {

using common::NumberText;
using common::Val;

/// The characteristic that a list without a selected model shows.
constexpr int kCharacteristicOfNoModel = valve::kModifiedParabolic;

using HelpLines = std::vector<std::pair<const char*, const char*>>;

// Values with the valves that have them. Fd 1.5 belongs to no published style.
const HelpLines kFLHelp = {{"0.55", "ボール弁(標準口径)"},
                           {"0.68", "バタフライ弁(60ﾟ)、偏心プラグ弁(流閉)"},
                           {"0.7", "バタフライ弁(フルート形)"},
                           {"0.8", "アングル弁、単座弁(流閉)"},
                           {"0.85", "複座弁、偏心プラグ弁(流開)、ケージ弁(流閉)"},
                           {"0.9", "単座弁、ケージ弁(流開)"},
                           {"0.95", "小流量弁(ニードル形)"}};
const HelpLines kFdHelp = {{"1.0", "単座・アングル・ボール・偏心プラグ弁"},
                           {"0.71", "複座弁、バタフライ弁"},
                           {"1.5", "特殊トリム(メーカー指定のとき)"}};
const HelpLines kNHelp = {{"1.0", "流路1つ: アングル弁、ボール弁"},
                          {"1.4", "流路2つ: グローブ弁(標準)、バタフライ弁"},
                          {"2.2", "流路約5つ: ケージ弁"}};

/// Mass of a pipe wall by area, kg/m2, of density kg/m3 and thickness mm.
Real WallWeight(Real density, Real thickness) {
  return common::RoundDigits(density * thickness / 1000, 1);
}

}  // namespace

frmCV::frmCV(shell::Workspace& workspace) : ProcessSheet(workspace, kKind, "Control Valve Sizing") {
  UseFields({.deviationLabel = &lbl偏差係数,
             .deviation = &txt偏差係数,
             .kappaLabel = &lbl比熱比,
             .kappa = &txt比熱比,
             .vapour = &vapour,
             .critical = &critical});
  FollowMaterials({&cbo配管材質});
  BindHandlers();
  BindValveHandlers();
  DeclareLayout();
  frmCV::ClearResults();  // hides the marks
}

void frmCV::BindHandlers() {
  Watch(txt流量);
  Watch(txt差圧);
  Watch(cbo差圧単位);
  cbo圧力単位.onClick = [this] {
    ShowPressureKind(secondaryPressure_);
    StoreEntries();
    ClearResults();
  };
  lbl差圧.onClick = [this] { lbl差圧_Click(); };
  lbl差圧.SetToolTip("クリックで差圧と二次圧力を切り替えます。");
  lblSizingCv.onClick = [this] { lblSizingCv_Click(); };
  lblSizingCv.SetToolTip("クリックで補正の内訳を表示します。");
  lblNoise.onClick = [this] { lblNoise_Click(); };
  lbl差圧.SetTabStop();
  lblSizingCv.SetTabStop();
  lblNoise.SetTabStop();
  cmdCv計算.onClick = [this] { cmdCv計算_Click(); };
  cmdSizing.onClick = [this] { cmdSizing_Click(); };
  cmdCvData消去.onClick = [this] { ClearResults(); };
  cmdSizingData消去.onClick = [this] { ClearSizingResults(); };
  cmdAllData消去.onClick = [this] { cmdAllData消去_Click(); };
  pic特性.onPaint = [this](forms::DrawSurface& surface) { DrawCharacteristic(surface); };
}

void frmCV::BindValveHandlers() {
  cboMaker.onClick = [this] { cboMaker_Click(); };
  cboMaker.onChange = [this] { cboMaker_Change(); };
  cboValveModel.onClick = [this] { cboValveModel_Click(); };
  cboValveModel.onChange = [this] { ClearSizingResults(); };
  for (TextBox* box :
       {&txtFL, &txt弁Fd, &txtN係数, &txtValveSize, &txtCvv, &txtRangeability, &txt弁口径,
        &txt上流配管外径, &txt上流配管厚, &txt下流配管外径, &txt下流配管厚, &txtWallWeight}) {
    WatchValve(*box);
  }
  for (ComboBox* box : {&cboCharact, &cboBodySize}) {
    box->onClick = [this] { ClearSizingResults(); };
  }
  cbo配管材質.onClick = [this] { cbo配管材質_Click(); };
  cbo配管材質.onChange = [this] { ClearSizingResults(); };
  txtValveSize.onDblClick = [this] { Space().forms.Show(frmCvSet::kName); };
  txtValveSize.SetToolTip("ダブルクリックで内弁サイズの一覧を開きます。");
  txt弁口径.onDblClick = [this] { txt弁口径_DblClick(); };
  txt弁口径.SetToolTip("ダブルクリックでフランジ規格から入力します。");
  txt上流配管外径.onDblClick = [this] { OpenPipes(false); };
  txt下流配管外径.onDblClick = [this] { OpenPipes(true); };
  for (TextBox* box : {&txt上流配管外径, &txt下流配管外径}) {
    box->SetToolTip("ダブルクリックで配管を選びます。");
  }
  BindHelpList(lblFL, txtFL, lstFL, kFLHelp);
  BindHelpList(lblFd, txt弁Fd, lstFd, kFdHelp);
  BindHelpList(lblN係数, txtN係数, lstN係数, kNHelp);
}

void frmCV::WatchValve(TextBox& box) {
  box.onChange = [this] { ClearSizingResults(); };
}

void frmCV::BindHelpList(Label& label, TextBox& box, forms::ListBox& list, const HelpLines& lines) {
  constexpr std::size_t kValueLetters = 4;
  std::vector<std::string> items;
  for (const auto& [value, text] : lines) {
    const std::string number = value;
    // A blank is about half as wide as a digit.
    items.push_back(number + std::string(2 * (kValueLetters - number.size()) + 3, ' ') + text);
  }
  list.SetItems(std::move(items));
  list.SetVisible(false);
  label.onClick = [this, &box, &list] { OpenHelpList(box, list); };
  label.SetToolTip("クリックで代表値の一覧を開きます。");
  box.onDblClick = label.onClick;
  box.SetToolTip("ダブルクリックで代表値の一覧を開きます。");
  // The list itself may take the focus from the field without being closed.
  box.onLostFocus = [this, &list] {
    if (Focused() != &list) CloseHelpList(list);
  };
  list.onLostFocus = [this, &box, &list] {
    if (Focused() != &box) CloseHelpList(list);
  };
  list.onClick = [this, &box, &list, lines] {
    if (list.Index() < 0) return;
    box.SetText(common::At(lines, list.Index()).first);
    SetFocus(box);
    CloseHelpList(list);
  };
}

void frmCV::OpenHelpList(TextBox& box, forms::ListBox& list) {
  SetFocus(box);
  for (forms::ListBox* other : {&lstFL, &lstFd, &lstN係数}) CloseHelpList(*other);
  pic特性.SetVisible(false);
  list.SetVisible(true);
}

void frmCV::CloseHelpList(forms::ListBox& list) {
  const Quiet quiet(*this);
  list.SetIndex(-1);
  list.SetVisible(false);
  pic特性.SetVisible(!lstFL.Visible() && !lstFd.Visible() && !lstN係数.Visible());
}

void frmCV::Load() {
  ProcessSheet::Load();
  const Quiet quiet(*this);
  const auto& materials = Tables().materials.names;
  FillList(cbo差圧単位, data::kLossUnits);
  const auto& makers = Tables().valves.valveMaker;
  cboMaker.SetItems({makers.begin(), makers.end()});
  cboCharact.SetItems({valve::kCharacteristics.begin(), valve::kCharacteristics.end()});
  cboBodySize.SetItems(Tables().lists.valveSizes);
  cbo配管材質.SetItems({materials.begin(), materials.end()});
  ShowPressureKind(false);
  StoreEntries();
  SetFocus(txtTagNo);
}

std::vector<std::string> frmCV::PropertyOrder() const {
  if (IsLiquid()) return {"密度", "粘性係数", "飽和蒸気圧", "臨界圧力"};
  return {"密度", "粘性係数", "偏差係数", "比熱比"};
}

void frmCV::lbl差圧_Click() {
  ShowPressureKind(!secondaryPressure_);
  ClearResults();
}

/// The number stays as it is when its meaning changes, as with every unit selector.
void frmCV::ShowPressureKind(bool secondary) {
  secondaryPressure_ = secondary;
  lbl差圧.SetText(secondary ? "二次圧力" : "差圧");
  lbl二次圧単位.SetText(secondary ? cbo圧力単位.Text() : "");
  lbl二次圧単位.SetVisible(secondary);
  cbo差圧単位.SetVisible(!secondary);
  txt差圧.SetHint(secondary ? "弁の二次側（下流）の圧力。一次側の圧力より低い値にします。\n"
                              "見出しのクリックで差圧の入力に切り替えます。"
                            : "弁の前後の差圧。上流の絶対圧力より小さい値にします。\n"
                              "見出しのクリックで二次圧力の入力に切り替えます。");
}

void frmCV::cboMaker_Click() {
  ClearSizingResults();
  FillModels();
  if (cboValveModel.Count() > 0) {
    cboValveModel.Pick(0);
  } else {
    cboValveModel_Click();
  }
}

void frmCV::FillModels() {
  const Quiet quiet(*this);
  if (cboMaker.Index() < 0) {
    cboValveModel.SetItems({});
    return;
  }
  const auto& models = common::At(Tables().valves.valveModel, cboMaker.Index());
  cboValveModel.SetItems({models.begin(), models.end()});
}

/// A maker was typed: his models are listed, and the model's text stays.
void frmCV::cboMaker_Change() {
  ClearSizingResults();
  const std::string model = cboValveModel.Text();
  FillModels();
  const Quiet quiet(*this);
  cboValveModel.SetText(model);
}

void frmCV::cboValveModel_Click() {
  ClearSizingResults();
  const valve::ValveCatalogue& valves = Tables().valves;
  const int maker = cboMaker.Index();
  const int model = cboValveModel.Index();
  const auto field = [&](const valve::ValveCatalogue::ByModel& fields) {
    return maker < 0 || model < 0 ? std::string() : common::At(common::At(fields, maker), model);
  };
  txtFL.SetText(field(valves.valveFL));
  txt弁Fd.SetText(field(valves.valveFd));
  txtN係数.SetText(field(valves.valveN));
  if (maker < 0 || model < 0) {
    cboCharact.SetIndex(kCharacteristicOfNoModel);
    return;
  }
  txtValveSize.SetText("");
  txtCvv.SetText("");
  txtRangeability.SetText("");
  cboCharact.SetIndex(valve::CharacteristicIndex(field(valves.valveChar)));
}

void frmCV::TakeTrim(int row) {
  const valve::ValveCatalogue& valves = Tables().valves;
  const auto trim = [&](const valve::ValveCatalogue::ByTrim& fields) {
    return common::At(common::At(common::At(fields, cboMaker.Index()), cboValveModel.Index()), row);
  };
  const std::string ratedCv = trim(valves.valveCv);
  const std::string& model = cboValveModel.Text();
  const std::string& stored =
      common::At(common::At(valves.valveRange, cboMaker.Index()), cboValveModel.Index());
  txtValveSize.SetText(trim(valves.valveSize));
  txtCvv.SetText(ratedCv);
  txtRangeability.SetText(valve::RangeabilityOf(model, Val(ratedCv), stored));
  if (valve::IsLinearTrim(model, Val(ratedCv))) cboCharact.SetIndex(valve::kLinear);
}

/// Fills the lists anew. A maker or model chosen from the list stays chosen, under its new name;
/// one that the catalogue does not have keeps its text.
void frmCV::CatalogueChanged() {
  const Quiet quiet(*this);
  const auto keep = [](ComboBox& box, int index, const std::string& text) {
    if (index >= 0) {
      box.SetIndex(index);
    } else {
      box.SetText(text);
    }
  };
  const int maker = cboMaker.Index();
  const std::string makerText = cboMaker.Text();
  const int model = cboValveModel.Index();
  const std::string modelText = cboValveModel.Text();
  const auto& makers = Tables().valves.valveMaker;
  cboMaker.SetItems({makers.begin(), makers.end()});
  keep(cboMaker, maker, makerText);
  FillModels();
  keep(cboValveModel, model, modelText);
}

void frmCV::OpenPipes(bool downstream) {
  downstreamPipe_ = downstream;
  Space().forms.Show(frmPipeDia::kName);
}

/// The pipe table is in single precision, whose seven figures are shown.
void frmCV::TakePipe(double outsideDiameter, double wallThickness, double) {
  TextBox& diameter = downstreamPipe_ ? txt下流配管外径 : txt上流配管外径;
  TextBox& wall = downstreamPipe_ ? txt下流配管厚 : txt上流配管厚;
  diameter.SetText(common::SingleText(static_cast<float>(outsideDiameter)));
  wall.SetText(common::SingleText(static_cast<float>(wallThickness)));
}

/// The list of bodies has two sizes more than that of pipes.
int frmCV::PipeStartSize() const {
  constexpr int kTwoInches = 8;
  const int size = cboBodySize.Index();
  return size < 0 || size >= data::PipeTable::kSizes ? kTwoInches : size;
}

void frmCV::txt弁口径_DblClick() {
  if (cboBodySize.Index() < 0) {
    User().Show("指定の弁サイズはﾃﾞｰﾀﾍﾞｰｽに登録されていません。", "調節弁口径");
    return;
  }
  Space().forms.Show(frmRating::kName);
}

void frmCV::TakeRating(const std::string& rating, const std::string& bore) {
  flangeRating_ = rating;
  lblフランジ規格.SetText(rating);
  txt弁口径.SetText(bore);
}

/// The noise leaves through the wall of the downstream pipe.
void frmCV::cbo配管材質_Click() {
  ClearSizingResults();
  StoreEntries();
  const data::MaterialTable& materials = Tables().materials;
  const int material = cbo配管材質.Index();
  txtWallWeight.SetText("0");
  if (material < 0 || !data::HasDensityEquation(materials, material)) {
    User().Show("材料データベースに密度推算式がありません。", "配管重量");
    return;
  }
  // A temperature outside its range gives 0 and is told there.
  const Real density = data::MaterialDensity(materials, material, Process().temperatureC, User());
  txtWallWeight.SetText(NumberText(WallWeight(density, Val(txt下流配管厚.Text()))));
}

void frmCV::cmdAllData消去_Click() {
  txt比熱比.SetText("");  // not in silence: the caution of a doubtful estimate goes with it
  EmptyTextBoxes();
  {
    const Quiet quiet(*this);
    cboMaker.SetText("");
    FillModels();
    cboValveModel.SetText("");
    cboCharact.SetIndex(-1);
    cboBodySize.SetIndex(-1);
    cbo配管材質.SetText("");
    flangeRating_.clear();
    lblフランジ規格.SetText("");
  }
  StoreEntries();
  ClearResults();
  SetFocus(txtTagNo);
}

void frmCV::ClearResults() {
  lblFCI計算Cv.SetText("");
  lblISA計算Cv.SetText("");
  chokedCv_ = false;
  ClearSizingResults();
  Space().calcDone = false;
}

void frmCV::ClearSizingResults() {
  for (ResultLabel* label : {&lblSizingCv, &lblOpening, &lblVelocity, &lblNoise}) {
    label->SetText("");
  }
  lblVelocity.SetForeColor(forms::kBlack);
  lblVelocity.SetToolTip("");
  lbl注意.SetText("");
  // What the Cv stage found of the service holds on without a valve.
  lblCritical.SetVisible(chokedCv_);
  if (lblISA計算Cv.Text().empty()) lblFlash.SetVisible(false);
  detail_ = {};
  pic特性.Redraw();
}

void frmCV::DeclareLayout() {
  for (Label* label : {&lblFlash, &lblCritical, &lbl注意}) label->SetForeColor(forms::kMagenta);
  SetLayout(SheetBlock(
      lblタイトル,
      forms::Column({
          forms::Stretched(forms::Row({
              forms::Stretched(forms::Column({ProcessBlock(), CvBlock(), forms::Space()}), 6),
              forms::Stretched(forms::Column({ValveBlock(), PipeBlock(), forms::Space()}), 7),
              forms::Stretched(SizingBlock(), 6),
          })),
          forms::Buttons(
              {cmdAllData消去, cmdCvData消去, cmdSizingData消去, {}, cmdCv計算, cmdSizing}),
      })));
}

forms::Block frmCV::ProcessBlock() {
  return forms::Group("プロセス条件",
                      forms::Table({
                          {lbl流体, Cell(cbo流体).Over(2)},
                          {lbl流量, txt流量, FlowUnits()},
                          {lbl圧力, txt圧力, cbo圧力単位},
                          {lbl差圧, txt差圧, Cell::OneOf({&cbo差圧単位, &lbl二次圧単位})},
                          {lbl温度, txt温度, cbo温度単位},
                          {lbl密度, txt密度, DensityUnits()},
                          {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
                          {vapour.lbl飽和蒸気圧, vapour.txt飽和蒸気圧, vapour.cbo飽和蒸気圧単位},
                          {critical.lbl臨界圧力, critical.txt臨界圧力, critical.cbo臨界圧力単位},
                          {lbl偏差係数, txt偏差係数},
                          {lbl比熱比, txt比熱比},
                      }));
}

forms::Block frmCV::CvBlock() {
  return forms::Results("必要Cv", forms::Table({
                                      {"FCI計算 Cv", lblFCI計算Cv, lblFlash},
                                      {"ISA計算 Cv", lblISA計算Cv, lblCritical},
                                  }));
}

forms::Block frmCV::ValveBlock() {
  return forms::Group("調節弁", forms::Table({
                                    {lblMaker, Cell(cboMaker).Over(3)},
                                    {lblValveModel, Cell(cboValveModel).Over(3)},
                                    {lblFL, txtFL, lblFd, txt弁Fd},
                                    {lblN係数, txtN係数, lblCharact, cboCharact},
                                    {lblValveSize, txtValveSize, lblCvv, txtCvv},
                                    {lblBodySize, cboBodySize, lblRangeability, txtRangeability},
                                    {lbl弁口径, txt弁口径, "mm", lblフランジ規格},
                                }));
}

forms::Block frmCV::PipeBlock() {
  return forms::Group("配管", forms::Table({
                                  {"", "外径 mm", "厚さ mm"},
                                  {lbl上流配管, txt上流配管外径, txt上流配管厚},
                                  {lbl下流配管, txt下流配管外径, txt下流配管厚},
                                  {lbl配管材質, Cell(cbo配管材質).Over(2)},
                                  {lblWallWeight, txtWallWeight, "kg/m2"},
                              }));
}

forms::Block frmCV::SizingBlock() {
  return forms::Results(
      "サイジング結果",
      forms::Column({
          forms::Table({
              {"サイジング Cv", lblSizingCv},
              {"弁開度", lblOpening, "%"},
              {"下流流速", lblVelocity, "m/s"},
              {"騒音", lblNoise, "dB(A)"},
              {Cell(lbl注意).Over(3)},
          }),
          forms::Stretched(forms::Table({{Cell::OneOf({&pic特性, &lstFL, &lstFd, &lstN係数})}})),
      }));
}

}  // namespace sheets
