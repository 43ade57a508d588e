#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

#include "desk.h"
#include "desktop/theme.h"

namespace desktop {
namespace {

class PlainFields : public Desk {};

TEST_F(PlainFields, LabelShowsColourAndTakesClicks) {
  auto& sheet = ShowSheet();
  auto& label = Find<QLabel>(sheet, "lbl密度");
  int clicks = 0;
  sheet.lbl密度.onClick = [&] { ++clicks; };
  sheet.lbl密度.SetText("密度 <i>&");
  EXPECT_EQ(label.text(), QStringLiteral("密度 <i>&&"));  // a caption with a field shows one
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);

  auto& verdict = Find<QLabel>(sheet, "lbl永久圧損R");
  sheet.lbl永久圧損R.SetForeColor(forms::kRed);
  const QColor red = verdict.palette().color(QPalette::WindowText);
  EXPECT_GT(red.red(), red.green() + 80);
  sheet.lbl永久圧損R.SetForeColor(forms::kBlack);
  EXPECT_EQ(verdict.palette().color(QPalette::WindowText), Theme::Current().text);
}

TEST_F(PlainFields, LongResultIsNeverCut) {
  DemoDialog& dialog = ShowDialog();
  auto& label = Find<QLabel>(dialog, "lbl結果");
  dialog.lbl結果.SetText("123,456,789,012,345,678,901,234");
  QApplication::processEvents();
  const int textWidth = label.fontMetrics().horizontalAdvance(label.text());
  EXPECT_GE(label.width(), textWidth);
}

TEST_F(PlainFields, ButtonClicksByMouseSpaceAndEnter) {
  auto& sheet = ShowSheet();
  auto& button = Find<QPushButton>(sheet, "cmd計算");
  int clicks = 0;
  sheet.cmd計算.onClick = [&] { ++clicks; };
  QTest::mouseClick(&button, Qt::LeftButton);
  QTest::keyClick(&button, Qt::Key_Space);
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_EQ(clicks, 3);
  EXPECT_EQ(sheet.Focused(), &sheet.cmd計算);
  sheet.cmd計算.SetEnabled(false);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 3);
}

TEST_F(PlainFields, FrameDisablesAndHidesItsContents) {
  DemoDialog& dialog = ShowDialog();
  auto& frame = Find<QFrame>(dialog, "fra条件");
  auto& list = Find<QWidget>(dialog, "lst流体");
  dialog.fra条件.SetEnabled(false);
  EXPECT_FALSE(list.isEnabled());
  dialog.fra条件.SetVisible(false);
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(frame.isHidden());
}

TEST_F(PlainFields, ScrollBarKeepsItsRangeAndReportsMoves) {
  DemoDialog& dialog = ShowDialog();
  auto& bar = Find<QScrollBar>(dialog, "hsb倍率");
  int changes = 0;
  dialog.hsb倍率.onChange = [&] { ++changes; };
  QTest::keyClick(&bar, Qt::Key_Right);
  EXPECT_EQ(dialog.hsb倍率.Value(), 1);
  dialog.hsb倍率.SetValue(500);
  EXPECT_EQ(bar.value(), 100);
  EXPECT_EQ(changes, 2);
}

/// A column of fields with a bar beside it, above a table.
struct FieldsWithBar : forms::Form {
  FieldsWithBar() : Form("frmBar", "", forms::FormRole::kTool) {
    SetLayout(forms::Column(
        {forms::Row({forms::Table({{txtA}, {txtB}, {txtC}}), forms::Table({{VScroll1}})}),
         forms::Table({{grd表}})}));
  }
  forms::TextBox txtA{*this, "txtA"};
  forms::TextBox txtB{*this, "txtB"};
  forms::TextBox txtC{*this, "txtC"};
  forms::ScrollBar VScroll1{*this, "VScroll1", forms::ScrollBar::Direction::kVertical, 11};
  forms::Grid grd表{*this, "grd表", {{"A", 1000}}, 12};
};

TEST_F(PlainFields, UprightBarIsAsHighAsItsNeighbourAndGridShowsItsRows) {
  forms_.Provide("frmBar", [] { return std::make_unique<FieldsWithBar>(); });
  const forms::Form& form = forms_.Show("frmBar");
  QApplication::processEvents();
  const auto& first = Find<QWidget>(form, "txtA");
  const auto& last = Find<QWidget>(form, "txtC");
  EXPECT_GE(Find<QWidget>(form, "VScroll1").height(), last.geometry().bottom() - first.y());
  const auto& table = Find<QTableWidget>(form, "grd表");
  EXPECT_GE(table.viewport()->height(), 12 * table.verticalHeader()->defaultSectionSize());
}

TEST_F(PlainFields, GridPicksRows) {
  DemoDialog& dialog = ShowDialog();
  auto& table = Find<QTableWidget>(dialog, "grd一覧");
  int clicks = 0;
  dialog.grd一覧.onClick = [&] { ++clicks; };
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                    table.visualItemRect(table.item(1, 0)).center());
  EXPECT_EQ(dialog.grd一覧.SelectedRow(), 1);
  QTest::keyClick(&table, Qt::Key_Down);
  EXPECT_EQ(dialog.grd一覧.SelectedRow(), 2);
  EXPECT_EQ(clicks, 2);
  dialog.grd一覧.SetRows({{"80", "2.1", ""}});
  EXPECT_EQ(table.rowCount(), 1);
  EXPECT_EQ(table.item(0, 1)->text(), QStringLiteral("2.1"));
}

TEST_F(PlainFields, ProgressFollows) {
  DemoDialog& dialog = ShowDialog();
  auto& bar = Find<QProgressBar>(dialog, "prg進行");
  dialog.prg進行.SetMaximum(300);
  dialog.prg進行.SetValue(150);
  EXPECT_EQ(bar.maximum(), 300);
  EXPECT_EQ(bar.value(), 150);
}

// WCAG 2.1, success criterion 1.4.3: 4.5 to 1; its definition gives 21 for black on white.
TEST(Colours, StayReadableOnEveryGroundOfBothThemes) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-6);
  for (const Theme* theme : {&Theme::Light(), &Theme::Dark()}) {
    for (const QColor& ground : {theme->window, theme->card, theme->field, theme->fieldOff,
                                 theme->result, Ground(forms::kUnsaved, *theme)}) {
      for (const forms::Color color : {forms::kBlack, forms::kRed, forms::kMagenta, forms::kBlue,
                                       forms::kWhite, 0x00FF00, 0x808080}) {
        SCOPED_TRACE(ground.name().toStdString() + " " + std::to_string(color));
        EXPECT_GE(Contrast(Ink(color, *theme, ground), ground), 4.5);
      }
    }
    for (const QColor& ground : {theme->window, theme->card, theme->result}) {
      EXPECT_GE(Contrast(theme->caption, ground), 4.5);
      EXPECT_GE(Contrast(theme->faint, ground), 4.5);
    }
    EXPECT_GE(Contrast(theme->onAccent, theme->accent), 4.5);
  }
}

}  // namespace
}  // namespace desktop
