#include "sheets/element_section.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "common/number.h"
#include "common/real.h"
#include "shell/print_surface.h"

namespace sheets {

namespace {

using Shape = ElementSection::Shape;
using Points = std::vector<std::pair<double, double>>;

constexpr double kLetterSize = 9;          // points
constexpr forms::Color kWall = 0xA8A8A8;   // pipe
constexpr forms::Color kMetal = 0x78640B;  // element
constexpr double kMargin = 60;             // twips
constexpr double kWallShare = 0.07;        // pipe wall, share of D
constexpr double kThinnest = 40;           // plate that can still be seen, twips
constexpr double kArrow = 75;              // twips
constexpr double kTapWidth = 70;           // twips
constexpr double kTextRoom = 1450;         // twips for a vertical dimension with its number
constexpr double kThickest = 10;           // plate in D; a longer one leaves no room for the pipe
/// Outside of the pipe wall, radius in D.
constexpr double kPipeOutside = 0.5 + kWallShare;
constexpr double kQuarter = std::numbers::pi / 2;

double Radians(double degrees) { return degrees * kQuarter / 90; }

std::string Number(double millimetres) {
  return common::NumberText(common::RoundDigits(millimetres, 2));
}

/// One half of an element above the axis: the inside as seen by the flow, the outside, and where
/// the narrowest bore is. Lengths in units of D, x from the upstream face or the first cone.
struct Outline {
  Points inside;   // x, radius
  Points outside;  // the way back
  double boreAt = 0;
  double end = 0;
  double tapUp = 0;  // standard places of taps without a number
  double tapDown = 0;
  bool tapInBore = false;
  bool hasTaps = true;
};

Outline Plate(double thickness, double beta) {
  Outline plate;
  plate.inside = {{0, beta / 2}, {thickness, beta / 2}};
  plate.outside = {{thickness, kPipeOutside}, {0, kPipeOutside}};  // held between the flanges
  plate.boreAt = thickness;
  plate.end = thickness;
  plate.tapDown = thickness;
  plate.hasTaps = false;
  return plate;
}

Outline ConcentricPlate(double beta) {
  constexpr double kThickness = 0.03;
  constexpr double kEdge = 0.01;
  Outline plate = Plate(kThickness, beta);
  const double bevel = std::min(kThickness - kEdge, (1 - beta) / 2);
  plate.inside = {{0, beta / 2}, {kEdge, beta / 2}, {kEdge + bevel, beta / 2 + bevel}};
  plate.inside.emplace_back(kThickness, beta / 2 + bevel);
  return plate;
}

/// Points of an arc of an ellipse from one angle to another.
void AddArc(Points& points, double x, double y, double radiusX, double radiusY, double from,
            double to) {
  constexpr int kSteps = 16;
  for (int i = 0; i <= kSteps; ++i) {
    const double angle = from + (to - from) * i / kSteps;
    points.emplace_back(x + radiusX * std::cos(angle), y + radiusY * std::sin(angle));
  }
}

/// The pipe ends a curve that begins beyond it.
void CutAtPipe(Points& points) {
  for (auto& [x, r] : points) r = std::min(r, 0.5);
}

Outline QuarterCirclePlate(double beta, double radius) {
  const double edge = std::min(radius, (1 - beta) / 2);
  Outline plate = Plate(std::max(0.03, edge), beta);
  plate.inside.clear();
  AddArc(plate.inside, edge, beta / 2 + edge, edge, edge, 2 * kQuarter, 3 * kQuarter);
  plate.inside.emplace_back(plate.end, beta / 2);
  return plate;
}

/// Inlet of ISA 1932 nozzles and venturi nozzles: arcs of 0.2 d and d/3 up to the throat.
Points IsaInlet(double d) {
  const double join = std::atan2(0.75 - 5.0 / 6, 0.2 - 0.3041);  // seen from the second centre
  Points points;
  AddArc(points, 0.2 * d, 0.75 * d, 0.2 * d, 0.2 * d, -2 * kQuarter, join);
  AddArc(points, 0.3041 * d, 5.0 / 6 * d, d / 3, d / 3, join, -kQuarter);
  CutAtPipe(points);
  return points;
}

Outline IsaNozzle(double beta) {
  constexpr double kFlange = 0.08;
  const double wall = std::min(0.05, (1 - beta) / 4);
  Outline nozzle;
  nozzle.inside = IsaInlet(beta);
  nozzle.end = 0.6041 * beta;
  nozzle.inside.emplace_back(nozzle.end, beta / 2);
  const double outer = beta / 2 + wall;
  nozzle.outside = {{nozzle.end, outer},
                    {std::max(0.28 * beta, kFlange), std::min(outer + 0.03, 0.5)},
                    {kFlange, 0.5},
                    {kFlange, kPipeOutside},
                    {0, kPipeOutside}};
  nozzle.boreAt = nozzle.end;
  nozzle.tapDown = kFlange;
  return nozzle;
}

/// The wall of the low ratio nozzle is a quarter of an ellipse of d by 2/3 d; the high ratio one,
/// for beta above 0.43 here, has D/2 by (D - d)/2.
Outline LongRadiusNozzle(double beta) {
  constexpr double kLowRatio = 0.43;
  constexpr double kFlange = 0.06;
  const double d = beta;
  const bool low = beta <= kLowRatio;
  const double length = low ? d : 0.5;
  const double height = low ? 2 * d / 3 : (1 - d) / 2;
  const double wall = std::min(0.04, (1 - d) / 4);
  Outline nozzle;
  AddArc(nozzle.inside, length, d / 2 + height, length, height, -2 * kQuarter, -kQuarter);
  CutAtPipe(nozzle.inside);
  nozzle.end = length + 0.6 * d;
  nozzle.inside.emplace_back(nozzle.end, d / 2);
  nozzle.outside = {{nozzle.end, d / 2 + wall}, {length, d / 2 + wall}};
  Points back;
  AddArc(back, length, d / 2 + height + wall, std::max(length - kFlange, 0.01), height, -kQuarter,
         -2 * kQuarter);
  CutAtPipe(back);
  nozzle.outside.insert(nozzle.outside.end(), back.begin(), back.end());
  nozzle.outside.emplace_back(kFlange, 0.5);
  nozzle.outside.emplace_back(kFlange, kPipeOutside);
  nozzle.outside.emplace_back(0, kPipeOutside);
  nozzle.boreAt = nozzle.end;
  nozzle.tapUp = -1;
  nozzle.tapDown = 0.5;
  return nozzle;
}

/// The way back of an element that fills the pipe between its ends.
void FillUpToPipe(Outline& outline) { outline.outside = {{outline.end, 0.5}, {0, 0.5}}; }

Outline VenturiTube(double beta) {
  const double convergent = (1 - beta) / 2 / std::tan(Radians(10.5));
  const double divergent = (1 - beta) / 2 / std::tan(Radians(7.5));
  Outline tube;
  tube.end = convergent + beta + divergent;
  tube.inside = {{0, 0.5}, {convergent, beta / 2}, {convergent + beta, beta / 2}, {tube.end, 0.5}};
  FillUpToPipe(tube);
  tube.boreAt = convergent + beta / 2;
  tube.tapUp = -0.5;
  tube.tapDown = tube.boreAt;
  tube.tapInBore = true;
  return tube;
}

Outline VenturiNozzle(double beta) {
  const double throat = 0.3041 * beta + 0.75 * beta;
  const double divergent = (1 - beta) / 2 / std::tan(Radians(10));
  Outline nozzle;
  nozzle.inside = IsaInlet(beta);
  nozzle.inside.emplace_back(throat, beta / 2);
  nozzle.end = throat + divergent;
  nozzle.inside.emplace_back(nozzle.end, 0.5);
  FillUpToPipe(nozzle);
  nozzle.boreAt = 0.3041 * beta + 0.3 * beta;
  nozzle.tapDown = nozzle.boreAt;
  nozzle.tapInBore = true;
  return nozzle;
}

Outline OutlineOf(const ElementSection& section) {
  const double beta = section.bore / section.pipeBore;
  switch (section.shape) {
    case Shape::kConcentricPlate:
      return ConcentricPlate(beta);
    case Shape::kQuarterCirclePlate:
      return QuarterCirclePlate(beta, section.radius / section.pipeBore);
    case Shape::kIsaNozzle:
      return IsaNozzle(beta);
    case Shape::kLongRadiusNozzle:
      return LongRadiusNozzle(beta);
    case Shape::kVenturiTube:
      return VenturiTube(beta);
    case Shape::kVenturiNozzle:
      return VenturiNozzle(beta);
    case Shape::kRestrictionPlate:
      break;
  }
  return Plate(section.thickness / section.pipeBore, beta);
}

/// Radius of a curve at x, 0.5 outside it.
double RadiusAt(const Points& points, double x) {
  for (std::size_t i = 1; i < points.size(); ++i) {
    const auto [x1, r1] = points[i - 1];
    const auto [x2, r2] = points[i];
    if (x >= x1 && x <= x2 && x2 > x1) return r1 + (r2 - r1) * (x - x1) / (x2 - x1);
  }
  return 0.5;
}

/// Draws one section. Places on the drawing are in twips, x and r of an outline in D.
class Drawing {
 public:
  Drawing(const ElementSection& section, forms::DrawSurface& surface, double width, double height)
      : section_(section), surface_(surface), width_(width), height_(height) {
    surface_.SetFont(shell::kGothic, kLetterSize);
    surface_.SetLineWidth(1);
  }

