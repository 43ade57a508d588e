#include "forms/form.h"

#include <gtest/gtest.h>

#include "common/real.h"
#include "forms/controls.h"
#include "tests/support/recording_presenter.h"

namespace forms {
namespace {

/// A small form with one control of most kinds, which logs its events.
class LogForm : public Form {
 public:
  Label lblName{*this, "lblName", "名称"};
  TextBox txtName{*this, "txtName", AnyKey, 26};
  TextBox txtFlow{*this, "txtFlow", NumberKeys};
  TextBox txtTemperature{*this, "txtTemperature", SignedNumberKeys};
  ComboBox cboUnit{*this, "cboUnit", {"kPa", "MPa", "psi"}};
  ComboBox cboMaterial{*this, "cboMaterial", {"SUS304", "SUS316"}, ComboBox::Style::kEditable};
  OptionButton optWet{*this, "optWet", "Wet", "base"};
  OptionButton optDry{*this, "optDry", "Dry", "base"};
  OptionButton optOther{*this, "optOther", "Other", "mode"};
  CheckBox chkShow{*this, "chkShow", "Show"};
  ListBox lstItems{*this, "lstItems"};
  ScrollBar VScroll1{*this, "VScroll1", ScrollBar::Direction::kVertical, 11};
  Button cmdOK{*this, "cmdOK", "OK"};
  ControlArray<ResultLabel> lblValue{*this, "lblValue", 3};
  std::vector<std::string> log;

  LogForm() : Form("frmLog", "Log", FormRole::kSheet) {
    const auto logged = [this](const char* event) {
      return [this, event] { log.emplace_back(event); };
    };
    txtName.onChange = logged("txtName_Change");
    txtFlow.onChange = logged("txtFlow_Change");
    cboUnit.onClick = logged("cboUnit_Click");
    cboMaterial.onClick = logged("cboMaterial_Click");
    cboMaterial.onChange = logged("cboMaterial_Change");
    optWet.onClick = logged("optWet_Click");
    optDry.onClick = logged("optDry_Click");
    chkShow.onClick = logged("chkShow_Click");
    lstItems.onClick = logged("lstItems_Click");
    VScroll1.onChange = logged("VScroll1_Change");
    SetLayout(Column({
        Table({{lblName, txtName},
               {"流量", txtFlow, Cell::OneOf({&cboUnit, &cboMaterial})},
               {"温度", txtTemperature}}),
        Row({Table({{optWet, optDry, optOther, chkShow}}), Table({{lstItems, VScroll1}})}),
        Buttons({{}, cmdOK}),
    }));
  }

  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
};

using Log = std::vector<std::string>;

TEST(Events, FireOnceAndOnlyOnChange) {
  LogForm form;
  form.txtName.SetText("FT-101");
  form.txtName.SetText("FT-101");
  form.txtName.Type("FT-102");
  EXPECT_EQ(form.TakeLog(), Log({"txtName_Change", "txtName_Change"}));

  form.cboUnit.SetIndex(1);
  form.cboUnit.SetIndex(1);
  EXPECT_EQ(form.TakeLog(), Log({"cboUnit_Click"}));
  form.cboUnit.Pick(1);  // a pick of the user counts even if nothing changes
  EXPECT_EQ(form.TakeLog(), Log({"cboUnit_Click"}));
  EXPECT_EQ(form.cboUnit.Text(), "MPa");

  form.chkShow.SetChecked(false);
  form.chkShow.Choose();
  form.chkShow.Choose();
  EXPECT_EQ(form.TakeLog(), Log({"chkShow_Click", "chkShow_Click"}));
  EXPECT_FALSE(form.chkShow.Checked());

  form.VScroll1.SetValue(99);
  form.VScroll1.SetValue(11);
  EXPECT_EQ(form.VScroll1.Value(), 11);
  EXPECT_EQ(form.TakeLog(), Log({"VScroll1_Change"}));
}

TEST(Events, AreHeldBackWhileTheFormIsQuiet) {
  LogForm form;
  {
    const Form::Quiet quiet(form);
    form.txtFlow.SetText("1");
    form.cboUnit.SetIndex(2);
    form.optWet.SetChecked(true);
  }
  EXPECT_EQ(form.TakeLog(), Log());
  EXPECT_EQ(form.cboUnit.Text(), "psi");
  form.txtFlow.SetText("2");
  EXPECT_EQ(form.TakeLog(), Log({"txtFlow_Change"}));
}

TEST(OptionButtons, ExcludeTheOthersOfTheirGroup) {
  LogForm form;
  form.optOther.SetChecked(true);
  form.optWet.Choose();
  form.optDry.SetChecked(true);
  EXPECT_FALSE(form.optWet.Checked());
  EXPECT_TRUE(form.optOther.Checked());
  EXPECT_EQ(form.TakeLog(), Log({"optWet_Click", "optDry_Click"}));
}

TEST(ComboBox, EditableTakesAnyTextAndFindsTheEntryOfIt) {
  LogForm form;
  form.cboMaterial.SetText("SUS316");
  EXPECT_EQ(form.cboMaterial.Index(), 1);
  form.cboMaterial.SetText("Inconel");
  EXPECT_EQ(form.cboMaterial.Index(), -1);
  EXPECT_EQ(form.cboMaterial.Text(), "Inconel");
  EXPECT_EQ(form.TakeLog(), Log({"cboMaterial_Change", "cboMaterial_Change"}));
  form.cboUnit.SetText("no such unit");
  EXPECT_EQ(form.cboUnit.Index(), -1);
}

TEST(Lists, SelectionFollowsTheirTexts) {
  LogForm form;
  form.lstItems.SetItems({"a", "b", "c"});
  form.lstItems.SetIndex(1);
  form.lstItems.SetItem(1, "new");
  EXPECT_EQ(form.lstItems.Text(), "new");
  form.lstItems.SetItems({"a", "b"});
  EXPECT_EQ(form.lstItems.Index(), -1);
  EXPECT_EQ(form.lstItems.Text(), "");
  EXPECT_THROW(form.lstItems.SetIndex(2), common::RuntimeFault);
  EXPECT_THROW(form.lstItems.SetItem(-1, "x"), common::RuntimeFault);
}

TEST(TextBox, FiltersKeysWithABeep) {
  LogForm form;
  tests::RecordingPresenter presenter;
  form.SetPresenter(&presenter);
  const struct {
    TextBox& box;
    char32_t key;
    bool passes;
  } rows[] = {{form.txtFlow, U'1', true},         {form.txtFlow, U'/', true},
              {form.txtFlow, U'.', true},         {form.txtFlow, U'-', false},
              {form.txtFlow, U',', false},        {form.txtFlow, U'a', false},
              {form.txtFlow, U'\b', true},        {form.txtTemperature, U'-', true},
              {form.txtTemperature, U'+', false}, {form.txtName, U'流', true}};
  int refused = 0;
  for (const auto& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.key));
    EXPECT_EQ(row.box.PressKey(row.key), row.passes);
    refused += row.passes ? 0 : 1;
  }
  EXPECT_EQ(presenter.beeps, refused);
}

