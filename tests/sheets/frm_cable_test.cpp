#include "sheets/frm_cable.h"

#include "common/text.h"
#include "sheets/duct_dialogues.h"
#include "shell/duct_commands.h"
#include "shell/duct_file.h"
#include "shell/page_frame.h"
#include "shell/page_recorder.h"
#include "shell/report.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class CableTest : public SheetTest {
 protected:
  CableTest() { shell::OpenSheet(bench.Space(), frmCable::kKind); }

  frmCable& Sheet() { return dynamic_cast<frmCable&>(*bench.Forms().Find(frmCable::kName)); }
  shell::DuctStore& Ducts() { return bench.Space().ducts; }

  void SetCable(int row, const std::string& diameter, const std::string& weight,
                const std::string& quantity, const std::string& name = "X") {
    Sheet().SetCable(row, {{}, name, "", "", diameter, weight, quantity});
  }
  Texts Weights() {
    Texts texts = {Text("lblUnitWeightSub"), Text("lblSumWeight")};
    for (const auto& label : Sheet().lblTotalWeight) texts.push_back(label->Text());
    return texts;
  }
  void AddToList(const std::string& name) {
    Sheet().txtTagNo.SetText(name);
    bench.Window().Run("mnuDuct");
    Click("cmdAdd");
  }
  void OpenSamples() {
    shell::OpenDuctListNamed(bench.Space(), ZEPHA_SOURCE_DIR "/samples/ducts.dct");
  }
};

TEST_F(CableTest, BeginsEmptyWithAUsualSpanAndTwoWorkers) {
  const auto check = [this] {
    for (const forms::Control* control : Sheet().Controls()) {
      const auto* const box = dynamic_cast<const forms::TextBox*>(control);
      const auto* const label = dynamic_cast<const forms::ResultLabel*>(control);
      if (box == nullptr && label == nullptr) continue;
      EXPECT_EQ(control->Text(), control == &Sheet().txtSpan     ? "5"
                                 : control == &Sheet().txt作業員 ? "2"
                                                                 : "")
          << control->Name();
    }
    EXPECT_EQ(Sheet().lbl撓み.ForeColor(), forms::kBlack);
    EXPECT_EQ(Sheet().lbl撓み.ToolTip(), "");
  };
  check();
  SetCable(3, "30", "1000", "40");
  Click("cmd計算");
  Click("cmdDuct初期化");
  check();
  EXPECT_TRUE(TakeTexts().empty());
}

// 20 cables of 20 mm and 1000 kg/km: 6283.2 mm2, 20 kg/m, 100 kg over 5 m. That wants 20944 mm2,
// so 250 x 150 with 2.3 mm plate: (250 - 4.6)(150 - 4.6) = 35681 mm2, filled to 17.6 %. Plate:
// 2 (20 + 150) + 250 - 9.2 = 580.8 mm, so 1335.8 mm2, 10.480 kg/m and 52 kg.
TEST_F(CableTest, SizesADuct) {
  SetCable(0, "20", "1000", "12");
  SetCable(7, "20", "1000", "8");
  Click("cmd計算");
  EXPECT_EQ(Text("lblTotalArea(0)"), "3,770");
  EXPECT_EQ(Text("lblWeight1(7)"), "8.0");
  EXPECT_EQ(Text("lblTotalWeight(0)"), "60.0");
  EXPECT_EQ(Text("lblSumArea"), "6,283");
  EXPECT_EQ(Text("lblUnitWeightSub"), "20.0");
  EXPECT_EQ(Text("lblSumWeight"), "100.0");
  EXPECT_EQ(Text("txtWidth"), "250");
  EXPECT_EQ(Text("txtHeight"), "150");
  EXPECT_EQ(Text("txtThickness"), "2.3");
  EXPECT_EQ(Text("txt折込"), "20");
  EXPECT_EQ(Text("lblDuctArea"), "35,681");
  EXPECT_EQ(Text("lbl占積率"), "17.6");
  EXPECT_EQ(Text("lblDuctWeight"), "52");
  EXPECT_EQ(Text("lbl区分"), "");
  EXPECT_TRUE(bench.Space().calcDone);
}

