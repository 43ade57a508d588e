#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>

#include "desk.h"
#include "desktop/theme.h"

namespace desktop {
namespace {

class Choices : public Desk {};

TEST_F(Choices, ComboPicksByKeyAndNotByWheel) {
  auto& sheet = ShowSheet();
  auto& combo = Find<QComboBox>(sheet, "cbo圧力単位");
  int clicks = 0;
  sheet.cbo圧力単位.onClick = [&] { ++clicks; };
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(sheet.cbo圧力単位.Index(), 1);
  Wheel(combo);
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(clicks, 1);
  sheet.cbo圧力単位.SetIndex(3);
  EXPECT_EQ(combo.currentText(), QString::fromStdString(sheet.cbo圧力単位.Items()[3]));
  sheet.cbo圧力単位.SetItems({"bar"});
  EXPECT_EQ(combo.count(), 1);
  EXPECT_EQ(combo.currentIndex(), -1);
}

TEST_F(Choices, ComboReportsAPickOfTheSelectedEntryOnce) {
  auto& sheet = ShowSheet();
  auto& combo = Find<QComboBox>(sheet, "cbo温度単位");
  int clicks = 0;
  sheet.cbo温度単位.onClick = [&] { ++clicks; };
  emit combo.activated(0);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Choices, EditableComboTakesTexts) {
  DemoDialog& dialog = ShowDialog();
  auto& combo = Find<QComboBox>(dialog, "cbo名称");
  QTest::keyClicks(combo.lineEdit(), QStringLiteral("abc"));
  EXPECT_EQ(dialog.cbo名称.Text(), "abc");
  EXPECT_EQ(dialog.cbo名称.Index(), -1);
  dialog.cbo名称.SetText("空気");
  EXPECT_EQ(combo.currentText(), QStringLiteral("空気"));
  EXPECT_EQ(dialog.cbo名称.Index(), 1);
}

TEST_F(Choices, OneOfShowsTheVisibleControlInTheSamePlace) {
  auto& sheet = ShowSheet();
  auto& liquid = Find<QComboBox>(sheet, "cbo流量単位L");
  auto& gas = Find<QComboBox>(sheet, "cbo流量単位G");
  EXPECT_TRUE(liquid.isVisible());
  EXPECT_FALSE(gas.isVisible());
  const QRect place = liquid.geometry();
  auto& fluid = Find<QComboBox>(sheet, "cbo流体");
  fluid.setFocus();
  QTest::keyClick(&fluid, Qt::Key_Down);
  QApplication::processEvents();
  EXPECT_FALSE(liquid.isVisible());
  EXPECT_TRUE(gas.isVisible());
  EXPECT_EQ(gas.geometry(), place);
}

TEST_F(Choices, OptionsExcludeEachOtherByMouseKeyAndCode) {
  auto& sheet = ShowSheet();
  auto& toBore = Find<QRadioButton>(sheet, "opt差圧→絞り径");
  auto& toDifferential = Find<QRadioButton>(sheet, "opt絞り径→差圧");
  int clicks = 0;
  sheet.opt絞り径_差圧.onClick = [&] { ++clicks; };
  QTest::mouseClick(&toDifferential, Qt::LeftButton, {}, {8, toDifferential.height() / 2});
  EXPECT_TRUE(sheet.opt絞り径_差圧.Checked());
  EXPECT_FALSE(sheet.opt差圧_絞り径.Checked());
  EXPECT_FALSE(toBore.isChecked());
  EXPECT_EQ(clicks, 1);
  QTest::keyClick(&toDifferential, Qt::Key_Left);
  EXPECT_TRUE(sheet.opt差圧_絞り径.Checked());
  sheet.opt差圧_絞り径.SetChecked(false);
  EXPECT_FALSE(toBore.isChecked());
  EXPECT_FALSE(toDifferential.isChecked());
}

TEST_F(Choices, CheckBoxFollowsBothWays) {
  DemoDialog& dialog = ShowDialog();
  auto& check = Find<QCheckBox>(dialog, "chkドレン");
  QTest::keyClick(&check, Qt::Key_Space);
  EXPECT_TRUE(dialog.chkドレン.Checked());
  dialog.chkドレン.SetChecked(false);
  EXPECT_FALSE(check.isChecked());
}

TEST_F(Choices, ListPicksByKeyAndMouse) {
  DemoDialog& dialog = ShowDialog();
  auto& list = Find<QListWidget>(dialog, "lst流体");
  int clicks = 0;
  int doubles = 0;
  dialog.lst流体.onClick = [&] { ++clicks; };
  dialog.lst流体.onDblClick = [&] { ++doubles; };
  const QPoint second = list.visualItemRect(list.item(1)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(dialog.lst流体.Text(), " メタノール");
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(dialog.lst流体.Index(), 2);
  EXPECT_EQ(clicks, 2);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, second);
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(doubles, 1);
  EXPECT_EQ(clicks, 3);  // its second click picks nothing
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(clicks, 4);
  dialog.lst流体.onEnter = [&] {
    dialog.lst流体.SetItems({"x", "y", "z"});
    dialog.lst流体.SetIndex(0);
  };
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(dialog.lst流体.Index(), 0);
  EXPECT_EQ(clicks, 5);  // by its new selection, not by the key
  dialog.lst流体.SetItems({"a", "b"});
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.currentRow(), -1);
}

TEST_F(Choices, RightButtonTakesTheLineUnderItAlong) {
  DemoDialog& dialog = ShowDialog();
  auto& list = Find<QListWidget>(dialog, "lst流体");
  int lineOfCommand = -1;
  dialog.lst流体.onRightClick = [&] { lineOfCommand = dialog.lst流体.Index(); };
  const QPoint second = list.visualItemRect(list.item(1)).center();
  QTest::mousePress(list.viewport(), Qt::RightButton, {}, second);
  QContextMenuEvent event(QContextMenuEvent::Mouse, second, list.viewport()->mapToGlobal(second));
  QApplication::sendEvent(list.viewport(), &event);
  EXPECT_EQ(lineOfCommand, 1);
}

TEST_F(Choices, FixedPitchListKeepsItsColumns) {
  commands_.DropFile(ZEPHA_SOURCE_DIR "/samples/plant.zph");
  const forms::Form& tool = forms_.Show("frmTagList");
  QApplication::processEvents();
  auto& list = Find<QListWidget>(tool, "lstTagNo");
  QWidget& window = *presenter_.ViewOf(tool)->window();
  for (const double share : {0.6, 1.0, 1.17, 1.5}) {
    SCOPED_TRACE(share);
    window.resize(window.size() * share);
    QApplication::processEvents();
    const QFontMetricsF metrics(list.font());
    const double wide = metrics.horizontalAdvance(QString(20, QChar(0x6E2C)));
    const double half = metrics.horizontalAdvance(QString(20, QChar(0xFF76)));
    const double digits = metrics.horizontalAdvance(QString(40, QLatin1Char('0')));
    EXPECT_NEAR(wide, digits, 0.01);
    EXPECT_NEAR(wide, 2 * half, 0.01);
    EXPECT_GE(list.viewport()->width(), digits);
    EXPECT_GE(list.viewport()->height(), 16 * list.visualItemRect(list.item(0)).height());
  }
  EXPECT_EQ(list.fontInfo().family(), FixedFamily());
}

TEST_F(Choices, TabsFollowBothWaysAndKeepAmpersands) {
  DemoDialog& dialog = ShowDialog();
  auto& tabs = Find<QTabBar>(dialog, "tab種類");
  EXPECT_EQ(tabs.tabText(1), QStringLiteral("気体 && 蒸気"));
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
  EXPECT_EQ(dialog.tab種類.Index(), 1);
  Wheel(tabs);
  dialog.tab種類.SetIndex(0);
  EXPECT_EQ(tabs.currentIndex(), 0);
}

/// More tabs than a row has room for.
struct ManyTabs : forms::Form {
  ManyTabs() : Form("frmManyTabs", "流体", forms::FormRole::kTool) {
    std::vector<std::string> names;
    names.reserve(50);
    for (int i = 0; i < 50; ++i) names.push_back("流体" + std::to_string(i));
    tab流体.SetItems(std::move(names));
    SetLayout(forms::Table({{tab流体}}));
  }
  forms::TabStrip tab流体{*this, "tab流体", forms::TabStrip::Side::kLeft};
};

TEST_F(Choices, TabsAtTheLeftAreLinesAndFollowBothWays) {
  forms_.Provide("frmManyTabs", [] { return std::make_unique<ManyTabs>(); });
  auto& form = dynamic_cast<ManyTabs&>(forms_.Show("frmManyTabs"));
  QApplication::processEvents();
  auto& lines = Find<QListWidget>(form, "tab流体");
  int clicks = 0;
  form.tab流体.onClick = [&] { ++clicks; };
  ASSERT_EQ(lines.count(), 50);
  QTest::mouseClick(lines.viewport(), Qt::LeftButton, {},
                    lines.visualItemRect(lines.item(2)).center());
  EXPECT_EQ(form.tab流体.Index(), 2);
  QTest::keyClick(&lines, Qt::Key_End);
  EXPECT_EQ(form.tab流体.Index(), 49);
  EXPECT_EQ(clicks, 2);
  form.tab流体.SetIndex(30);
  EXPECT_EQ(lines.currentRow(), 30);
  EXPECT_TRUE(lines.viewport()->rect().intersects(lines.visualItemRect(lines.item(30))));
  form.tab流体.SetItem(30, "別名");
  EXPECT_EQ(lines.item(30)->text(), QStringLiteral("別名"));
}

}  // namespace
}  // namespace desktop
