#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>

#include "desk.h"
#include "desktop/icons.h"
#include "desktop/questions.h"
#include "desktop/sheet_area.h"

namespace desktop {
namespace {

class Windows : public Desk {};

/// A form that notes when it goes, and whether its window was still there.
class Watched : public DemoDialog {
 public:
  explicit Watched(std::function<void()> onEnd) : onEnd_(std::move(onEnd)) {}
  ~Watched() override { onEnd_(); }

 private:
  std::function<void()> onEnd_;
};

TEST_F(Windows, ButtonThatClosesItsDialogLosesItsWidgetsBeforeTheForm) {
  QPointer<FormView> view;
  bool gone = false;
  bool viewOutlivedForm = false;
  forms_.Provide("frmDemoDialog", [&] {
    return std::make_unique<Watched>([&] {
      gone = true;
      viewOutlivedForm = !view.isNull();
    });
  });
  DemoDialog& dialog = ShowDialog();
  view = presenter_.ViewOf(dialog);
  dialog.cmdOK.onClick = [&] { forms_.Unload(dialog); };
  QTest::mouseClick(&Find<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
  EXPECT_FALSE(gone);  // the click may still be on the way
  QTest::qWait(1);
  EXPECT_TRUE(gone);
  EXPECT_FALSE(viewOutlivedForm);
  EXPECT_EQ(forms_.Find("frmDemoDialog"), nullptr);
}

TEST_F(Windows, ClosingASheetMovesNoFocusInIt) {
  auto& sheet = ShowSheet();
  int arrivals = 0;
  for (forms::Control* control : sheet.Controls()) {
    if (control != sheet.Focused()) control->onGotFocus = [&] { ++arrivals; };
  }
  forms_.Unload(sheet);
  EXPECT_EQ(arrivals, 0);
  QTest::qWait(1);
}

TEST_F(Windows, DialogLocksTheMainWindowAndEscapeCancels) {
  ShowSheet();
  DemoDialog& dialog = ShowDialog();
  QWidget* const window = presenter_.ViewOf(dialog)->window();
  EXPECT_EQ(window->windowModality(), Qt::WindowModal);
  EXPECT_EQ(QApplication::activeModalWidget(), window);
  bool cancelled = false;
  dialog.cmdCancel.onClick = [&] {
    cancelled = true;
    forms_.Unload(dialog);
  };
  QTest::keyClick(window, Qt::Key_Escape);
  QTest::qWait(1);
  EXPECT_TRUE(cancelled);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Windows, NothingIsDestroyedWhileABoxWaits) {
  bool gone = false;
  forms_.Provide("frmDemoDialog", [&] { return std::make_unique<Watched>([&] { gone = true; }); });
  DemoDialog& dialog = ShowDialog();
  bool goneWhileWaiting = true;
  dialog.cmdOK.onClick = [&] {
    forms_.Unload(dialog);
    QMessageBox box(window_.get());
    QTimer::singleShot(30, &box, [&] {
      goneWhileWaiting = gone;
      box.accept();
    });
    presenter_.Wait(box);
  };
  QTest::mouseClick(&Find<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
  EXPECT_FALSE(goneWhileWaiting);
  QTest::qWait(1);
  EXPECT_TRUE(gone);
}

TEST_F(Windows, WindowOutlivesTheDialogItWasOpenedFrom) {
  DemoDialog& dialog = ShowDialog();
  auto& tool = forms_.Show("frmTagList");
  forms_.Unload(dialog);
  QTest::qWait(1);
  QPointer<QWidget> window = presenter_.ViewOf(tool)->window();
  ASSERT_TRUE(window);
  EXPECT_TRUE(window->isVisible());
  forms_.Show("frmTagList");
}

TEST_F(Windows, ToolKeepsItsPlaceOnTheScreen) {
  shell::MemorySettings settings;
  presenter_.KeepPlacesIn(settings);
  const auto open = [this]() -> QWidget& {
    auto& tool = forms_.Show("frmTagList");
    QApplication::processEvents();
    return *presenter_.ViewOf(tool)->window();
  };
  QWidget& first = open();
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_TRUE(screen.contains(first.geometry()));
  first.move(11, 22);
  first.resize(500, 333);
  first.close();
  QTest::qWait(1);
  QWidget& second = open();
  EXPECT_EQ(second.pos(), QPoint(11, 22));
  EXPECT_EQ(second.size(), QSize(500, 333));
  const struct {
    const char* kept;
    bool stays;
  } rows[] = {
      {"30 40 300 200", true}, {"9000 9000 300 200", false}, {"-500 -500 9999 9999", false}};
  QWidget* last = &second;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.kept);
    last->close();
    QTest::qWait(1);
    settings.Set("Tools", "frmTagList", row.kept);
    last = &open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.contains(last->frameGeometry()); }));
    EXPECT_EQ(last->pos() == QPoint(30, 40), row.stays);
  }
}

