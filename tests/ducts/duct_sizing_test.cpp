#include "ducts/duct_sizing.h"

#include <cmath>
#include <vector>

#include "tests/data/shipped_data.h"

namespace ducts {
namespace {

/// A rectangle of a section, by its lower edge.
struct Part {
  double width, height, bottom;
};

/// A duct built from its plates, class by class.
std::vector<Part> PartsOf(double W, double H, double F, double t, DuctClass duct) {
  if (duct != DuctClass::kSeparate) {
    return {{W - 2 * t, t, 0}, {t, H, 0}, {t, H, 0}, {F - t, t, H - t}, {F - t, t, H - t}};
  }
  std::vector<Part> parts;  // channels alone
  for (int side = 0; side < 2; ++side) {
    parts.insert(parts.end(), {{t, H, 0}, {F - t, t, 0}, {F - t, t, H - t}});
  }
  return parts;
}

double AreaOf(const std::vector<Part>& parts) {
  double area = 0;
  for (const Part& part : parts) area += part.width * part.height;
  return area;
}

/// Parallel-axis theorem over the parts.
double MomentOf(const std::vector<Part>& parts) {
  double first = 0;
  for (const Part& part : parts) {
    first += part.width * part.height * (part.bottom + part.height / 2);
  }
  const double centroid = first / AreaOf(parts);
  double moment = 0;
  for (const Part& part : parts) {
    const double arm = part.bottom + part.height / 2 - centroid;
    moment += part.width * std::pow(part.height, 3) / 12 + part.width * part.height * arm * arm;
  }
  return moment;
}

/// Sag of a beam by the unit-load method: the integral of M m / (E I) over the span.
double SagByWork(double L, double total, double point, double EI) {
  constexpr int kSteps = 20000;
  double sum = 0;
  for (int i = 0; i < kSteps; ++i) {
    const double x = (i + 0.5) * L / kSteps / 2;  // one half; the other is its mirror image
    const double moment = total / L * x * (L - x) / 2 + point * x / 2;
    sum += moment * (x / 2) * (L / kSteps / 2);
  }
  return 2 * sum / EI;
}

const DuctSection kSections[] = {
    {100, 50, 20, 1.6},   {100, 74, 20, 1.6},  {200, 100, 20, 2.3},  {250, 150, 15, 2.3},
    {300, 150, 20, 2.3},  {400, 200, 20, 2.3}, {500, 200, 50, 2.3},  {600, 250, 20, 2.3},
    {1000, 100, 50, 3.2}, {800, 300, 50, 3.2}, {1000, 400, 50, 3.2}, {1000, 400, 20, 1.6},
};

TEST(DuctSizing, SectionsAgreeWithTheirParts) {
  for (const DuctSection& duct : kSections) {
    const double W = duct.width, H = duct.height, F = duct.foldIn, t = duct.thickness;
    SCOPED_TRACE(testing::Message() << W << " x " << H << " x " << t);
    const bool separate = duct.Class() == DuctClass::kSeparate;
    const std::vector<Part> parts = PartsOf(W, H, F, t, duct.Class());
    // The bottom plate of the separate class lies in the channels: weighed, not counted on.
    const double bottomPlate = separate ? (W - 2 * t) * t : 0;
    EXPECT_NEAR(SteelArea(duct), AreaOf(parts) + bottomPlate, 1e-9);
    EXPECT_NEAR(SecondMoment(duct), MomentOf(parts), 1e-9 * MomentOf(parts));
    EXPECT_NEAR(WeightPerMetre(duct), (AreaOf(parts) + bottomPlate) * 1000 * 7.845e-6, 1e-9);
    EXPECT_NEAR(ClearArea(duct), (W - 2 * t) * (H - (separate ? 3 : 2) * t), 1e-9);
  }
}

TEST(DuctSizing, GirthDecidesTheClass) {
  const struct {
    double width, height;
    DuctClass duct;
    double thickness, foldIn;
  } rows[] = {
      {100, 74.9, DuctClass::kSmall, 1.6, 20},   {100, 75, DuctClass::kFolded, 2.3, 20},
      {600, 299.9, DuctClass::kFolded, 2.3, 20}, {600, 300, DuctClass::kSeparate, 3.2, 50},
      {0, 0, DuctClass::kSmall, 1.6, 20},        {1000, 400, DuctClass::kSeparate, 3.2, 50}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.width << " x " << row.height);
    EXPECT_EQ(ClassOf(row.width, row.height), row.duct);
    EXPECT_EQ(PlateOf(row.duct).thickness, row.thickness);
    EXPECT_EQ(PlateOf(row.duct).foldIn, row.foldIn);
  }
}

TEST(DuctSizing, SearchKeepsAThirdOfTheDuctAtMost) {
  const DuctCatalogue catalogue = tests::Shipped(ReadDuctCatalogue, "CableDuct.dat");
  double last = 0;
  for (double area = 100; area < 110000; area += 371) {
    SCOPED_TRACE(area);
    const DuctCatalogue::Row& row = SmallestDuct(catalogue, area);
    const DuctClass duct = ClassOf(row.width, row.depth);
    const Plate plate = PlateOf(duct);
    const DuctCheck check =
        CheckDuct({row.width, row.depth, plate.foldIn, plate.thickness}, {area, 0, 0}, 5, 2);
    EXPECT_LT(*check.fill, 30.0);
    EXPECT_GE(row.area, last);
    last = row.area;
  }
  // An area that fills a duct exactly to the limit goes into the next one.
  EXPECT_EQ(SmallestDuct(catalogue, 4530 * 0.3).width, 200);
  EXPECT_EQ(SmallestDuct(catalogue, 4530 * 0.3 - 0.01).width, 100);
  // Beyond the catalogue it is the largest, overfilled.
  const DuctCatalogue::Row& largest = SmallestDuct(catalogue, 200000);
  EXPECT_EQ(largest.width, 1000);
  EXPECT_GT(*CheckDuct({1000, 400, 50, 3.2}, {200000, 0, 0}, 5, 2).fill, 30.0);
}

TEST(DuctSizing, SagIsThatOfABeam) {
  for (const DuctSection& duct : kSections) {
    for (const double span : {1.5, 3.0, 5.0, 6.0}) {
      for (const double workers : {0.0, 2.0}) {
        SCOPED_TRACE(testing::Message() << duct.width << " " << span << " " << workers);
        const CableLoad cables{0, 8, 8 * span};
        const DuctCheck check = CheckDuct(duct, cables, span, workers);
        const double moment =
            MomentOf(PartsOf(duct.width, duct.height, duct.foldIn, duct.thickness, duct.Class()));
        const double sag =
            SagByWork(span * 1000, 8 * span + check.ductWeight, workers * 75, 19800 * moment);
        EXPECT_NEAR(*check.sag, sag, 1e-6 * sag);
        EXPECT_EQ(check.sagsTooMuch, sag > span);
      }
    }
  }
  EXPECT_FALSE(SagsTooMuch(5.0, 5));
  EXPECT_TRUE(SagsTooMuch(5.0001, 5));
}

TEST(DuctSizing, BearsEntriesThatAreHalfThere) {
  EXPECT_FALSE(CheckDuct({0, 0, 0, 0}, {1000, 2, 10}, 5, 2).fill);
  EXPECT_FALSE(CheckDuct({300, 150, 20, 0}, {1000, 2, 10}, 5, 2).sag);
  EXPECT_FALSE(CheckDuct({300, 150, 20, 2.3}, {1000, 2, 10}, 0, 2).sag);
}

}  // namespace
}  // namespace ducts
