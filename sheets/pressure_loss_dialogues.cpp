#include "sheets/pressure_loss_dialogues.h"

#include <cmath>

#include "piping/terminal_shape.h"
#include "sheets/frm_press_loss.h"

namespace sheets {

namespace {

/// Commercial steel, whose roughness the sheet starts with.
constexpr int kStartPipe = 1;

frmPressLoss* LossSheet(const shell::Workspace& workspace) {
  return dynamic_cast<frmPressLoss*>(workspace.forms.ActiveSheet());
}

constexpr const char* kTypeNames[frmInletType::kTypes] = {"Type 0　ストレート", "Type 1　角端",
                                                          "Type 2　丸み付き", "Type 3　突出し",
                                                          "Type 4　レデューサー"};

// The pictures: a pipe from the left to the right about its axis, twips.
constexpr double kAxis = 750;
constexpr double kHalf = 260;  // of the pipe's bore
constexpr double kLeft = 150, kRight = 2150;
constexpr double kWallLeft = 700, kWallRight = 760;
constexpr double kWallTop = 120, kWallFoot = 1380;

void DrawArrow(forms::DrawSurface& surface) {
  constexpr double kTip = 1750, kBarb = 70;
  surface.SetColor(forms::kBlue);
  surface.SetLineWidth(1);
  surface.Line(kLeft + 150, kAxis, kTip, kAxis);
  surface.FilledPolygon({{kTip + 2 * kBarb, kAxis}, {kTip, kAxis - kBarb}, {kTip, kAxis + kBarb}});
}

/// Both walls of a pipe of that half bore.
void DrawPipe(forms::DrawSurface& surface, double from, double to, double half) {
  surface.Line(from, kAxis - half, to, kAxis - half);
  surface.Line(from, kAxis + half, to, kAxis + half);
}

/// The wall of a vessel with an opening of that half height.
void DrawWall(forms::DrawSurface& surface, double half) {
  surface.FilledRectangle(kWallLeft, kWallTop, kWallRight, kAxis - half);
  surface.FilledRectangle(kWallLeft, kAxis + half, kWallRight, kWallFoot);
}

void DrawRoundedInlet(forms::DrawSurface& surface) {
  constexpr double kRadius = 260;
  constexpr int kParts = 12;
  for (const int side : {-1, 1}) {
    std::vector<std::pair<double, double>> bell;
    for (int i = 0; i <= kParts; ++i) {
      const double t = std::acos(0.0) * i / kParts;
      bell.emplace_back(kWallLeft + kRadius * (1 - std::cos(t)),
                        kAxis + side * (kHalf + kRadius * (1 - std::sin(t))));
    }
    surface.Polyline(bell);
  }
  DrawWall(surface, kHalf + kRadius);
  DrawPipe(surface, kWallLeft + kRadius, kRight, kHalf);
}

void DrawCone(forms::DrawSurface& surface) {
  constexpr double kWide = 460, kFrom = 750, kTo = 1350;
  DrawPipe(surface, kLeft, kFrom, kWide);
  DrawPipe(surface, kTo, kRight, kHalf);
  for (const int side : {-1, 1}) {
    surface.Line(kFrom, kAxis + side * kWide, kTo, kAxis + side * kHalf);
  }
  surface.SetLineWidth(0.5);
  surface.DashedLine(kTo, kAxis - kHalf, kTo, kAxis + kHalf);
  surface.DashedLine(kFrom, kAxis - kWide, kFrom, kAxis + kWide);
  surface.Text(kLeft + 60, kAxis - kWide + 60, "d1");
  surface.Text(kRight - 300, kAxis - kHalf + 60, "d2");
}

void DrawInlet(int type, forms::DrawSurface& surface) {
  surface.SetColor(forms::kBlack);
  surface.SetLineWidth(2);
  switch (type) {
    case piping::kSharpEdgedInlet:
      DrawWall(surface, kHalf);
      DrawPipe(surface, kWallRight, kRight, kHalf);
      break;
    case piping::kRoundedInlet:
      DrawRoundedInlet(surface);
      break;
    case piping::kProjectingInlet:
      DrawWall(surface, kHalf);
      DrawPipe(surface, kWallLeft - 350, kRight, kHalf);
      break;
    case piping::kConicalInlet:
      DrawCone(surface);
      break;
    default:
      DrawPipe(surface, kLeft, kRight, kHalf);
  }
  DrawArrow(surface);
}

}  // namespace

frmRoughness::frmRoughness(shell::Workspace& workspace)
    : Form(kName, "管内粗さ", forms::FormRole::kDialog), workspace_(workspace) {
  lstRoughness.onClick = [this] { lblRoughness.SetText(Selected()); };
  lstRoughness.onDblClick = [this] { cmdRoughness_Click(); };
  lstRoughness.onEnter = lstRoughness.onDblClick;
  cmdRoughness.onClick = lstRoughness.onDblClick;
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lbl配管種類}, {lstRoughness}})),
      forms::Table({{lbl管内粗さ, lblRoughness, "mm"}}),
      forms::Buttons({{}, cmdRoughness, cmdCancel}),
  }));
}

void frmRoughness::Load() {
  std::vector<std::string> names;
  for (const auto& pipe : workspace_.tables.pressLoss.pipeRoughnessTable) {
    names.push_back(pipe.name);
  }
  lstRoughness.SetItems(std::move(names));
  lstRoughness.SetIndex(kStartPipe);
}

std::string frmRoughness::Selected() const {
  if (lstRoughness.Index() < 0) return {};
  return common::At(workspace_.tables.pressLoss.pipeRoughnessTable, lstRoughness.Index()).value;
}

void frmRoughness::cmdRoughness_Click() {
  frmPressLoss* const sheet = LossSheet(workspace_);
  if (sheet != nullptr && lstRoughness.Index() >= 0) sheet->TakeRoughness(Selected());
  workspace_.forms.Unload(*this);
}

frmInletType::frmInletType(shell::Workspace& workspace)
    : Form(kName, "流入部配管形状", forms::FormRole::kDialog), workspace_(workspace) {
  forms::Line pictures;
  forms::Line buttons;
  for (int type = 0; type < kTypes; ++type) {
    picInlet[type].onPaint = [type](forms::DrawSurface& surface) { DrawInlet(type, surface); };
    picInlet[type].onClick = [this, type] { Choose(type); };
    picInlet[type].SetToolTip("クリックでこの形状を選びます。");
    cmdInlet[type].SetText(kTypeNames[type]);
    cmdInlet[type].onClick = picInlet[type].onClick;
    pictures.emplace_back(picInlet[type]);
    buttons.emplace_back(cmdInlet[type]);
  }
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({std::move(pictures), std::move(buttons)})),
      forms::Buttons({{}, cmdCancel}),
  }));
}

void frmInletType::Choose(int type) {
  if (frmPressLoss* const sheet = LossSheet(workspace_)) sheet->TakeInletType(type);
  workspace_.forms.Unload(*this);
}

}  // namespace sheets
