#pragma once

#include "forms/draw_surface.h"
#include "piping/terminal_shape.h"

namespace sheets {

/// Size of a picture of a pipe's end, twips.
inline constexpr double kPipeEndWidth = 2300;
inline constexpr double kPipeEndHeight = 1500;

/// Draws an inlet of that type with a common ratio, the flow from the left to the right.
void DrawInletType(forms::DrawSurface& surface, int type);

/// Draws the inlet that a line is calculated with: that of its type where the bore becomes smaller,
/// a diffuser or sudden step by its angle where it becomes wider, else a straight pipe. Ratios are
/// drawn no further than the picture has room.
void DrawInlet(forms::DrawSurface& surface, int type, const piping::Terminal& inlet);

/// The same for the outlet.
void DrawOutlet(forms::DrawSurface& surface, const piping::Terminal& outlet);

}  // namespace sheets
