#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "common/fault.h"
#include "desk.h"

namespace desktop {
namespace {

class TextField : public Desk {
 protected:
  sheets::frmOrifice& sheet_ = ShowSheet();
  QLineEdit& flow_ = Find<QLineEdit>(sheet_, "txt目盛流量");
  QLineEdit& tag_ = Find<QLineEdit>(sheet_, "txtTagNo");
};

TEST_F(TextField, TakesTheKeysOfItsFilterAndBeepsAtOthers) {
  const struct {
    const char* field;
    const char* keys;
    const char* text;
    int beeps;
  } rows[] = {{"txt目盛流量", "12.5", "12.5", 0}, {"txt目盛流量", "1/2", "1/2", 0},
              {"txt目盛流量", "-1x2", "12", 2},   {"txt温度", "-40", "-40", 0},
              {"txt温度", "4e1", "41", 1},        {"txtTagNo", "FT-101 a&b", "FT-101 a&b", 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.keys);
    auto& edit = Find<QLineEdit>(sheet_, row.field);
    sheet_.Find(row.field)->SetText("");
    presenter_.beeps = 0;
    QTest::keyClicks(&edit, QString::fromUtf8(row.keys));
    EXPECT_EQ(sheet_.Find(row.field)->Text(), row.text);
    EXPECT_EQ(edit.text().toStdString(), row.text);
    EXPECT_EQ(presenter_.beeps, row.beeps);
  }
}

TEST_F(TextField, FiresOneChangeForEachKeyAndForTextsFromCode) {
  int changes = 0;
  sheet_.txt目盛流量.onChange = [&] { ++changes; };
  flow_.setFocus();
  QTest::keyClicks(&flow_, QStringLiteral("120"));
  EXPECT_EQ(changes, 3);
  sheet_.txt目盛流量.SetText("85");
  EXPECT_EQ(changes, 4);
  EXPECT_EQ(flow_.text(), QStringLiteral("85"));
  QTest::keyClick(&flow_, Qt::Key_Backspace);
  EXPECT_EQ(changes, 5);
}

TEST_F(TextField, EnterWalksToTheNextFieldThatCanTakeTheFocus) {
  flow_.setFocus();
  EXPECT_EQ(sheet_.Focused(), &sheet_.txt目盛流量);
  const forms::Control* const walk[] = {&sheet_.cbo流量単位L, &sheet_.txt常用流量, &sheet_.txt圧力};
  for (const forms::Control* next : walk) {
    SCOPED_TRACE(next->Name());
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(sheet_.Focused(), next);
    EXPECT_EQ(window_->focusWidget()->objectName().toStdString(), next->Name());
  }
}

TEST_F(TextField, LetsShortcutsPassAndTogglesUndo) {
  QTest::keyClicks(&flow_, QStringLiteral("12"));
  QTest::keyClick(&flow_, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&flow_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("12"));
  QTest::keyClick(&flow_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(sheet_.txt目盛流量.Text(), "1");
  QTest::keyClick(&flow_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(flow_.text(), QStringLiteral("12"));
  QApplication::clipboard()->setText(QStringLiteral("abc"));
  flow_.selectAll();
  QTest::keyClick(&flow_, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(sheet_.txt目盛流量.Text(), "abc");
  EXPECT_EQ(presenter_.beeps, 0);
}

TEST_F(TextField, KeepsTheByteLimitForKeysAndInputMethods) {
  QTest::keyClicks(&tag_, QString(26, QLatin1Char('x')) + QLatin1String("y"));
  EXPECT_EQ(sheet_.txtTagNo.Text(), std::string(26, 'x'));
  sheet_.txtTagNo.SetText(std::string(25, 'x'));
  tag_.setFocus();
  tag_.setCursorPosition(25);
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("流量計"));
  QApplication::sendEvent(&tag_, &commit);
  EXPECT_EQ(sheet_.txtTagNo.Text(), std::string(25, 'x') + "流");
  EXPECT_EQ(tag_.text().toStdString(), sheet_.txtTagNo.Text());
}

TEST_F(TextField, ShowsStateAndSpeaksItsUnit) {
  sheet_.cbo流体.Pick(0);
  EXPECT_FALSE(Find<QLineEdit>(sheet_, "txt相対湿度").isEnabled());
  sheet_.txt目盛流量.SetToolTip("a <b> c");
  EXPECT_FALSE(flow_.toolTip().contains(QLatin1String("<b>")));
  EXPECT_EQ(flow_.accessibleName(),
            QString::fromStdString("目盛流量 " + sheet_.cbo流量単位L.Items()[0]));
  sheet_.cbo流量単位L.Pick(3);
  EXPECT_EQ(flow_.accessibleName(),
            QString::fromStdString("目盛流量 " + sheet_.cbo流量単位L.Items()[3]));
  EXPECT_TRUE(flow_.alignment().testFlag(Qt::AlignRight));
}

TEST_F(TextField, ReportsDoubleClickByMouseAndKey) {
  int asked = 0;
  sheet_.txt密度.onDblClick = [&] { ++asked; };
  auto& density = Find<QLineEdit>(sheet_, "txt密度");
  QTest::mouseDClick(&density, Qt::LeftButton);
  EXPECT_EQ(asked, 1);
  QTest::keyClick(&density, Qt::Key_F4);
  EXPECT_EQ(asked, 2);
}

TEST_F(TextField, FaultInAHandlerBecomesAMessage) {
  sheet_.txt目盛流量.onChange = [] { throw common::RuntimeFault(common::Fault::kDivisionByZero); };
  QTest::keyClicks(&flow_, QStringLiteral("1"));
  EXPECT_EQ(presenter_.messages, std::vector<std::string>{"0 で除算しました。"});
  EXPECT_EQ(flow_.text(), QStringLiteral("1"));
}

}  // namespace
}  // namespace desktop