  void Draw() {
    if (section_.pipeBore <= 0) {
      DrawPipeAlone(false, "配管内径を入力すると断面図を描きます。", forms::kBlack);
    } else if (section_.bore <= 0) {
      DrawPipeAlone(true, "計算すると絞り機構の断面を描きます。", forms::kBlack);
    } else if (section_.bore >= section_.pipeBore) {
      DrawPipeAlone(true, "絞り径 " + Number(section_.bore) + " は配管に入りません。",
                    forms::kMagenta);
    } else if (section_.thickness > kThickest * section_.pipeBore) {
      DrawPipeAlone(true, "板厚 " + Number(section_.thickness) + " は図に収まりません。",
                    forms::kMagenta);
    } else {
      DrawElement();
    }
  }

 private:
  double Beta() const { return section_.bore / section_.pipeBore; }
  double X(double inD) const { return x0_ + inD * pipe_; }
  double Above(double radius) const { return axis_ - radius * pipe_; }
  double Below(double radius) const { return axis_ + radius * pipe_; }

  void DrawPipeAlone(bool dimensioned, const std::string& hint, forms::Color color) {
    pipe_ = 0.55 * height_;
    axis_ = height_ / 2;
    DrawPipe({});
    if (dimensioned) DrawPipeBore();
    surface_.SetColor(color);
    surface_.Text((width_ - surface_.TextWidth(hint)) / 2 + (dimensioned ? 500 : 0),
                  axis_ - surface_.TextHeight() - 30, hint);
  }

