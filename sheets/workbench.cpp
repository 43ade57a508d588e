#include "sheets/workbench.h"

#include <memory>

#include "sheets/duct_dialogues.h"
#include "sheets/frm_cable.h"
#include "sheets/frm_cv.h"
#include "sheets/frm_cv_correction.h"
#include "sheets/frm_cv_set.h"
#include "sheets/frm_duct_list.h"
#include "sheets/frm_edit_cv_spec.h"
#include "sheets/frm_edit_prop_data.h"
#include "sheets/frm_fluid_names.h"
#include "sheets/frm_integral.h"
#include "sheets/frm_material.h"
#include "sheets/frm_move.h"
#include "sheets/frm_orifice.h"
#include "sheets/frm_pipe_dia.h"
#include "sheets/frm_pipe_weight.h"
#include "sheets/frm_press_loss.h"
#include "sheets/frm_preview.h"
#include "sheets/frm_print_all.h"
#include "sheets/frm_properties.h"
#include "sheets/frm_rating.h"
#include "sheets/frm_recalculate.h"
#include "sheets/frm_ro.h"
#include "sheets/frm_tag_list.h"
#include "sheets/frm_te.h"
#include "sheets/frm_tw.h"
#include "sheets/frm_unit_converter.h"
#include "sheets/frm_unit_edit.h"
#include "sheets/frm_vortex.h"
#include "sheets/frm_zepha2excel.h"
#include "sheets/hints.h"
#include "sheets/pressure_loss_dialogues.h"
#include "sheets/small_dialogues.h"
#include "sheets/thermowell_dialogues.h"
#include "shell/lifecycle.h"
#include "shell/main_menu.h"

namespace sheets {

namespace {

/// Makes a form known; whenever it is created it is given its hints.
template <class FormType>
void Provide(shell::Workspace& space, const char* name) {
  space.forms.Provide(name, [&space] {
    auto form = std::make_unique<FormType>(space);
    GiveHints(*form);
    return form;
  });
}

/// Makes forms known that tell their names; those of most sheets stand in the sheet registry alone.
template <class... FormTypes>
void ProvideNamed(shell::Workspace& space) {
  (Provide<FormTypes>(space, FormTypes::kName), ...);
}

}  // namespace

Workbench::Workbench(forms::Presenter& presenter, std::string installDir,
                     shell::SettingsStore& settings, shell::Platform* platform)
    : workspace_(presenter, settings, platform) {
  workspace_.installDir = std::move(installDir);
  ProvideForms();
  shell::BuildMainMenu(workspace_);
}

void Workbench::ProvideForms() {
  Provide<frmOrifice>(workspace_, "frmOrifice");
  Provide<frmPressLoss>(workspace_, "frmPressLoss");
  Provide<frmIntegral>(workspace_, "frmIntegral");
  Provide<frmRO>(workspace_, "frmRO");
  Provide<frmVortex>(workspace_, "frmVortex");
  Provide<frmCV>(workspace_, "frmCV");
  Provide<frmTW>(workspace_, "frmTW");
  Provide<frmTE>(workspace_, "frmTE");
  Provide<frmEditCVspec>(workspace_, "frmEditCVspec");
  Provide<frmMaterial>(workspace_, "frmMaterial");
  Provide<frmEditPropData>(workspace_, "frmEditPropData");
  Provide<frm物性>(workspace_, "frm物性");
  ProvideNamed<frmCable, frmDataInput, frmSetDuctSize, frmDuctDraw, frmDuctList, frmRoughness,
               frmInletType, frmCvSet, frm形状係数, frmTW判定条件, frm振動数判定, frm流体名表示,
               frmPipeDia, frmRating, frm本山微少弁, frm山武微少弁, frmCv計算補正, frmCv補正データ,
               frm単位換算, frmUnitEdit, frmMove, frmPipeWeight, frmPreview, frm一括印刷,
               frm全タグ再計算, frmZepha2Excel, frmTagList, frmRegCompany, frmUserProgram,
               frmAbout>(workspace_);
}

void Workbench::Load() {
  workspace_.tables = shell::LoadTables(workspace_.installDir);
  loaded_ = true;
}

void Workbench::Start(const std::string& file) {
  if (!loaded_) Load();
  if (!workspace_.dataNote.empty()) {
    workspace_.Shown().Show(workspace_.dataNote, {}, common::Icon::kWarning);
  }
  TellUnreadFiles();
  shell::RestoreLastRun(workspace_, file);
}

void Workbench::TellUnreadFiles() {
  if (workspace_.tables.unread.empty()) return;
  std::string names;
  for (const std::string& name : workspace_.tables.unread) names += "\n　" + name;
  workspace_.Shown().Show(
      "次のデータファイルを読み込めませんでした。" + names + "\nこれらを使う計算はできません。", {},
      common::Icon::kWarning);
}

}  // namespace sheets
