#pragma once

#include <optional>

#include "flow/element.h"
#include "forms/controls.h"
#include "forms/draw_surface.h"

namespace sheets {

/// What a section through an element in its pipe shows, in mm. 0 stands for what is not known yet.
struct ElementSection {
  enum class Shape {
    kConcentricPlate,
    kQuarterCirclePlate,
    kIsaNozzle,
    kLongRadiusNozzle,
    kVenturiTube,
    kVenturiNozzle,
    kRestrictionPlate,
  };

  Shape shape = Shape::kConcentricPlate;
  double pipeBore = 0;   // D
  double bore = 0;       // d
  double thickness = 0;  // of a restriction plate
  double radius = 0;     // of the inlet edge of a quarter circle plate
  // Pressure taps with a known place, from the upstream face of the plate, or downstream from its
  // downstream face.
  std::optional<double> upstreamTap;
  std::optional<double> downstreamTap;
  bool downstreamFromUpstreamFace = false;
};

/// Shape in which an element is drawn; orifice plates of all taps have one.
ElementSection::Shape ShapeOf(flow::ElementType type);

/// Draws the section on width by height twips (at least 6000 by 1500): pipe, element and taps to
/// scale, the numbers on dimension lines. The pipe wall has no thickness to tell and is drawn in a
/// fixed share. What the sheet does not know has the proportions of the standards (plates 0.03 D
/// thick with a bevelled edge of 0.01 D; nozzles by ISO 5167-3, figures 1, 2 and 4; venturi tubes
/// with a convergent of 21 and a divergent of 15 degrees, ISO 5167-4), and so have taps without a
/// number. Before there is a bore, with one that the pipe cannot hold, or with a plate thicker than
/// 10 D, it shows the pipe and says what is missing.
void DrawElementSection(const ElementSection& section, forms::DrawSurface& surface, double width,
                        double height);
/// The same on a picture's own size.
inline void DrawElementSection(const ElementSection& section, forms::DrawSurface& surface,
                               const forms::Picture& picture) {
  DrawElementSection(section, surface, picture.Width(), picture.Height());
}

}  // namespace sheets
