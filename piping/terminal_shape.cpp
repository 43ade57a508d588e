#include "piping/terminal_shape.h"

#include <algorithm>

#include "common/number.h"
#include "common/text.h"

namespace piping {

namespace {

using common::IsBlank;
using common::RoundDigits;
using common::Val;

constexpr int kZetaDigits = 3;

/// Whether the type box holds a type from one to the other; an empty box is of no type.
bool IsType(const ShapeEntries& shape, InletType from, InletType to) {
  if (IsBlank(shape.inletType)) return false;
  const Real type = Val(shape.inletType);
  return type >= static_cast<int>(from) && type <= static_cast<int>(to);
}

void MakeStraight(ShapeEntries& shape) {
  shape.inletType = std::to_string(kStraightInlet);
  shape.inlet.angle = std::to_string(0);
}

/// Each check sees what those before it have corrected.
void MatchInletToType(ShapeEntries& shape, common::Messages& messages) {
  std::string& angle = shape.inlet.angle;
  if (IsType(shape, kStraightInlet, kStraightInlet) && Val(angle) != 0) {
    messages.Show("流入部配管形状が０型（ストレート）なので、\n角度０度に変更します。");
    angle = std::to_string(0);
  }
  if (IsType(shape, kSharpEdgedInlet, kProjectingInlet) && Val(angle) != 180) {
    messages.Show("流入部配管形状が１～３型なので、\n角度１８０度に変更します。");
    angle = std::to_string(180);
  }
  const Real ratio = Val(shape.inlet.ratio);
  if (IsType(shape, kConicalInlet, kConicalInlet) && ratio == 1) {
    messages.Show("流入部配管径の比率が１.０なので、\n流入部配管形状を０型（直管）に変更します。");
    MakeStraight(shape);
  }
  if (IsType(shape, kConicalInlet, kConicalInlet) && ratio == 0) {
    messages.Show("流入部配管径の比率が未入力なので、\n流入部配管形状を０型（直管）に変更します。");
    MakeStraight(shape);
  }
  if (IsType(shape, kConicalInlet, kConicalInlet) && (Val(angle) == 0 || Val(angle) == 180)) {
    messages.Show("流入部配管形状が４型（レデューサー）なので、\n角度３０度に変更します。");
    angle = std::to_string(30);
  }
}

/// word: the end of the line that the messages speak of.
void MatchRatioAndAngle(ShapeEntries::End& end, const std::string& word,
                        common::Messages& messages) {
  if (IsBlank(end.ratio)) end.ratio = std::to_string(1);
  if (IsBlank(end.angle)) end.angle = std::to_string(0);
  if (Val(end.ratio) == 0) {
    messages.Show(word + "配管径の比率がゼロでは閉塞です。配管径の比率を１に変更します");
    end = {"1", "0"};
  }
  if (Val(end.ratio) == 1 && Val(end.angle) != 0) {
    messages.Show(word + "配管径の比率が１なので、角度をゼロに変更します");
    end.angle = std::to_string(0);
  }
  if (Val(end.angle) == 0 && Val(end.ratio) != 1) {
    messages.Show(word + "配管の角度がゼロなので、配管径の比率を１に変更します");
    end.ratio = std::to_string(1);
  }
}

/// A sudden contraction to r times the bore, by a polynomial from 0.49 at a vessel's wall to 0.
Real SuddenContraction(Real r) {
  return std::max(-0.32828 * pow(r, 3) + 0.174242 * pow(r, 2) - 0.35051 * r + 0.491818, Real(0));
}

/// Share of the Borda-Carnot loss that an enlargement of that angle has.
Real Enlargement(Real theta) {
  if (theta < 8) return 0.13;
  if (theta < 40) return 0.011 * pow(theta, Real(1.22));
  if (theta < 120) {
    return std::min(2.69e-6 * pow(theta, 3) - 0.00074 * pow(theta, 2) + 0.062537 * theta - 0.53667,
                    Real(1));
  }
  return 1;
}

/// Narrow cones count more than wide ones, which handbooks have the other way round.
Real ConicalContraction(Real theta) { return theta < 40 ? 0.1 : 0.04; }

Real InletContraction(int inletType, const Terminal& inlet) {
  switch (inletType) {
    case kSharpEdgedInlet:
      return SuddenContraction(inlet.ratio);
    case kRoundedInlet:
      return 0.04;
    case kProjectingInlet:
      return 1;
    case kConicalInlet:
      return ConicalContraction(inlet.angle);
    default:
      common::RaiseFault(common::Fault::kInvalidArgument);
  }
}

}  // namespace

void CorrectShape(ShapeEntries& shape, common::Messages& messages) {
  MatchInletToType(shape, messages);
  MatchRatioAndAngle(shape.inlet, "流入", messages);
  MatchRatioAndAngle(shape.outlet, "流出", messages);
  if (!IsBlank(shape.inletType)) return;
  messages.Show("流入部配管形状が未入力なので、Type 0（直管)として計算します。");
  shape.inletType = std::to_string(kStraightInlet);
  shape.inlet = {"1", "0"};
}

Real InletZeta(int inletType, const Terminal& inlet) {
  if (inlet.ratio == 1) return 0;
  return RoundDigits(
      inlet.ratio < 1 ? InletContraction(inletType, inlet) : Enlargement(inlet.angle), kZetaDigits);
}

Real OutletZeta(const Terminal& outlet) {
  if (outlet.ratio == 1) return 0;
  if (outlet.ratio > 1) return RoundDigits(Enlargement(outlet.angle), kZetaDigits);
  return RoundDigits(
      outlet.angle < 180 ? ConicalContraction(outlet.angle) : SuddenContraction(outlet.ratio),
      kZetaDigits);
}

}  // namespace piping
