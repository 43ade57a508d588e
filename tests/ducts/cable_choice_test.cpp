#include "ducts/cable_choice.h"

#include "common/fields.h"
#include "tests/data/shipped_data.h"

namespace ducts {
namespace {

// The labels that stand in CableData.dat in front of the figures name each cable: the lists must
// lead to the same figures.
TEST(CableChoice, ListsNameWhatTheFileHolds) {
  const CableTable table = tests::Shipped(ReadCableTable, "CableData.dat");
  common::FieldReader reader(tests::ShippedFile("CableData.dat"));
  int cables = 0;
  while (!reader.AtEnd()) {
    std::string field[5];
    for (std::string& text : field) text = *reader.Next();
    SCOPED_TRACE(field[0] + field[1] + field[2]);
    if (field[3] == "0") continue;  // the twelfth row of the paired kinds
    ++cables;
    const CableChoice choice = FindCable(field[0], field[1], field[2]);
    EXPECT_NE(choice.group, CableGroup::kOther);
    const auto figures = FiguresOf(table, choice);
    ASSERT_TRUE(figures);
    EXPECT_EQ(figures->diameter, std::stof(field[3]));
    EXPECT_EQ(figures->weightPerKm, std::stof(field[4]));
  }
  EXPECT_EQ(cables, 12 * 4 + 5 * 11 * 4 + 7);
}

TEST(CableChoice, TextsAreComparedWhole) {
  EXPECT_EQ(FindCable("CVV     ", " 2c", "3.5 "), (CableChoice{CableGroup::kControl, 0, 0, 3}));
  EXPECT_EQ(FindCable("CVV-S   ", " 2P", "2.0"), (CableChoice{CableGroup::kControl, 1, 1, 2}));
  EXPECT_EQ(FindCable("KX-G(VV)", "19P", "2.3"), (CableChoice{CableGroup::kLead, 2, 10, 3}));
  EXPECT_EQ(FindCable("被覆銅管", "12本", "6/4"), (CableChoice{CableGroup::kTube, 0, 6, 0}));
  const char* const others[][3] = {{"CVV", " 2c", "2.0"},
                                   {"CVV     ", "2c", "2.0"},
                                   {"CVV     ", " 2c", "3.5"},
                                   {"CVV     ", " 2P", "2.0"},
                                   {"", " ", ""}};
  for (const auto& texts : others) {
    SCOPED_TRACE(texts[0]);
    EXPECT_EQ(FindCable(texts[0], texts[1], texts[2]).group, CableGroup::kOther);
  }
}

TEST(CableChoice, IncompleteChoiceHasNoFigures) {
  const CableTable table = tests::Shipped(ReadCableTable, "CableData.dat");
  const CableChoice choices[] = {{CableGroup::kControl, -1, 0, 0},
                                 {CableGroup::kTube, 0, 0, -1},
                                 {CableGroup::kOther, 0, 0, 0},
                                 {CableGroup::kLead, 0, 11, 0}};
  for (const CableChoice& choice : choices) EXPECT_FALSE(FiguresOf(table, choice));
  EXPECT_FALSE(FiguresOf(CableTable(), {CableGroup::kTube, 0, 0, 0}));
}

}  // namespace
}  // namespace ducts
