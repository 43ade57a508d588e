#include "sheets/pipe_ends.h"

#include <algorithm>
#include <cmath>

namespace sheets {

namespace {

// A pipe from the left to the right about its axis, twips.
constexpr double kAxis = 750;
constexpr double kHalf = 260;  // of the pipe's bore
constexpr double kLeft = 150, kRight = 2150;
constexpr double kWallLeft = 700, kWallRight = 760;
constexpr double kWallTop = 120, kWallFoot = 1380;

void Begin(forms::DrawSurface& surface) {
  surface.SetColor(forms::kBlack);
  surface.SetLineWidth(2);
}

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

/// A change of bore, sudden or by a cone. bores: the names of both.
void DrawChange(forms::DrawSurface& surface, double halfBefore, double halfBehind, bool sudden,
                std::pair<const char*, const char*> bores) {
  constexpr double kMiddle = 1050, kHalfCone = 300;
  const double from = sudden ? kMiddle : kMiddle - kHalfCone;
  const double to = sudden ? kMiddle : kMiddle + kHalfCone;
  DrawPipe(surface, kLeft, from, halfBefore);
  DrawPipe(surface, to, kRight, halfBehind);
  for (const int side : {-1, 1}) {
    surface.Line(from, kAxis + side * halfBefore, to, kAxis + side * halfBehind);
  }
  // Above the pipe where it leaves no room within.
  const auto write = [&surface](double x, double half, const char* name) {
    constexpr double kRoom = 40;
    const double height = surface.TextHeight();
    const bool within = half > height + 2 * kRoom;
    surface.Text(x, kAxis - half + (within ? kRoom : -kRoom - height), name);
  };
  write(kLeft + 60, halfBefore, bores.first);
  write(kRight - 250, halfBehind, bores.second);
}

/// Half bores of a change from 1 to ratio: the wider one fills the picture.
std::pair<double, double> HalfBores(double ratio) {
  constexpr double kWide = 560, kNarrow = 90;
  const double narrow = std::max(kWide * std::min(ratio, 1 / ratio), kNarrow);
  return ratio < 1 ? std::pair(kWide, narrow) : std::pair(narrow, kWide);
}

void DrawTerminal(forms::DrawSurface& surface, const piping::Terminal& terminal,
                  std::pair<const char*, const char*> bores) {
  constexpr double kSudden = 120;  // deg; from here on a cone is rated as a step
  const double ratio = terminal.ratio;
  Begin(surface);
  if (ratio <= 0 || ratio == 1) {
    DrawPipe(surface, kLeft, kRight, kHalf);
  } else {
    const auto [before, behind] = HalfBores(ratio);
    DrawChange(surface, before, behind, terminal.angle >= kSudden, bores);
  }
  DrawArrow(surface);
}

}  // namespace

void DrawInletType(forms::DrawSurface& surface, int type) {
  Begin(surface);
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
      DrawChange(surface, 460, kHalf, false, {"d1", "d2"});
      break;
    default:
      DrawPipe(surface, kLeft, kRight, kHalf);
  }
  DrawArrow(surface);
}

void DrawInlet(forms::DrawSurface& surface, int type, const piping::Terminal& inlet) {
  const bool byType = type >= piping::kSharpEdgedInlet && type <= piping::kProjectingInlet;
  if (byType && inlet.ratio <= 1) {
    DrawInletType(surface, type);
  } else {
    DrawTerminal(surface, inlet, {"d1", "d2"});
  }
}

void DrawOutlet(forms::DrawSurface& surface, const piping::Terminal& outlet) {
  DrawTerminal(surface, outlet, {"d2", "d3"});
}

}  // namespace sheets
