#include "piping/terminal_shape.h"

#include <gtest/gtest.h>

#include "common/fault.h"
#include "tests/support/scripted_messages.h"

namespace piping {
namespace {

using Texts = std::vector<std::string>;

const std::string kNoCone = "流入部配管形状が０型（ストレート）なので、\n角度０度に変更します。";
const std::string kSudden = "流入部配管形状が１～３型なので、\n角度１８０度に変更します。";
const std::string kSameBore =
    "流入部配管径の比率が１.０なので、\n流入部配管形状を０型（直管）に変更します。";
const std::string kNoRatio =
    "流入部配管径の比率が未入力なので、\n流入部配管形状を０型（直管）に変更します。";
const std::string kCone = "流入部配管形状が４型（レデューサー）なので、\n角度３０度に変更します。";
const std::string kNoType = "流入部配管形状が未入力なので、Type 0（直管)として計算します。";
const std::string kBlocked = "配管径の比率がゼロでは閉塞です。配管径の比率を１に変更します";
const std::string kNoAngle = "配管径の比率が１なので、角度をゼロに変更します";
const std::string kNoStep = "配管の角度がゼロなので、配管径の比率を１に変更します";
const std::string kIn = "流入";
const std::string kOut = "流出";

// Boxes: type, inlet ratio and angle, outlet ratio and angle.
TEST(CorrectShape, TellsEveryCorrectionInOrder) {
  using Boxes = std::array<std::string, 5>;
  const struct {
    Boxes before, after;
    Texts told;
  } rows[] = {
      {{"0", "1", "0", "1", "0"}, {"0", "1", "0", "1", "0"}, {}},
      {{"4", "0.5", "30", "2", "180"}, {"4", "0.5", "30", "2", "180"}, {}},
      {{"1", "0.01", "180", "1.0", "0"}, {"1", "0.01", "180", "1.0", "0"}, {}},
      {{"0", "1", "", "", ""}, {"0", "1", "0", "1", "0"}, {}},
      {{"0", "1", "15", "1", "0"}, {"0", "1", "0", "1", "0"}, {kNoCone}},
      {{"0", "0.5", "15", "1", "0"}, {"0", "1", "0", "1", "0"}, {kNoCone, kIn + kNoStep}},
      {{"2", "0.5", "90", "1", "0"}, {"2", "0.5", "180", "1", "0"}, {kSudden}},
      {{"3", "", "", "", ""}, {"3", "1", "0", "1", "0"}, {kSudden, kIn + kNoAngle}},
      {{"4", "1.0", "20", "1", "0"}, {"0", "1.0", "0", "1", "0"}, {kSameBore}},
      {{"4", "", "20", "1", "0"}, {"0", "1", "0", "1", "0"}, {kNoRatio}},
      {{"4", "0", "20", "1", "0"}, {"0", "1", "0", "1", "0"}, {kNoRatio, kIn + kBlocked}},
      {{"4", "0.5", "180", "1", "0"}, {"4", "0.5", "30", "1", "0"}, {kCone}},
      {{"4", "0.5", "0", "1", "0"}, {"4", "0.5", "30", "1", "0"}, {kCone}},
      {{"4", "0.5", "", "1", "0"}, {"4", "0.5", "30", "1", "0"}, {kCone}},
      {{"0", "1", "0", "0", "90"}, {"0", "1", "0", "1", "0"}, {kOut + kBlocked}},
      {{"0", "1", "0", "1", "90"}, {"0", "1", "0", "1", "0"}, {kOut + kNoAngle}},
      {{"0", "1", "0", "0.5", ""}, {"0", "1", "0", "1", "0"}, {kOut + kNoStep}},
      {{"", "", "", "", ""}, {"0", "1", "0", "1", "0"}, {kNoType}},
      {{"", "0.5", "30", "2", "0"}, {"0", "1", "0", "1", "0"}, {kOut + kNoStep, kNoType}},
      {{"", "0", "0", "1", "0"}, {"0", "1", "0", "1", "0"}, {kIn + kBlocked, kNoType}},
  };
  for (const auto& row : rows) {
    ShapeEntries shape{
        row.before[0], {row.before[1], row.before[2]}, {row.before[3], row.before[4]}};
    SCOPED_TRACE(testing::PrintToString(row.before));
    tests::ScriptedMessages messages;
    CorrectShape(shape, messages);
    EXPECT_EQ(messages.Texts(), row.told);
    EXPECT_EQ((Boxes{shape.inletType, shape.inlet.ratio, shape.inlet.angle, shape.outlet.ratio,
                     shape.outlet.angle}),
              row.after);
  }
}

// Entrances of a vessel: flush 0.5, well rounded 0.04, projecting 1.0 (White, Fluid Mechanics,
// figure 6.21). Borda-Carnot for a sudden enlargement: the whole of what the velocity loses.
TEST(Zeta, AgreesWithHandbooksWhereTheyShould) {
  EXPECT_NEAR(InletZeta(kSharpEdgedInlet, {0.01, 180}), 0.5, 0.015);
  EXPECT_NEAR(InletZeta(kRoundedInlet, {0.01, 180}), 0.04, 1e-9);
  EXPECT_NEAR(InletZeta(kProjectingInlet, {0.01, 180}), 1, 1e-9);
  EXPECT_NEAR(OutletZeta({100, 180}), 1, 1e-9);
  // Sudden contractions to 0.5 and 0.7 of the bore, by Weisbach's contraction coefficients.
  EXPECT_NEAR(OutletZeta({0.5, 180}), 0.33, 0.03);
  EXPECT_NEAR(OutletZeta({0.7, 180}), 0.22, 0.03);
  // The polynomial by hand, 0.2245003 and 0.0654986, where its third decimal is about to turn.
  EXPECT_NEAR(OutletZeta({0.691, 180}), 0.225, 1e-9);
  EXPECT_NEAR(OutletZeta({0.915, 180}), 0.065, 1e-9);
}

TEST(Zeta, ChangesAtItsLimits) {
  const struct {
    double ratio, angle, inlet, outlet;
  } rows[] = {
      {1, 0, 0, 0},          {0.5, 39.9, 0.1, 0.1}, {0.5, 40, 0.04, 0.04}, {0.5, 179.9, 0.04, 0.04},
      {2, 7.9, 0.13, 0.13},  {2, 8, 0.139, 0.139},  // 0.011 * 8^1.22, where 8^1.22 = 12.641
      {2, 40, 0.953, 0.953},                        // 0.17216 - 1.184 + 2.50148 - 0.53667 = 0.95297
      {2, 60, 1, 1},                                // 0.58104 - 2.664 + 3.75222 - 0.53667 = 1.13259
      {2, 120, 1, 1},        {2, 180, 1, 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.ratio << " at " << row.angle);
    EXPECT_NEAR(InletZeta(kConicalInlet, {row.ratio, row.angle}), row.inlet, 1e-9);
    EXPECT_NEAR(OutletZeta({row.ratio, row.angle}), row.outlet, 1e-9);
  }
  // An enlargement has its angle whatever the type; a contraction of no known type has nothing.
  EXPECT_NEAR(InletZeta(kSharpEdgedInlet, {2, 180}), 1, 1e-9);
  EXPECT_THROW(InletZeta(12, {0.5, 180}), common::RuntimeFault);
  EXPECT_GE(InletZeta(kSharpEdgedInlet, {0.9999, 180}), 0);
}

}  // namespace
}  // namespace piping
