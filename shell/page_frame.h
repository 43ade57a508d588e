#pragma once

#include <string>

#include "shell/print_surface.h"

namespace shell {

struct Workspace;

/// Where things stand on a page, twips. charHeight is that of the body's letters on paper.
struct PageGeometry {
  double charHeight = FixedTextHeight(kBodySize);
  double left = 20 * kTwipsPerMm;
  double right = left + 173 * kTwipsPerMm;
  double top = 2 * charHeight + 2 * kTwipsPerMm;
  double bottom = top + 270 * kTwipsPerMm;
  double headingBottom = top + 4.5 * charHeight;
  double footTop = bottom - 3 * charHeight;
  double dateLeft = 160 * kTwipsPerMm;
  /// Where a sheet's own part begins.
  double bodyX = 25 * kTwipsPerMm;
  double bodyY = 5 * kTwipsPerMm + 3 * charHeight;
};

/// The frame of a calculation sheet with date and issuer. tagNumber stands above the frame, "" for
/// none. Leaves the font of the body.
void PrintPageFrame(const Workspace& workspace, const std::string& tagNumber, PrintSurface& target);

}  // namespace shell
