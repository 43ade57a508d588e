#include "sheets/frm_pipe_weight.h"

#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class PipeWeight : public SheetTest {
 protected:
  PipeWeight() { bench.Window().Run("mnuPipeWeight"); }
  const std::vector<std::vector<std::string>>& Rows() {
    return Find<forms::Grid>("grdWeight").Rows();
  }
  data::MaterialTable& Materials() { return bench.Space().tables.materials; }
};

// JIS G 3454, unit weights of schedule 40 with 7.85 g/cm3; the totals by hand.
TEST_F(PipeWeight, AgreesWithTheStandard) {
  Type("txtPipeLength", "1000");
  const struct {
    std::size_t size;
    const char *name, *outside, *inside, *weight, *total;
  } rows[] = {{5, "1in", "34.0", "27.2", "2.57", "2,566"},
              {8, "2in", "60.5", "52.7", "5.44", "5,444"},
              {12, "4in", "114.3", "102.3", "16.03", "16,025"},
              {15, "8in", "216.3", "199.9", "42.08", "42,083"}};
  ASSERT_EQ(Rows().size(), 25U);
  for (const auto& row : rows) {
    EXPECT_EQ(Rows()[row.size],
              Texts({row.name, row.outside, row.inside, row.weight, row.total, ""}));
  }
  EXPECT_EQ(TakeTexts(), Texts{});
  Type("txtPipeLength", "12.5");
  EXPECT_EQ(Rows()[12][4], "200");
  // No Sch120 below 2 in (JIS G 3459): the bore column shows the outside diameter.
  Pick("cboSchedule", Find<forms::ComboBox>("cboSchedule").IndexOf("Sch120"));
  EXPECT_EQ(Rows()[0], Texts({"1/8in", "10.5", "10.5", "", "", ""}));
  Pick("cboSchedule", 0);
  const double stainless = 7.93 / 7.85;
  const std::string carbon = Rows()[12][3];
  Pick("cbo配管材質", Find<forms::ComboBox>("cbo配管材質").IndexOf("SUS304"));
  EXPECT_NEAR(std::stod(Rows()[12][3]), stainless * std::stod(carbon), 0.02);
}

TEST_F(PipeWeight, MissingEntriesClearTheList) {
  EXPECT_EQ(Find<forms::ComboBox>("cboSchedule").Index(), 7);
  for (const char* list : {"cboSchedule", "cbo配管材質"}) {
    Type("txtPipeLength", "1");
    EXPECT_EQ(Rows().size(), 25U);
    Pick(list, -1);
    EXPECT_EQ(Rows().size(), 0U);
    Pick(list, 0);
    Type("txtPipeLength", "");
    EXPECT_EQ(Rows().size(), 0U);
  }
  EXPECT_EQ(TakeTexts(), Texts{});
}

TEST_F(PipeWeight, MaterialWithoutDensityIsTold) {
  for (std::size_t column = 2; column < 6; ++column) Materials().cells[0][0][column].clear();
  Type("txtPipeLength", "1");
  EXPECT_EQ(presenter.messages.shown.back().title, "配管重量");
  EXPECT_EQ(TakeTexts(), Texts{"材料データベースに密度推算式がありません。"});
  // A range that leaves 20 degC out is told for every pipe of the list, and then as a whole.
  Materials().cells[1][0][0] = "30";
  Pick("cbo配管材質", 1);
  EXPECT_EQ(TakeTexts().size(), 26U);
  bench.Window().Run("mnuMaterial");
  Choose("optMaterial(1)");
  Type("txtMaterialName", "新材料");
  bench.Forms().Show("frmPipeWeight");
  EXPECT_EQ(Text("cbo配管材質"), "新材料");
}

}  // namespace
}  // namespace sheets