  void DrawElement() {
    outline_ = OutlineOf(section_);
    PlaceTaps();
    Fit();
    std::vector<std::pair<double, double>> holes;
    if (hasTaps_) {
      holes.push_back(HoleAt(up_, -1));
      if (!outline_.tapInBore) holes.push_back(HoleAt(down_, 1));
    }
    DrawPipe(holes);
    DrawBody();
    if (hasTaps_) DrawTaps();
    DrawPipeBore();
    DrawBore();
    if (section_.shape == Shape::kRestrictionPlate) DrawThickness();
    if (section_.shape == Shape::kQuarterCirclePlate) DrawRadius();
  }

  /// Where the taps are, in D from the upstream face.
  void PlaceTaps() {
    hasTaps_ = outline_.hasTaps || section_.upstreamTap;
    up_ = outline_.tapUp;
    down_ = outline_.tapDown;
    if (section_.upstreamTap) up_ = -*section_.upstreamTap / section_.pipeBore;
    if (section_.downstreamTap) {
      down_ = *section_.downstreamTap / section_.pipeBore +
              (section_.downstreamFromUpstreamFace ? 0 : outline_.end);
    }
  }

  /// The largest scale at which everything has its room, and the place of the element.
  void Fit() {
    const double textHeight = surface_.TextHeight();
    const double top = section_.upstreamTap ? textHeight + 230 : hasTaps_ ? 160 : kMargin;
    const bool below =
        section_.shape == Shape::kRestrictionPlate || section_.shape == Shape::kQuarterCirclePlate;
    const double bottom = below ? textHeight + 120 : kMargin;
    const double room = height_ - top - bottom;
    const double width = width_ - 2 * kMargin;
    const double before = std::max(0.4, -up_ + 0.25);
    const double behind = std::max(outline_.end + 0.4, down_ + 0.25);
    pipe_ = room / (1 + 2 * kWallShare);
    const auto needed = [&](double text) {
      const double left = std::max(before * pipe_, text);
      const double right =
          std::max(behind * pipe_, outline_.tapInBore ? 0.0 : outline_.boreAt * pipe_ + text);
      return std::pair(left, right);
    };
    auto [left, right] = needed(kTextRoom);
    while (left + right > width && pipe_ > 300) {
      pipe_ *= 0.98;
      std::tie(left, right) = needed(kTextRoom);
    }
    x0_ = kMargin + left + std::max(0.0, width - left - right) / 2;
    axis_ = top + room / 2;
  }