TEST_F(CableTest, DimensionsAndWorkersAreCheckedAtOnceTheSpanIsNot) {
  SetCable(0, "20", "1000", "20");
  Click("cmd計算");
  EXPECT_EQ(Sheet().lbl撓み.ForeColor(), forms::kRed);
  EXPECT_EQ(Sheet().lbl撓み.ToolTip(), "支持スパンの1/1000を超えています。");
  const std::string sag = Text("lbl撓み");
  Type("txtSpan", "2");
  EXPECT_EQ(Text("lbl撓み"), sag);
  EXPECT_NE(Text("lbl未計算"), "");
  Type("txt作業員", "1");
  EXPECT_NE(Text("lbl撓み"), sag);
  EXPECT_EQ(Text("lbl未計算"), "");
  EXPECT_EQ(Sheet().lbl撓み.ForeColor(), forms::kBlack);
  EXPECT_EQ(Sheet().lbl撓み.ToolTip(), "");
  Type("txtWidth", "600");
  Type("txtHeight", "299.9");
  EXPECT_EQ(Text("lbl区分"), "");
  Type("txtHeight", "300");
  EXPECT_EQ(Text("lbl区分"), "（セパレート型)");
  for (const char* const name : {"txtWidth", "txtHeight", "txt折込", "txtThickness"}) {
    Type(name, "");
  }
  EXPECT_EQ(Text("lblDuctArea"), "0");
  EXPECT_EQ(Text("lbl占積率"), "");
  EXPECT_EQ(Text("lbl撓み"), "");
  EXPECT_TRUE(TakeTexts().empty());
}

TEST_F(CableTest, OverflowLeavesNoResultsOfOtherInputs) {
  SetCable(0, "20", "1000", "20");
  Click("cmd計算");
  const auto shown = [this] {
    return Text("lblSumArea") + Text("lblSumWeight") + Text("lblDuctArea") + Text("lbl占積率") +
           Text("lblDuctWeight") + Text("lbl撓み");
  };
  const std::string results = shown();
  Type("txtWidth", "1e308");
  EXPECT_EQ(shown(), "");
  EXPECT_EQ(Sheet().lbl撓み.ToolTip(), "");
  Type("txtWidth", "250");
  EXPECT_EQ(shown(), results);
  Type("txt本数(0)", "1e308");
  Click("cmd計算");
  EXPECT_EQ(shown(), "");
  EXPECT_EQ(TakeTexts(), Texts(2, "オーバーフローしました。"));
}

TEST_F(CableTest, EnterWalksDownTheNumbersOfTheCables) {
  SetCable(0, "20", "1000", "20");
  SetCable(1, "20", "1000", "20");
  Sheet().txt本数[0].PressKey(U'\r');
  EXPECT_EQ(Sheet().Focused(), &Sheet().txt本数[1]);
  Sheet().txt本数[1].PressKey(U'\r');
  EXPECT_EQ(Sheet().Focused(), &Sheet().cmd編集[2]);
}

TEST_F(CableTest, RowsWithoutNameOrQuantityAddNothing) {
  SetCable(0, "20", "1000", "10");
  SetCable(1, "20", "1000", "10");
  Click("cmd計算");
  Type("txt本数(0)", "0");
  SetCable(2, "20", "1000", "10", "");
  SetCable(3, "20", "1000", "10", "  ");
  SetCable(4, "20", "1000", "");
  Click("cmd計算");
  EXPECT_EQ(Text("lblTotalArea(0)"), "3,142");  // of before
  EXPECT_EQ(Text("lblTotalArea(2)"), "");
  EXPECT_EQ(Text("lblSumArea"), "3,142");
  EXPECT_EQ(Text("lblSumWeight"), "50.0");
}

