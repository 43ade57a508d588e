#include "sheets/element_section.h"

#include <gtest/gtest.h>

#include <cmath>

#include "shell/page_recorder.h"
#include "shell/print_surface.h"

namespace sheets {
namespace {

using shell::PageRecorder;
using Shape = ElementSection::Shape;

constexpr double kWidth = 6600, kHeight = 1700;

class SectionTest : public testing::Test {
 protected:
  /// Draws, and checks that nothing leaves the picture. The texts, in order.
  std::vector<std::string> Draw(const ElementSection& section, double height = kHeight) {
    PageRecorder page;
    DrawElementSection(section, page, kWidth, height);
    std::vector<std::string> texts;
    const auto inside = [height](double x, double y) {
      EXPECT_GE(x, 0);
      EXPECT_LE(x, kWidth);
      EXPECT_GE(y, 0);
      EXPECT_LE(y, height);
    };
    for (const auto& item : page.Items()) {
      if (const auto* const text = std::get_if<PageRecorder::TextItem>(&item)) {
        texts.push_back(text->text);
        inside(text->x, text->y);
        inside(text->x + shell::FixedTextWidth(text->text, text->size),
               text->y + shell::FixedTextHeight(text->size));
      } else if (const auto* const line = std::get_if<PageRecorder::LineItem>(&item)) {
        for (const auto& [x, y] : line->points) inside(x, y);
      } else if (const auto* const area = std::get_if<PageRecorder::PolygonItem>(&item)) {
        for (const auto& [x, y] : area->points) inside(x, y);
      } else if (const auto* const box = std::get_if<PageRecorder::BoxItem>(&item)) {
        inside(box->x1, box->y1);
        inside(box->x2, box->y2);
      }
    }
    return texts;
  }
};

TEST_F(SectionTest, EveryElementStaysInThePicture) {
  for (int shape = 0; shape <= static_cast<int>(Shape::kRestrictionPlate); ++shape) {
    for (const double beta : {0.01, 0.1, 0.2, 0.45, 0.6, 0.8, 0.99}) {
      for (const double pipe : {25.0, 102.3, 1000.0}) {
        for (const double height : {1700.0, 3300.0}) {
          SCOPED_TRACE(testing::Message() << shape << " " << beta << " " << pipe << " " << height);
          ElementSection section;
          section.shape = static_cast<Shape>(shape);
          section.pipeBore = pipe;
          section.bore = beta * pipe;
          section.thickness = shape == static_cast<int>(Shape::kRestrictionPlate) ? 12 : 0;
          section.radius = 0.1 * section.bore;
          if (section.shape == Shape::kConcentricPlate) {
            section.upstreamTap = pipe;
            section.downstreamTap = pipe / 2;
            section.downstreamFromUpstreamFace = true;
          }
          const auto texts = Draw(section, height);
          EXPECT_GE(texts.size(), 2U);
        }
      }
    }
  }
}

TEST_F(SectionTest, NumbersStandOnTheDrawing) {
  ElementSection section;
  section.pipeBore = 102.3;
  section.bore = 40.493;
  section.upstreamTap = 25.4;
  section.downstreamTap = 25.4;
  EXPECT_EQ(Draw(section), (std::vector<std::string>{"25.4", "25.4", "D 102.3 mm", "d 40.49"}));
  section.shape = Shape::kQuarterCirclePlate;
  section.upstreamTap.reset();
  section.downstreamTap.reset();
  section.radius = 5.8;
  EXPECT_EQ(Draw(section), (std::vector<std::string>{"D 102.3 mm", "d 40.49", "r 5.8"}));
}

TEST_F(SectionTest, SaysWhatIsMissing) {
  ElementSection section;
  EXPECT_EQ(Draw(section).size(), 1U);
  section.pipeBore = 102.3;
  EXPECT_EQ(Draw(section).front(), "D 102.3 mm");
  section.bore = 102.3;
  EXPECT_EQ(Draw(section).back(), "絞り径 102.3 は配管に入りません。");
}

TEST_F(SectionTest, AnyPlateThicknessStaysInThePicture) {
  for (const double inD : {1e-6, 0.5, 3.0, 10.0, 10.1, 1e60}) {
    SCOPED_TRACE(inD);
    ElementSection section;
    section.shape = Shape::kRestrictionPlate;
    section.pipeBore = 40;
    section.bore = 20;
    section.thickness = inD * section.pipeBore;
    const auto texts = Draw(section, 3300);
    EXPECT_EQ(texts.size(), inD <= 10 ? 3U : 2U);
  }
}

// To scale: the dimension line of the bore is beta times that of the pipe.
TEST_F(SectionTest, BoreAndPipeHaveOneScale) {
  ElementSection section;
  section.shape = Shape::kRestrictionPlate;
  section.pipeBore = 200;
  section.bore = 80;
  section.thickness = 20;
  PageRecorder page;
  DrawElementSection(section, page, kWidth, 3300);
  std::vector<double> upright;
  for (const auto& item : page.Items()) {
    const auto* const line = std::get_if<PageRecorder::LineItem>(&item);
    if (line == nullptr || line->points.size() != 2) continue;
    const auto& [from, to] = std::pair(line->points[0], line->points[1]);
    const double length = std::fabs(to.second - from.second);
    if (from.first == to.first && length > 500) upright.push_back(length);
  }
  ASSERT_EQ(upright.size(), 2U);
  EXPECT_NEAR(upright[1] / upright[0], 0.4, 1e-9);
}

}  // namespace
}  // namespace sheets
