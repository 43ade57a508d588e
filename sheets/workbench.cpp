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

Workbench::Workbench(forms::Presenter& presenter, std::string installDir,
                     shell::SettingsStore& settings, shell::Platform* platform)
    : workspace_(presenter, settings, platform) {
  workspace_.installDir = std::move(installDir);
  ProvideForms();
  shell::BuildMainMenu(workspace_);
}

void Workbench::ProvideForms() {
  shell::Workspace& space = workspace_;
  const auto provide = [&space]<class FormType>(const char* name, std::type_identity<FormType>) {
    space.forms.Provide(name, [&space] {
      auto form = std::make_unique<FormType>(space);
      GiveHints(*form);
      return form;
    });
  };
  provide("frmOrifice", std::type_identity<frmOrifice>());
  provide(frmCable::kName, std::type_identity<frmCable>());
  provide(frmDataInput::kName, std::type_identity<frmDataInput>());
  provide(frmSetDuctSize::kName, std::type_identity<frmSetDuctSize>());
  provide(frmDuctDraw::kName, std::type_identity<frmDuctDraw>());
  provide(frmDuctList::kName, std::type_identity<frmDuctList>());
  provide("frmPressLoss", std::type_identity<frmPressLoss>());
  provide(frmRoughness::kName, std::type_identity<frmRoughness>());
  provide(frmInletType::kName, std::type_identity<frmInletType>());
  provide("frmIntegral", std::type_identity<frmIntegral>());
  provide("frmRO", std::type_identity<frmRO>());
  provide("frmVortex", std::type_identity<frmVortex>());
  provide("frmCV", std::type_identity<frmCV>());
  provide(frmCvSet::kName, std::type_identity<frmCvSet>());
  provide("frmTW", std::type_identity<frmTW>());
  provide(frm形状係数::kName, std::type_identity<frm形状係数>());
  provide(frmTW判定条件::kName, std::type_identity<frmTW判定条件>());
  provide(frm振動数判定::kName, std::type_identity<frm振動数判定>());
  provide("frmTE", std::type_identity<frmTE>());
  provide(frm流体名表示::kName, std::type_identity<frm流体名表示>());
  provide(frmPipeDia::kName, std::type_identity<frmPipeDia>());
  provide(frmRating::kName, std::type_identity<frmRating>());
  provide(frm本山微少弁::kName, std::type_identity<frm本山微少弁>());
  provide(frm山武微少弁::kName, std::type_identity<frm山武微少弁>());
  provide(frmCv計算補正::kName, std::type_identity<frmCv計算補正>());
  provide(frmCv補正データ::kName, std::type_identity<frmCv補正データ>());
  provide("frmEditCVspec", std::type_identity<frmEditCVspec>());
  provide("frmMaterial", std::type_identity<frmMaterial>());
  provide(frm単位換算::kName, std::type_identity<frm単位換算>());
  provide(frmUnitEdit::kName, std::type_identity<frmUnitEdit>());
  provide(frmMove::kName, std::type_identity<frmMove>());
  provide("frmEditPropData", std::type_identity<frmEditPropData>());
  provide("frm物性", std::type_identity<frm物性>());
  provide(frmPipeWeight::kName, std::type_identity<frmPipeWeight>());
  provide(frmPreview::kName, std::type_identity<frmPreview>());
  provide(frm一括印刷::kName, std::type_identity<frm一括印刷>());
  provide(frm全タグ再計算::kName, std::type_identity<frm全タグ再計算>());
  provide(frmZepha2Excel::kName, std::type_identity<frmZepha2Excel>());
  provide(frmTagList::kName, std::type_identity<frmTagList>());
  provide(frmRegCompany::kName, std::type_identity<frmRegCompany>());
  provide(frmUserProgram::kName, std::type_identity<frmUserProgram>());
  provide(frmAbout::kName, std::type_identity<frmAbout>());
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