  std::pair<double, double> HoleAt(double tap, int side) const {
    // A tap beside a face stands clear of it.
    const bool atFace = !section_.upstreamTap || tap == 0 || tap == outline_.end;
    const bool corner = atFace && (tap == 0 || tap == outline_.tapDown) && !outline_.tapInBore;
    const double centre = X(tap) + (corner ? side * kTapWidth / 2 : 0);
    return {centre - kTapWidth / 2, centre + kTapWidth / 2};
  }

  /// Both walls, the upper one with its tap holes, and the axis with the way of the flow.
  void DrawPipe(std::vector<std::pair<double, double>> holes) {
    surface_.SetColor(kWall);
    const double wall = kWallShare * pipe_;
    const double inner = pipe_ / 2;
    const double right = width_ - kMargin;
    surface_.FilledRectangle(kMargin, axis_ + inner, right, axis_ + inner + wall);
    std::sort(holes.begin(), holes.end());
    double from = kMargin;
    for (const auto& [start, end] : holes) {
      if (start > from) {
        surface_.FilledRectangle(from, axis_ - inner - wall, start, axis_ - inner);
      }
      from = std::max(from, end);
    }
    surface_.FilledRectangle(from, axis_ - inner - wall, right, axis_ - inner);
    surface_.DashedLine(kMargin, axis_, right, axis_);
  }

  void DrawBody() {
    surface_.SetColor(kMetal);
    Points above;
    Points below;
    for (const Points* side : {&outline_.inside, &outline_.outside}) {
      for (const auto& [x, r] : *side) {
        above.emplace_back(X(x), Above(r));
        below.emplace_back(X(x), Below(r));
      }
    }
    if (outline_.end * pipe_ < kThinnest) {
      const double outer = outline_.outside.front().second;
      surface_.FilledRectangle(X(0), Above(outer), X(0) + kThinnest, Above(Beta() / 2));
      surface_.FilledRectangle(X(0), Below(Beta() / 2), X(0) + kThinnest, Below(outer));
      return;
    }
    surface_.FilledPolygon(below);
    if (outline_.tapInBore) {
      DrawSplitBody();
    } else {
      surface_.FilledPolygon(above);
    }
  }

