#include "shell/form_manager.h"

#include <gtest/gtest.h>

#include "forms/controls.h"
#include "tests/support/recording_presenter.h"

namespace shell {
namespace {

using Log = std::vector<std::string>;

class SmallForm : public forms::Form {
 public:
  forms::Button cmdClose{*this, "cmdClose", "閉じる"};

  SmallForm(FormManager& manager, std::string name, forms::FormRole role, Log& log)
      : Form(std::move(name), "caption", role), log_(log) {
    cmdClose.onClick = [this, &manager] {
      manager.Unload(*this);
      log_.push_back("after " + Name());  // the form must still be there
    };
    SetLayout(forms::Table({{cmdClose}}));
  }
  ~SmallForm() override { log_.push_back("destroy " + Name()); }
  void Load() override { log_.push_back("load " + Name()); }
  void Activate() override { log_.push_back("activate " + Name()); }
  void Unload() override { log_.push_back("unload " + Name()); }

 private:
  Log& log_;
};

class FormManagerTest : public testing::Test {
 protected:
  FormManagerTest() {
    Provide("frmA", forms::FormRole::kSheet);
    Provide("frmB", forms::FormRole::kSheet);
    Provide("frmTool", forms::FormRole::kTool);
  }
  void Provide(const std::string& name, forms::FormRole role) {
    manager.Provide(
        name, [this, name, role] { return std::make_unique<SmallForm>(manager, name, role, log); });
  }
  Log TakeLog() { return std::exchange(log, {}); }

  tests::RecordingPresenter presenter;
  Log log;
  FormManager manager{presenter};
};

TEST_F(FormManagerTest, LoadsShowsAndActivatesInOrder) {
  manager.Show("frmA");
  EXPECT_EQ(TakeLog(), Log({"load frmA", "activate frmA"}));
  manager.Show("frmB");
  manager.Show("frmA");
  EXPECT_EQ(TakeLog(), Log({"load frmB", "activate frmB", "activate frmA"}));
  EXPECT_EQ(presenter.events, Log({"show frmA", "show frmB", "raise frmA"}));
  EXPECT_EQ(manager.Active(), manager.Find("frmA"));
  EXPECT_THROW(manager.Show("frmNone"), std::logic_error);
}

TEST_F(FormManagerTest, DestroysAFormAfterTheEventThatClosedIt) {
  auto& form = dynamic_cast<SmallForm&>(manager.Show("frmTool"));
  TakeLog();
  form.cmdClose.Click();
  EXPECT_EQ(TakeLog(), Log({"unload frmTool", "after frmTool"}));
  EXPECT_EQ(manager.Find("frmTool"), nullptr);
  manager.CollectClosed();
  EXPECT_EQ(TakeLog(), Log({"destroy frmTool"}));
}

TEST_F(FormManagerTest, SheetBelowTakesOverWhenTheTopOneGoes) {
  manager.Show("frmA");
  manager.Show("frmB");
  TakeLog();
  manager.Unload(*manager.Find("frmB"));
  EXPECT_EQ(TakeLog(), Log({"unload frmB", "activate frmA"}));
  EXPECT_EQ(manager.ActiveSheet(), manager.Find("frmA"));
}

TEST_F(FormManagerTest, ToolDoesNotCountAsTheActiveSheet) {
  manager.Show("frmA");
  manager.Show("frmTool");
  EXPECT_EQ(manager.Active()->Name(), "frmTool");
  EXPECT_EQ(manager.ActiveSheet()->Name(), "frmA");
  manager.UnloadAll();
  EXPECT_EQ(manager.Active(), nullptr);
}

}  // namespace
}  // namespace shell