TEST(TextBox, KeepsItsByteLimit) {
  LogForm form;
  form.txtName.SetText(std::string(26, 'x'));
  EXPECT_FALSE(form.txtName.PressKey(U'y'));
  form.txtName.SetText(std::string(25, 'x'));
  EXPECT_TRUE(form.txtName.PressKey(U'あ'));
  // An input method delivers several characters at once.
  form.txtName.Type(std::string(25, 'x') + "あいう");
  EXPECT_EQ(form.txtName.Text(), std::string(25, 'x') + "あ");
}

TEST(TextBox, UndoTogglesTheLastEdit) {
  LogForm form;
  form.txtFlow.SetText("100");
  form.txtFlow.Type("200");
  form.txtFlow.Undo();
  EXPECT_EQ(form.txtFlow.Text(), "100");
  form.txtFlow.Undo();
  EXPECT_EQ(form.txtFlow.Text(), "200");
  form.txtFlow.SetText("300");
  form.txtFlow.Undo();
  EXPECT_EQ(form.txtFlow.Text(), "300");
}

TEST(Focus, EnterWalksInReadingOrderOverWhatIsUsable) {
  LogForm form;
  tests::RecordingPresenter presenter;
  form.SetPresenter(&presenter);
  form.cboMaterial.SetVisible(false);
  form.txtTemperature.SetEnabled(false);
  form.optDry.SetChecked(true);
  form.SetFocus(form.txtName);
  for (TextBox* box : {&form.txtName, &form.txtFlow}) box->PressKey(U'\r');
  form.cboUnit.PressEnter();
  EXPECT_EQ(presenter.events,
            Log({"focus txtName", "focus txtFlow", "focus cboUnit", "focus optDry"}));
  form.SetFocus(form.txtTemperature);  // disabled: the focus stays
  EXPECT_EQ(form.Focused(), &form.optDry);
}

TEST(Focus, TellsTheControlThatLosesIt) {
  LogForm form;
  form.txtFlow.onLostFocus = [&form] { form.log.emplace_back("txtFlow_LostFocus"); };
  form.txtName.onGotFocus = [&form] { form.log.emplace_back("txtName_GotFocus"); };
  form.SetFocus(form.txtFlow);
  form.SetFocus(form.txtName);
  EXPECT_EQ(form.TakeLog(), Log({"txtFlow_LostFocus", "txtName_GotFocus"}));
}

TEST(Faults, EndTheOutermostEventWithTheirText) {
  LogForm form;
  tests::RecordingPresenter presenter;
  form.SetPresenter(&presenter);
  form.txtFlow.onChange = [] { common::RaiseFault(common::Fault::kDivisionByZero); };
  form.cmdOK.onClick = [&form] {
    form.txtFlow.SetText("5");  // its handler's fault ends this one, too
    form.log.emplace_back("not reached");
  };
  form.cmdOK.Click();
  EXPECT_EQ(form.TakeLog(), Log());
  EXPECT_EQ(presenter.messages.Texts(), Log({"0 で除算しました。"}));
  form.cmdOK.onClick = [&form] { form.log.emplace_back("alive"); };
  form.cmdOK.Click();
  EXPECT_EQ(form.TakeLog(), Log({"alive"}));
}

TEST(Form, KnowsItsControlsByName) {
  LogForm form;
  EXPECT_EQ(form.Find("lblValue(2)"), &form.lblValue[2]);
  EXPECT_EQ(form.Find("txtNone"), nullptr);
  EXPECT_THROW(form.lblValue[3], std::out_of_range);
  EXPECT_THROW(TextBox(form, "txtName"), std::logic_error);
  EXPECT_EQ(form.Told().NameOf(form.txtName), "名称");
  EXPECT_EQ(form.Told().NameOf(form.txtFlow), "流量");
}

TEST(Changes, AreToldToThePresenterOnce) {
  LogForm form;
  tests::RecordingPresenter presenter;
  form.SetPresenter(&presenter);
  form.lblName.SetForeColor(kRed);
  form.lblName.SetForeColor(kRed);
  form.txtFlow.SetEnabled(false);
  form.txtFlow.SetEnabled(false);
  form.cboUnit.SetIndex(0);
  EXPECT_EQ(presenter.changed, Log({"lblName", "txtFlow", "cboUnit"}));
}

}  // namespace
}  // namespace forms
