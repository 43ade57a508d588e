#include "sheets/frm_edit_cv_spec.h"

#include "common/text.h"
#include "sheets/valve_targets.h"
#include "shell/data_file.h"
#include "shell/instrument_file.h"

namespace sheets {

namespace {

using valve::ValveCatalogue;

/// Refuses what the file cannot hold, with the maker that has it.
void CheckStorable(const ValveCatalogue& catalogue) {
  for (std::size_t maker = 0; maker < ValveCatalogue::kMakers; ++maker) {
    const std::string owner = "メーカー「" + catalogue.valveMaker[maker] + "」";
    shell::CheckStorable(owner, catalogue.valveMaker[maker]);
    for (std::size_t model = 0; model < ValveCatalogue::kModels; ++model) {
      const std::string place = owner + "の型式「" + catalogue.valveModel[maker][model] + "」";
      for (const auto* table : {&catalogue.valveModel, &catalogue.valveFL, &catalogue.valveFd,
                                &catalogue.valveN, &catalogue.valveRange, &catalogue.valveChar}) {
        shell::CheckStorable(place, (*table)[maker][model]);
      }
      for (const auto* table : {&catalogue.valveSize, &catalogue.valveCv}) {
        for (const std::string& text : (*table)[maker][model]) shell::CheckStorable(place, text);
      }
    }
  }
}

}  // namespace

frmEditCVspec::frmEditCVspec(shell::Workspace& workspace)
    : Sheet(workspace, kKind, "調節弁カタログデータベース") {
  for (int i = 0; i < optMaker.Count(); ++i) {
    optMaker[i].onClick = [this, i] { optMaker_Click(i); };
  }
  for (int i = 0; i < optModel.Count(); ++i) {
    optModel[i].onClick = [this, i] { optModel_Click(i); };
  }
  Edits(txtMaker, [this]() -> std::string& { return Catalogue().valveMaker[maker_]; });
  Edits(txtModel, [this]() -> std::string& { return Catalogue().valveModel[maker_][model_]; });
  Edits(txtFL, [this]() -> std::string& { return Catalogue().valveFL[maker_][model_]; });
  Edits(txt弁Fd, [this]() -> std::string& { return Catalogue().valveFd[maker_][model_]; });
  Edits(txtOrificeFactor, [this]() -> std::string& { return Catalogue().valveN[maker_][model_]; });
  Edits(txtRangeability,
        [this]() -> std::string& { return Catalogue().valveRange[maker_][model_]; });
  cboCharact.onClick = [this] {
    ChangeCell(Catalogue().valveChar[maker_][model_], std::to_string(cboCharact.Index()));
  };
  HandleTrims();
  cmdDeleteMaker.onClick = [this] { cmdDeleteMaker_Click(); };
  cmdDeleteModel.onClick = [this] { cmdDeleteModel_Click(); };
  cmdDataSave.onClick = [this] { Save(); };
  DeclareLayout();
}

void frmEditCVspec::HandleTrims() {
  for (int row = 0; row < kShownTrims; ++row) {
    Edits(txt内弁Size[row], [this, row]() -> std::string& {
      return Catalogue().valveSize[maker_][model_][TrimIn(row)];
    });
    Edits(txt弁Cv[row], [this, row]() -> std::string& {
      return Catalogue().valveCv[maker_][model_][TrimIn(row)];
    });
    txt内弁Size[row].onArrow = [this, row](forms::Arrow arrow) {
      return MoveTrims(arrow, txt内弁Size, row);
    };
    txt弁Cv[row].onArrow = [this, row](forms::Arrow arrow) {
      return MoveTrims(arrow, txt弁Cv, row);
    };
  }
  // Entering a list of trims goes on behind the last line that shows.
  txt弁Cv[kShownTrims - 1].onEnter = [this] {
    if (VScroll1.Value() == VScroll1.Maximum()) {
      FocusNext(txt弁Cv[kShownTrims - 1]);
    } else {
      VScroll1.SetValue(VScroll1.Value() + 1);
      SetFocus(txt内弁Size[kShownTrims - 1]);
    }
  };
  VScroll1.SetLargeChange(kShownTrims);
  VScroll1.onChange = [this] { ShowTrims(); };
}

std::size_t frmEditCVspec::TrimIn(int row) const {
  const int trim = VScroll1.Value() + row;
  return static_cast<std::size_t>(trim);
}

template <class CellOf>
void frmEditCVspec::Edits(forms::TextBox& box, CellOf cellOf) {
  box.onChange = [this, &box, cellOf] { ChangeCell(cellOf(), box.Text()); };
}

/// Names are compared by text with those of saved tags, so they take the form of a file at once.
void frmEditCVspec::ChangeCell(std::string& cell, const std::string& text) {
  const std::string stored = common::CodePageForm(text);
  if (cell == stored) return;
  cell = stored;
  Changed();
}

void frmEditCVspec::Changed() {
  Space().valvesModified = true;
  ShowModified();
  ShowModelNames();
  for (forms::Form* form : Space().forms.Open()) {
    if (auto* const user = dynamic_cast<CatalogueUser*>(form)) user->CatalogueChanged();
  }
}

void frmEditCVspec::Load() {
  cboCharact.SetItems({valve::kCharacteristics.begin(), valve::kCharacteristics.end()});
  optMaker[0].Choose();
  ShowModified();
}

void frmEditCVspec::optMaker_Click(int maker) {
  maker_ = static_cast<std::size_t>(maker);
  model_ = 0;
  ShowModelNames();
  optModel[0].Choose();
}

void frmEditCVspec::optModel_Click(int model) {
  model_ = static_cast<std::size_t>(model);
  ShowModel();
}

void frmEditCVspec::ShowModelNames() {
  for (int i = 0; i < optMaker.Count(); ++i) {
    optMaker[i].SetText(Catalogue().valveMaker[static_cast<std::size_t>(i)]);
  }
  for (int i = 0; i < optModel.Count(); ++i) {
    optModel[i].SetText(Catalogue().valveModel[maker_][static_cast<std::size_t>(i)]);
  }
}

void frmEditCVspec::ShowModel() {
  const Quiet quiet(*this);
  const ValveCatalogue& catalogue = Catalogue();
  txtMaker.SetText(catalogue.valveMaker[maker_]);
  txtModel.SetText(catalogue.valveModel[maker_][model_]);
  txtFL.SetText(catalogue.valveFL[maker_][model_]);
  txt弁Fd.SetText(catalogue.valveFd[maker_][model_]);
  txtOrificeFactor.SetText(catalogue.valveN[maker_][model_]);
  txtRangeability.SetText(catalogue.valveRange[maker_][model_]);
  cboCharact.SetIndex(valve::CharacteristicIndex(catalogue.valveChar[maker_][model_]));
  VScroll1.SetValue(0);
  ShowTrims();
}

void frmEditCVspec::ShowTrims() {
  const Quiet quiet(*this);
  for (int row = 0; row < kShownTrims; ++row) {
    const std::size_t trim = TrimIn(row);
    lblRow[row].SetText(std::to_string(trim + 1));
    txt内弁Size[row].SetText(Catalogue().valveSize[maker_][model_][trim]);
    txt弁Cv[row].SetText(Catalogue().valveCv[maker_][model_][trim]);
  }
}

void frmEditCVspec::ShowModified() {
  lbl変更.SetText(Space().valvesModified ? "保存していない変更があります。" : "");
}

/// The grid moves under the cursor; at its ends the cursor goes the rest of the way.
bool frmEditCVspec::MoveTrims(forms::Arrow arrow, forms::ControlArray<forms::TextBox>& column,
                              int row) {
  if (arrow != forms::Arrow::kUp && arrow != forms::Arrow::kDown) return false;
  const int step = arrow == forms::Arrow::kDown ? 1 : -1;
  const int before = VScroll1.Value();
  VScroll1.SetValue(before + step);
  const int next = row + step;
  if (VScroll1.Value() == before && next >= 0 && next < column.Count()) SetFocus(column[next]);
  return true;
}

void frmEditCVspec::EmptyModel(std::size_t model) {
  ValveCatalogue& catalogue = Catalogue();
  for (auto* table : {&catalogue.valveModel, &catalogue.valveFL, &catalogue.valveFd,
                      &catalogue.valveN, &catalogue.valveRange}) {
    (*table)[maker_][model].clear();
  }
  catalogue.valveChar[maker_][model] = "-1";
  catalogue.valveSize[maker_][model].fill({});
  catalogue.valveCv[maker_][model].fill({});
}

void frmEditCVspec::cmdDeleteMaker_Click() {
  if (!User().Ask("【 " + txtMaker.Text() + " 】を削除してもいいですか")) return;
  Catalogue().valveMaker[maker_].clear();
  for (std::size_t model = 0; model < ValveCatalogue::kModels; ++model) EmptyModel(model);
  Changed();
  optModel[0].Choose();
}

void frmEditCVspec::cmdDeleteModel_Click() {
  if (!User().Ask("【 " + txtModel.Text() + " 】を削除してもいいですか")) return;
  EmptyModel(model_);
  Changed();
  ShowModel();
}

void frmEditCVspec::Save() {
  if (!Space().valvesModified) return;
  shell::SaveDataFile(Space(), "ValveSpec.dat", Space().valvesModified, [this] {
    CheckStorable(Catalogue());
    return valve::WriteValveCatalogue(Catalogue());
  });
  ShowModified();
}

void frmEditCVspec::Unload() {
  if (Space().valvesModified && User().Ask("弁カタログデータが変更されています。保存します")) {
    Save();
  }
  Sheet::Unload();
}

void frmEditCVspec::DeclareLayout() {
  // An empty slot is still told apart by its number.
  constexpr const char* kSlots[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
  forms::Line makers;
  for (int i = 0; i < optMaker.Count(); ++i) {
    makers.emplace_back(kSlots[i]);
    makers.emplace_back(optMaker[i]);
  }
  std::vector<forms::Line> models;
  models.reserve(std::size(kSlots));
  for (int i = 0; i < optModel.Count(); ++i) {
    models.push_back({kSlots[i], optModel[i]});
  }
  std::vector<forms::Line> trims = {{{}, lbl内弁Size, lbl弁Cv}};
  for (int row = 0; row < kShownTrims; ++row) {
    trims.push_back({lblRow[row], txt内弁Size[row], txt弁Cv[row]});
  }
  SetLayout(forms::Column({
      forms::Group("メーカー", forms::Table({makers})),
      forms::Stretched(forms::Row({
          forms::Stretched(forms::Group("型式", forms::Table(std::move(models)))),
          forms::Stretched(forms::Group("仕様", forms::Table({
                                                    {lblMaker, txtMaker},
                                                    {lblModel, txtModel},
                                                    {lblFL, txtFL},
                                                    {lbl弁Fd, txt弁Fd},
                                                    {lblOrificeFactor, txtOrificeFactor},
                                                    {lblRangeability, txtRangeability},
                                                    {lblCharact, cboCharact},
                                                }))),
          forms::Stretched(forms::Group(
              "内弁", forms::Column({forms::Row({forms::Stretched(forms::Table(std::move(trims))),
                                                 forms::Table({{VScroll1}})})}))),
      })),
      forms::Buttons({cmdDeleteMaker, cmdDeleteModel, {}, lbl変更, cmdDataSave}),
  }));
}

}  // namespace sheets