TEST_F(Windows, FormStandsWhereItWishesOnTheScreen) {
  class Wishing : public forms::Form {
   public:
    Wishing() : Form("frmWishing", "", forms::FormRole::kTool) {
      SetLayout(forms::Table({{button}}));
      WishPlace({150, 300, 5472, 4056});  // twips, 15 to the pixel
    }
    forms::Button button{*this, "cmd", "cmd"};
  };
  forms_.Provide("frmWishing", [] { return std::make_unique<Wishing>(); });
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize size(365, 270);
  const struct {
    QPoint mainWindow, expected;
  } rows[] = {{{70, 40}, {80, 60}},
              {{-200, -100}, screen.topLeft()},
              {{screen.right() - 30, screen.bottom() - 30},
               screen.bottomRight() + QPoint(1, 1) - QPoint(size.width(), size.height())}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.mainWindow.x());
    window_->move(row.mainWindow);
    QWidget& tool = *presenter_.ViewOf(forms_.Show("frmWishing"))->window();
    EXPECT_EQ(tool.pos(), row.expected);
    EXPECT_EQ(tool.size(), size);
    tool.move(5, 5);
    tool.close();  // and is asked for anew
    QTest::qWait(1);
  }
}

TEST_F(Windows, SheetsFillTheAreaAndFollowTheUser) {
  class Second : public forms::Form {
   public:
    Second() : Form("frmSecond", "Second & more", forms::FormRole::kSheet) {
      SetLayout(forms::Table({{button}}));
    }
    void Activate() override { ++activations; }
    forms::Button button{*this, "cmd", "cmd"};
    int activations = 0;
  };
  forms_.Provide("frmSecond", [] { return std::make_unique<Second>(); });
  auto& first = ShowSheet();
  auto* const area = window_->findChild<QMdiArea*>();
  EXPECT_TRUE(area->activeSubWindow()->isMaximized());
  auto& second = dynamic_cast<Second&>(forms_.Show("frmSecond"));
  EXPECT_EQ(second.activations, 1);
  EXPECT_EQ(area->subWindowList().size(), 2);

  auto& list = *window_->findChild<QMenu*>(QStringLiteral("mnuWindow"));
  emit list.aboutToShow();
  EXPECT_EQ(list.actions().at(1)->text(), QStringLiteral("Second && more"));
  list.actions().front()->trigger();
  EXPECT_EQ(forms_.Active(), &first);
  list.actions().at(1)->trigger();
  EXPECT_EQ(second.activations, 2);

  area->activeSubWindow()->close();
  QTest::qWait(1);
  EXPECT_EQ(forms_.Find("frmSecond"), nullptr);
  EXPECT_EQ(forms_.Active(), &first);
  EXPECT_EQ(area->subWindowList().size(), 1);
}

TEST_F(Windows, LettersGrowWithTheWindowAndStayReadable) {
  auto& sheet = ShowSheet();
  FormView* const view = presenter_.ViewOf(sheet);
  int before = 0;
  for (const QSize size : {QSize(300, 200), QSize(1400, 1000), QSize(2000, 1500)}) {
    SCOPED_TRACE(size.width());
    window_->resize(size);
    QApplication::processEvents();
    EXPECT_GE(view->LetterPixels(), kLeastLetterPixels);
    EXPECT_GT(view->LetterPixels(), before);
    before = view->LetterPixels();
    // As large as the room allows: one step more would not fit.
    const QSize needed = view->widget()->layout()->totalMinimumSize();
    const double share =
        std::min(1.0 * view->width() / needed.width(), 1.0 * view->height() / needed.height());
    if (before > kLeastLetterPixels) {
      EXPECT_GE(share, 1);
      EXPECT_LT(share, 1.15);
    }
  }
}