  /// The upper half of an element that the downstream tap goes through.
  void DrawSplitBody() {
    const double half = kTapWidth / 2 / pipe_;
    for (const auto& [from, to] : {std::pair(0.0, down_ - half), {down_ + half, outline_.end}}) {
      Points part = {{X(from), Above(0.5)}, {X(from), Above(RadiusAt(outline_.inside, from))}};
      for (const auto& [x, r] : outline_.inside) {
        if (x > from && x < to) part.emplace_back(X(x), Above(r));
      }
      part.emplace_back(X(to), Above(RadiusAt(outline_.inside, to)));
      part.emplace_back(X(to), Above(0.5));
      surface_.FilledPolygon(part);
    }
  }

  void DrawTaps() {
    const double outer = Above(kPipeOutside);
    const double end = outer - 70;
    const auto tube = [&](double tap, int side) {
      const auto [left, right] = HoleAt(tap, side);
      surface_.Line(left, outer, left, end);
      surface_.Line(right, outer, right, end);
      return (left + right) / 2;
    };
    surface_.SetColor(forms::kBlack);
    const double upX = tube(up_, -1);
    const double downX = tube(down_, 1);
    if (!section_.upstreamTap || !section_.downstreamTap) return;
    const double line = end - 60;
    if (*section_.upstreamTap == 0 && *section_.downstreamTap == 0) {
      const std::string text = "コーナータップ";
      surface_.Text(X(0) - surface_.TextWidth(text) / 2, line - surface_.TextHeight(), text);
      return;
    }
    const double face = X(0);
    const double back = section_.downstreamFromUpstreamFace ? face : X(outline_.end);
    surface_.Line(face, outer, face, line - 40);
    if (back != face) surface_.Line(back, outer, back, line - 40);
    surface_.Line(upX, end, upX, line - 40);
    surface_.Line(downX, end, downX, line - 40);
    DimensionAcross(upX, face, line, Number(*section_.upstreamTap), -1);
    DimensionAcross(back, downX, line, Number(*section_.downstreamTap), 1);
  }

  /// The bore of the pipe, at its left end, and the way of the flow below the axis.
  void DrawPipeBore() {
    surface_.SetColor(forms::kBlack);
    const double x = kMargin + 170;
    DimensionUp(x, axis_ - pipe_ / 2, axis_ + pipe_ / 2, "D " + Number(section_.pipeBore) + " mm");
    const double y = axis_ + 0.22 * pipe_;
    surface_.SetColor(kWall);
    surface_.Line(x + 180, y, x + 700, y);
    Arrow(x + 700, y, 1, 0);
  }

  void DrawBore() {
    surface_.SetColor(forms::kBlack);
    const double radius = Beta() / 2;
    double x = X(outline_.boreAt);
    if (!outline_.tapInBore) {
      x = std::max(X(outline_.end) + 260,
                   std::min(X(outline_.end) + 0.25 * pipe_, width_ - kMargin - kTextRoom + 150));
      for (const double y : {Above(radius), Below(radius)}) {
        surface_.Line(X(outline_.boreAt) + 20, y, x + 60, y);
      }
    }
    DimensionUp(x, Above(radius), Below(radius), "d " + Number(section_.bore));
  }

  void DrawThickness() {
    const double y = Below(kPipeOutside) + surface_.TextHeight() / 2 + 50;
    const double end = std::max(X(outline_.end), X(0) + kThinnest);
    surface_.SetColor(forms::kBlack);
    for (const double x : {X(0), end}) surface_.Line(x, Below(kPipeOutside) + 20, x, y + 50);
    DimensionAcross(X(0), end, y, "t " + Number(section_.thickness), 1);
  }

