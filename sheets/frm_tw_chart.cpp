// The thermowell sheet's diagram of frequencies over the flow.

#include <algorithm>

#include "common/number.h"
#include "sheets/frm_tw.h"

namespace sheets {

namespace {

constexpr double kBeyond = 1.25;  // of the entered flow
constexpr int kPoints = 120;
/// Room above the highest frequency for the names of the uprights.
constexpr double kHeadroom = 1.16;

/// Ratio of the flow at which the well meets a velocity, on the straight line between two points of
/// the curve; nothing beyond its end.
std::optional<double> RatioAt(const std::vector<temperature::SheddingPoint>& curve, Real velocity) {
  for (std::size_t i = 1; i < curve.size(); ++i) {
    const auto& [r1, v1, f1] = curve[i - 1];
    const auto& [r2, v2, f2] = curve[i];
    if (v2 >= velocity && v2 > v1) return common::Interpolate(r1, r2, v1, velocity, v2);
  }
  return std::nullopt;
}

}  // namespace

void frmTW::PrepareChart() {
  shedding_.reset();
  pic周波数.Redraw();
  try {
    Shedding shedding;
    shedding.enteredFlow = common::Val(txt流量.Text());
    if (shedding.enteredFlow <= 0) return;
    shedding.curve = temperature::SheddingCurve(well_, kBeyond, kPoints);
    shedding.naturalFrequency = temperature::CalcNaturalFrequencies(well_).hertz[0];
    if (shedding.curve.empty() || shedding.naturalFrequency <= 0) return;
    shedding.meanDiameter = well_.MeanDiameter();
    shedding.flowTitle = InTank() ? "攪拌機 回転数 (rpm)" : "流量 (" + FlowUnitBox().Text() + ")";
    shedding_ = std::move(shedding);
  } catch (const common::RuntimeFault&) {
    // Entries that cannot be calculated have no diagram; the calculation tells the user.
  }
}

void frmTW::DrawChart(forms::DrawSurface& surface) const {
  if (!shedding_) {
    DrawEmptyChart(surface, pic周波数.Width(), pic周波数.Height(), "計算すると線図を表示します。");
    return;
  }
  const Real natural = shedding_->naturalFrequency;
  const Real flow = shedding_->enteredFlow;
  Chart::Points vortices;
  double highest = natural / temperature::kLowMargin;
  double entered = 0;
  for (const auto& point : shedding_->curve) {
    vortices.emplace_back(point.ratio * flow, point.vortexFrequency);
    highest = std::max(highest, static_cast<double>(point.vortexFrequency));
    if (point.ratio <= 1 + 1e-9) entered = point.vortexFrequency;
  }
  Chart chart(surface, pic周波数.Width(), pic周波数.Height(),
              {shedding_->flowTitle, 0, flow * kBeyond}, {"周波数 (Hz)", 0, highest * kHeadroom});
  chart.Legend("fn 固有振動数(1次)", forms::kBlack);
  chart.Legend("fs カルマン渦", forms::kBlue);
  chart.Legend("fn/fs 0.7～1.3", forms::kRed);
  chart.HatchLevels(natural / temperature::kHighMargin, natural / temperature::kLowMargin,
                    forms::kRed);
  DrawVrLimits(chart);
  chart.Level(natural, forms::kBlack);
  chart.Curve(vortices, forms::kBlue);
  chart.DashedLine({flow, 0}, {flow, entered}, forms::kBlue);
  chart.Dot(flow, entered, forms::kBlue);
  chart.Note(0, natural, "fn " + common::Format(natural, "#,##0.0"), forms::kBlack);
  chart.Note(flow, entered, "fs " + common::Format(entered, "#,##0.0"), forms::kBlue,
             Chart::Side::kBelow);
}

/// Ranges of the reduced velocity in which the vortices may lock in: in the direction of the flow
/// from 1.0 to 3.3, across it from 3.3 on.
void frmTW::DrawVrLimits(Chart& chart) const {
  const auto flowAt = [this](double vr) {
    const auto ratio =
        RatioAt(shedding_->curve, vr * shedding_->naturalFrequency * shedding_->meanDiameter);
    return ratio ? std::optional<double>(*ratio * shedding_->enteredFlow) : std::nullopt;
  };
  const double end = shedding_->enteredFlow * kBeyond;
  const std::optional<double> inLine = flowAt(temperature::kInLineVr);
  if (!inLine) return;
  const std::optional<double> across = flowAt(temperature::kCrossFlowVr);
  chart.Strip(*inLine, across.value_or(end), forms::kMagenta);
  chart.Upright(*inLine, forms::kMagenta, "Vr 1.0～ 流れ方向");
  if (!across) return;
  chart.Strip(*across, end, forms::kRed);
  chart.Upright(*across, forms::kRed, "Vr 3.3～ 直角方向", 1);
}

}  // namespace sheets
