#include "sheets/small_dialogues.h"

#include "shell/instrument_file.h"
#include "shell/lifecycle.h"

namespace sheets {

namespace {

/// An orifice plate in its pipe, with the contracting jet.
void DrawLogo(forms::DrawSurface& surface) {
  surface.SetColor(forms::kBlack);
  surface.SetLineWidth(2);
  surface.Line(100, 200, 2300, 200);
  surface.Line(100, 1000, 2300, 1000);
  surface.FilledRectangle(1000, 200, 1080, 450);
  surface.FilledRectangle(1000, 750, 1080, 1000);
  surface.SetColor(forms::kBlue);
  surface.SetLineWidth(1);
  surface.Polyline({{150, 320}, {700, 320}, {1040, 480}, {1500, 520}, {2250, 360}});
  surface.Polyline({{150, 880}, {700, 880}, {1040, 720}, {1500, 680}, {2250, 840}});
  surface.DashedLine(150, 600, 2250, 600);
}

}  // namespace

frmRegCompany::frmRegCompany(shell::Workspace& workspace)
    : Form(kName, "発行者名の編集", forms::FormRole::kDialog), workspace_(workspace) {
  cmdOK.onClick = [this] { cmdOK_Click(); };
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{lblCompany, forms::Cell(txtCompany).Wide(40)}}),
      forms::Buttons({{}, cmdOK, cmdCancel}),
  }));
}

void frmRegCompany::Load() { txtCompany.SetText(workspace_.issuerName); }

void frmRegCompany::cmdOK_Click() {
  workspace_.issuerName = txtCompany.Text();
  workspace_.settings.Set("User", "Company", workspace_.issuerName);
  workspace_.forms.Unload(*this);
}

frmUserProgram::frmUserProgram(shell::Workspace& workspace)
    : Form(kName, "ユーザープログラム登録", forms::FormRole::kDialog), workspace_(workspace) {
  constexpr const char* kCaptions[kPrograms] = {"プログラム １", "プログラム ２", "プログラム ３"};
  cmd登録.onClick = [this] { cmd登録_Click(); };
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  std::vector<forms::Line> lines = {{"", lblTitle, lblCommand}};
  for (int i = 0; i < kPrograms; ++i) {
    lblProgram[i].SetText(kCaptions[i]);
    lines.push_back({lblProgram[i], forms::Cell(txtUserProTitle[i]).Wide(20),
                     forms::Cell(txtUser[i]).Wide(50)});
  }
  SetLayout(forms::Column({
      forms::Table(std::move(lines)),
      forms::Buttons({{}, cmd登録, cmdCancel}),
  }));
}

void frmUserProgram::Load() {
  for (int i = 0; i < kPrograms; ++i) {
    const shell::UserProgram& program = common::At(workspace_.userPrograms, i);
    txtUserProTitle[i].SetText(program.caption);
    txtUser[i].SetText(program.command);
  }
}

void frmUserProgram::cmd登録_Click() {
  shell::UserPrograms programs;
  for (int i = 0; i < kPrograms; ++i) {
    common::At(programs, i) = {txtUserProTitle[i].Text(), txtUser[i].Text()};
  }
  shell::WriteUserPrograms(workspace_.installDir, programs);
  workspace_.userPrograms = programs;
  shell::ShowUserPrograms(workspace_);
  workspace_.forms.Unload(*this);
}

frmAbout::frmAbout(shell::Workspace& workspace)
    : Form(kName, "ﾊﾞｰｼﾞｮﾝ情報", forms::FormRole::kDialog) {
  lblVersion.SetText(std::string("Ver.") + shell::kProgramVersion);
  picLogo.onPaint = DrawLogo;
  // The tool that this button starts elsewhere does not exist here.
  cmdSysInfo.onClick = [&workspace] {
    workspace.Shown().Show("現時点ではｼｽﾃﾑ情報を使用できません");
  };
  cmdOK.onClick = [this, &workspace] { workspace.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{picLogo}, {lblTitle}, {lblVersion}}),
      forms::Buttons({cmdSysInfo, {}, cmdOK}),
  }));
}

}  // namespace sheets