  void DrawRadius() {
    if (section_.radius <= 0) return;
    surface_.SetColor(forms::kBlack);
    const std::string text = "r " + Number(section_.radius);
    const double edge = std::min(section_.radius / section_.pipeBore, (1 - Beta()) / 2);
    // From the middle of the arc, square to it, out into the flow and below the pipe.
    const double share = 1 - std::cos(Radians(45));
    const double x = X(edge * share);
    const double y = Below(Beta() / 2 + edge * share);
    const double reach = 0.12 * pipe_;
    surface_.Line(x - reach, y - reach, x, y);
    Arrow(x, y, std::cos(Radians(45)), std::sin(Radians(45)));
    surface_.Text(x - reach - surface_.TextWidth(text) - 30, y - reach - surface_.TextHeight() / 2,
                  text);
  }

  /// A dimension from y1 down to y2 with its number beside it, above the axis.
  void DimensionUp(double x, double y1, double y2, const std::string& text) {
    const bool inside = y2 - y1 > 3 * kArrow;
    if (inside) {
      surface_.Line(x, y1, x, y2);
      Arrow(x, y1, 0, -1);
      Arrow(x, y2, 0, 1);
    } else {
      surface_.Line(x, y1 - 3 * kArrow, x, y1);
      surface_.Line(x, y2, x, y2 + 3 * kArrow);
      Arrow(x, y1, 0, 1);
      Arrow(x, y2, 0, -1);
    }
    surface_.Text(x + 70, (y1 + y2) / 2 - surface_.TextHeight() - 10, text);
  }

  /// A dimension from x1 to x2 with its number above it, or beside it on one side where it is
  /// short.
  void DimensionAcross(double x1, double x2, double y, const std::string& text, int side) {
    const double width = surface_.TextWidth(text);
    const double height = surface_.TextHeight();
    const bool inside = x2 - x1 > 3 * kArrow;
    if (inside) {
      surface_.Line(x1, y, x2, y);
      Arrow(x1, y, -1, 0);
      Arrow(x2, y, 1, 0);
      if (x2 - x1 > width + 60) {
        surface_.Text((x1 + x2 - width) / 2, y - height - 5, text);
        return;
      }
    } else {
      surface_.Line(x1 - 2.5 * kArrow, y, x1, y);
      surface_.Line(x2, y, x2 + 2.5 * kArrow, y);
      Arrow(x1, y, 1, 0);
      Arrow(x2, y, -1, 0);
    }
    const double clear = (inside ? 0 : 2.5 * kArrow) + 40;
    surface_.Text(side < 0 ? x1 - clear - width : x2 + clear, y - height / 2, text);
  }

  /// A filled head with its point at (x, y), looking along (dx, dy).
  void Arrow(double x, double y, double dx, double dy) {
    const double wide = kArrow * 0.3;
    surface_.FilledPolygon({{x, y},
                            {x - dx * kArrow - dy * wide, y - dy * kArrow + dx * wide},
                            {x - dx * kArrow + dy * wide, y - dy * kArrow - dx * wide}});
  }

  const ElementSection& section_;
  forms::DrawSurface& surface_;
  double width_;
  double height_;
  Outline outline_;
  double pipe_ = 0;  // D in twips
  double x0_ = 0;    // the upstream face
  double axis_ = 0;
  bool hasTaps_ = false;
  double up_ = 0;
  double down_ = 0;
};

}  // namespace

Shape ShapeOf(flow::ElementType type) {
  switch (type) {
    case flow::kQuarterCircleOrifice:
      return Shape::kQuarterCirclePlate;
    case flow::kIsaNozzle:
      return Shape::kIsaNozzle;
    case flow::kLongRadiusNozzle:
      return Shape::kLongRadiusNozzle;
    case flow::kAsCastVenturi:
    case flow::kMachinedVenturi:
    case flow::kWeldedVenturi:
      return Shape::kVenturiTube;
    case flow::kVenturiNozzle:
      return Shape::kVenturiNozzle;
    default:
      return Shape::kConcentricPlate;
  }
}

void DrawElementSection(const ElementSection& section, forms::DrawSurface& surface, double width,
                        double height) {
  Drawing(section, surface, width, height).Draw();
}

}  // namespace sheets
