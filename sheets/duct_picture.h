#pragma once

#include <optional>
#include <vector>

#include "ducts/cable_pile.h"
#include "ducts/duct_sizing.h"
#include "forms/draw_surface.h"

namespace sheets {

/// A duct with its cables, drawn to scale, with the fill as a bar beside it.
class DuctPicture {
 public:
  /// What is drawn from now on. A section that cannot be made is not drawn.
  void Set(const ducts::DuctSection& section, const std::vector<ducts::CableRun>& cables,
           const std::optional<ducts::Real>& fill);

  /// Draws on a surface of that size, twips. dimensions: with the sizes written at the edges.
  void Draw(forms::DrawSurface& surface, double width, double height, bool dimensions) const;

 private:
  bool CanBeMade() const;

  ducts::DuctSection section_;
  std::optional<ducts::Real> fill_;
  ducts::CablePile pile_;
};

}  // namespace sheets