// Figures of the shipped cable data.
TEST_F(CableTest, EditorLooksCablesUp) {
  Find("lblCable(4)").Click();
  Choose("Opt種類(0)");
  Pick("cboCable", 0);
  Pick("cbo芯数", 11);
  EXPECT_EQ(Text("txtCableDia"), "");
  Pick("cboSize", 2);
  const std::string dia = Text("txtCableDia");
  EXPECT_NE(dia, "");
  Pick("cboCable", 1);  // pairs, of which there is no twelfth: to be chosen anew
  EXPECT_EQ(Text("cbo芯数"), "");
  EXPECT_EQ(Text("txtCableDia"), "");
  EXPECT_EQ(Find<forms::ComboBox>("cbo芯数").Count(), 11);
  Pick("cbo芯数", 0);
  EXPECT_NE(Text("txtCableDia"), "");
  Choose("Opt種類(2)");
  EXPECT_EQ(Text("txtCableDia"), "");
  Pick("cbo芯数", 5);
  Type("txt本数", "3");
  Click("cmdOK");
  EXPECT_EQ(Text("lblCable(4)"), "被覆銅管");
  EXPECT_EQ(Text("lbl芯数(4)"), "10本");
  EXPECT_EQ(Text("lblSize(4)"), "6/4");
  EXPECT_EQ(Text("txt本数(4)"), "3");
  Click("cmd計算");
  EXPECT_NE(Text("lblTotalArea(4)"), "");
  Click("cmd編集(4)");
  EXPECT_TRUE(Find<forms::OptionButton>("Opt種類(2)").Checked());
  EXPECT_EQ(Find<forms::ComboBox>("cbo芯数").Index(), 5);
  EXPECT_EQ(Text("lbl芯数"), "10本");
  Click("cmdOK");
  EXPECT_EQ(Text("lblTotalArea(4)"), "");
  Click("cmd編集(4)");
  Click("cmdErase");
  EXPECT_EQ(Text("lblCable(4)") + Text("lblCableDia(4)") + Text("txt本数(4)"), "");
}

TEST_F(CableTest, EditorTakesWhatIsTyped) {
  Click("cmd編集(0)");
  Choose("Opt種類(3)");
  Find<forms::ComboBox>("cboCable").SetText("CVV     ");
  Type("txtCableDia", "9.9");
  Type("txtUnitWeight", "100");
  Click("cmdOK");
  Click("cmd編集(0)");
  EXPECT_TRUE(Find<forms::OptionButton>("Opt種類(3)").Checked());
  EXPECT_EQ(Text("txtCableDia"), "9.9");
  Type("txtCableDia", "12");
  Click("cmdCancel");
  EXPECT_EQ(Text("lblCableDia(0)"), "9.9");
}

TEST_F(CableTest, SizesAreChosenFromWhatDuctsAreMadeIn) {
  Type("txtWidth", "350");
  Type("txtHeight", "200");
  Find("txtWidth").RightClick();
  EXPECT_EQ(Find<forms::ListBox>("lstWidth").Index(), -1);
  EXPECT_EQ(Find<forms::ListBox>("lstHeight").Text(), "200");
  Find<forms::ListBox>("lstThickness").Pick(1);
  Find<forms::ListBox>("lst折込").Pick(0);
  Click("cmdOK");
  EXPECT_EQ(Text("txtWidth"), "350");
  EXPECT_EQ(Text("txtThickness"), "2.3");
  EXPECT_EQ(Text("txt折込"), "15");
  EXPECT_EQ(Text("lblDuctArea"), "67,491");  // (350 - 4.6)(200 - 4.6)
}

TEST_F(CableTest, DuctComesBackFromTheListAsItWas) {
  OpenSamples();
  for (int row = 0; row < Ducts().DuctCount(); ++row) {
    SCOPED_TRACE(Ducts().Row(row)[0]);
    bench.Window().Run("mnuDuct");
    Pick("lstDuct", row);
    DblClick("lstDuct");
    EXPECT_EQ(bench.Forms().Active(), &Sheet());
    EXPECT_EQ(Sheet().Record(), Ducts().Row(row));
    // Weights and sums, which the file does not hold, are those of a calculation.
    const Texts recalled = Weights();
    const std::string width = Text("txtWidth");
    Type("txtWidth", "1");
    Type("txtWidth", width);
    EXPECT_EQ(Sheet().Record(), Ducts().Row(row));
    EXPECT_EQ(Weights(), recalled);
  }
  EXPECT_FALSE(Ducts().ductModified);
  // The editor finds the cable in its lists again.
  Click("cmd編集(0)");
  EXPECT_TRUE(Find<forms::OptionButton>("Opt種類(0)").Checked());
  EXPECT_EQ(Find<forms::ComboBox>("cboCable").Index(), 1);
}