TEST_F(Windows, MainWindowShowsTheCommands) {
  auto& copy = *window_->findChild<QAction*>(QStringLiteral("mnuHCopy"));
  commands_.SetCommandEnabled("mnuHCopy", false);
  EXPECT_FALSE(copy.isEnabled());
  auto& print = *window_->findChild<QAction*>(QStringLiteral("Toolbar1.4"));
  EXPECT_FALSE(print.isEnabled());
  commands_.SetButtonEnabled(4, true);
  commands_.SetButtonToolTip(4, "印刷 <A4>");
  EXPECT_TRUE(print.isEnabled());
  EXPECT_EQ(print.toolTip(), QStringLiteral("印刷 &lt;A4&gt;"));
  print.trigger();
  EXPECT_EQ(presenter_.messages, std::vector<std::string>{"印刷対象がありません。"});
  auto& mark = *window_->findChild<QAction*>(QStringLiteral("mnuToolBar"));
  const int height = window_->height();
  mark.trigger();
  EXPECT_FALSE(mark.isChecked());
  EXPECT_EQ(window_->height(), height - 28);  // 420 twips
  EXPECT_TRUE(window_->findChild<QToolBar*>()->isHidden());
}

TEST(Questions, ShowPlainTextsButtonsAndDefaults) {
  const struct {
    common::Buttons buttons;
    QMessageBox::StandardButton accept;
    common::Answer accepted, escaped;
  } rows[] = {
      {common::Buttons::kOk, QMessageBox::Ok, common::Answer::kOk, common::Answer::kOk},
      {common::Buttons::kYesNo, QMessageBox::Yes, common::Answer::kYes, common::Answer::kNo},
      {common::Buttons::kYesNoCancel, QMessageBox::Yes, common::Answer::kYes,
       common::Answer::kCancel},
      {common::Buttons::kOkCancel, QMessageBox::Ok, common::Answer::kOk, common::Answer::kCancel}};
  for (const auto& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.buttons));
    MessageBox box({"a <b>\r\nc\rd", "t", common::Icon::kQuestion, row.buttons}, nullptr);
    EXPECT_EQ(box.text(), QStringLiteral("a <b>\nc\nd"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.defaultButton(), box.button(row.accept));
    box.show();
    box.button(row.accept)->click();
    EXPECT_EQ(box.Answer(), row.accepted);
    box.show();
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(box.Answer(), row.escaped);
  }
  EXPECT_EQ(NameFilters("ZEPHAデータ(*.zph)|*.zph"),
            QStringList{QStringLiteral("ZEPHAデータ (*.zph *.ZPH)")});
  const QTemporaryDir folder;
  forms::FileQuestion question{true, "", "ZEPHAデータ(*.zph)|*.zph", ".zph"};
  question.folder = folder.path().toStdString();
  question.name = "第1工場.zph";
  EXPECT_EQ(FileBox(question, nullptr).Path(), question.folder + "/" + question.name);
  question.folder += "/gone";
  EXPECT_TRUE(FileBox(question, nullptr).directory().exists());
}

TEST(Icons, AreDrawnInTheTextColourAtEverySize) {
  const QStringList names = QDir(QStringLiteral(":/icons")).entryList();
  EXPECT_GE(names.size(), 25);
  for (const QString& name : names) {
    for (const int size : {16, 48}) {
      SCOPED_TRACE(name.toStdString());
      const QImage image =
          IconNamed(QFileInfo(name).baseName().toStdString()).pixmap(size).toImage();
      int inked = 0;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) inked += image.pixelColor(x, y).alpha() > 128;
      }
      EXPECT_GE(inked, size / 3);
    }
  }
  EXPECT_TRUE(IconNamed("no such picture").isNull());
}

}  // namespace
}  // namespace desktop