TEST_F(CableTest, StoredColourAndHostileRowsAreBorne) {
  shell::DuctRow row;
  row.fill("1e999");
  row[shell::kDuctName] = "X";
  row[shell::kDuctSagColor] = "99999999999";
  shell::DuctRow red;
  red[shell::kDuctName] = "Y";
  red[shell::kDuctSagColor] = "255";
  red[shell::kDuctSag] = "9.9";
  Ducts().TakeRows({row, red});
  bench.Window().Run("mnuDuct");
  Click("cmdSend");
  EXPECT_EQ(TakeTexts(), Texts({"オーバーフローしました。"}));
  EXPECT_EQ(Sheet().lbl撓み.ForeColor(), forms::kBlack);
  bench.Window().Run("mnuDuct");
  Pick("lstDuct", 1);
  Click("cmdSend");
  EXPECT_EQ(Sheet().lbl撓み.ForeColor(), forms::kRed);
  EXPECT_EQ(Sheet().lbl撓み.ToolTip(), "支持スパンの1/1000を超えています。");
  EXPECT_EQ(Text("lblSumWeight"), "0.0");
}

TEST_F(CableTest, ListGoesWithTheSheetAndOpensIt) {
  AddToList("A");
  AddToList("B");
  EXPECT_EQ(Find<forms::ListBox>("lstDuct").Items(), Texts({"A", "B"}));
  Click("cmdUp");
  Click("cmdDelete");
  EXPECT_EQ(Find<forms::ListBox>("lstDuct").Items(), Texts({"A"}));
  Find<forms::ListBox>("lstDuct").Pick(0);
  Sheet().cmd断面図.Click();
  bench.Forms().Unload(Sheet());
  EXPECT_TRUE(bench.Forms().Open().empty());
  EXPECT_EQ(bench.Space().activeSheetKind, "");
  bench.Window().Run("mnuDuct");
  EXPECT_EQ(bench.Forms().Active()->Caption(), "Duct List:New File");
  Click("cmdAdd");
  EXPECT_EQ(TakeTexts(), Texts({"ケーブルダクトサイジングの画面が開かれていません。"}));
  Click("cmdSend");
  EXPECT_EQ(Text("txtTagNo"), "A");
  EXPECT_EQ(bench.Space().activeSheetKind, "CableDuct");
}

TEST_F(CableTest, PageHoldsTwentyCablesInItsFrame) {
  const shell::PageGeometry frame;
  for (int row = 0; row < frmCable::kRows; ++row) {
    SetCable(row, "100.5", "12345", "9999", row % 2 == 0 ? "CVV     " : "とても長いケーブルの名称");
  }
  Click("cmd計算");
  shell::PageRecorder page;
  ASSERT_TRUE(shell::PrintSheet(bench.Space(), page));
  int rows = 0;
  bool titled = false;
  for (const auto& item : page.Items()) {
    const auto* const text = std::get_if<shell::PageRecorder::TextItem>(&item);
    if (text == nullptr) continue;
    SCOPED_TRACE(text->text);
    EXPECT_LE(text->x + shell::FixedTextWidth(text->text, text->size), frame.right);
    EXPECT_LE(text->y + text->size * 20, frame.footTop);
    if (text->text.find("9999") != std::string::npos) {
      ++rows;
      EXPECT_EQ(common::Cp932Length(text->text), 85);
      EXPECT_EQ(text->size, shell::kBodySize);
    }
    titled = titled || text->text == "ＣＡＢＬＥ－ＤＵＣＴ　ＳＩＺＩＮＧ ＳＨＥＥＴ";
  }
  EXPECT_EQ(rows, frmCable::kRows);
  EXPECT_TRUE(titled);
}

}  // namespace
}  // namespace sheets
