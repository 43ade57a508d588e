#include <QAction>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QTemporaryDir>
#include <QUrl>

#include "desk.h"
#include "desktop/platform.h"
#include "desktop/sheet_area.h"
#include "desktop/splash.h"

namespace desktop {
namespace {

using State = shell::WindowPlacement::State;

class MainWindowTest : public Desk {
 protected:
  /// The place in pixels that the window has told.
  QRect Told() const {
    const shell::WindowPlacement& told = commands_.Placement();
    return {told.left / 15, told.top / 15, told.width / 15, told.height / 15};
  }

  /// Drags a file over a widget and drops it there; whether the drag was welcome.
  bool Drop(QWidget& target, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &drop);
    QApplication::processEvents();
    return true;
  }
};

TEST_F(MainWindowTest, TellsItsNormalPlaceInTwipsWhateverItsState) {
  window_->move(40, 60);
  window_->resize(640, 480);
  const struct {
    Qt::WindowStates state;
    State told;
  } rows[] = {{Qt::WindowNoState, State::kNormal},
              {Qt::WindowMaximized, State::kMaximised},
              {Qt::WindowMinimized, State::kMinimised},
              {Qt::WindowNoState, State::kNormal}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.told);
    window_->setWindowState(row.state);
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return Told() == QRect(40, 60, 640, 480) && commands_.Placement().state == row.told;
    }));
  }
}

TEST_F(MainWindowTest, TakesItsPlaceBeforeAndAfterItIsShown) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const struct {
    shell::WindowPlacement placement;
    bool maximised;
    QRect normal;
  } rows[] = {
      {{300, 450, 9000, 7500, State::kNormal}, false, {30, 20, 600, 500}},
      {{300, 450, 9000, 7500, State::kMaximised}, true, {30, 20, 600, 500}},
      {{300, 450, 9000, 7500, State::kMinimised}, false, {30, 20, 600, 500}},
      {{-9000, 900000, 3000, 3000, State::kNormal},
       false,
       {screen.right() + 1 - 200, screen.top(), 200, 200}},
  };
  for (const bool shown : {false, true}) {
    for (const auto& row : rows) {
      SCOPED_TRACE(testing::Message() << shown << " " << row.placement.state);
      window_->setVisible(shown);
      commands_.Place(row.placement);
      window_->show();
      EXPECT_TRUE(QTest::qWaitFor([&] { return Told() == row.normal; }));
      EXPECT_EQ(window_->isMaximized(), row.maximised);
      EXPECT_FALSE(window_->isMinimized());
    }
  }
}

TEST_F(MainWindowTest, GrowsForASheetOnlyFromASizeOfItsOwn) {
  const struct {
    const char* what;
    QSize twips;
    bool grows;
  } rows[] = {{"the first size", {12000, 8600}, true},
              {"a size kept from an earlier run", {11400, 9000}, false},
              {"a size that shows less than half of the sheet", {4500, 3000}, true}};
  for (const bool shown : {false, true}) {
    for (const auto& row : rows) {
      SCOPED_TRACE(testing::Message() << row.what << (shown ? ", shown" : ", not yet shown"));
      window_->setVisible(shown);
      commands_.Place({105, 105, row.twips.width(), row.twips.height(), State::kNormal});
      const QSize before = window_->size();
      QApplication::processEvents();
      auto& sheet = ShowSheet();
      EXPECT_EQ(window_->size() != before, row.grows);
      window_->show();
      QApplication::processEvents();
      // Grown by as much as was missing and no more, as far as the screen goes.
      const QSize whole = presenter_.ViewOf(sheet)->NaturalSize();
      const QSize room = window_->Area().size();
      const QSize screen = QGuiApplication::primaryScreen()->availableSize();
      if (row.grows && window_->width() < screen.width()) {
        EXPECT_EQ(room.width(), std::max(whole.width(), before.width()));
      }
      forms_.Unload(sheet);
      QTest::qWait(1);
    }
  }
}

TEST_F(MainWindowTest, SubmenuFollowsItsEntries) {
  auto& menu = *window_->findChild<QMenu*>(QStringLiteral("mnuRecent"));
  EXPECT_FALSE(menu.menuAction()->isEnabled());
  std::string opened;
  const auto entry = [&](const char* name) {
    // Opening a file changes the list while the entry's own command runs.
    const auto open = [this, name, &opened] {
      opened = name;
      commands_.SetEntries("mnuRecent", {{"mnuRecent1", "&1 again", "", "", [] {}}});
    };
    return shell::Command{name, name, "", "", open};
  };
  commands_.SetEntries("mnuRecent", {entry("mnuRecent1"), entry("mnuRecent2")});
  EXPECT_TRUE(menu.menuAction()->isEnabled());
  ASSERT_EQ(menu.actions().size(), 2);
  menu.actions().at(1)->trigger();
  EXPECT_EQ(opened, "mnuRecent2");
  ASSERT_EQ(menu.actions().size(), 1);
  EXPECT_EQ(menu.actions().front()->text(), QStringLiteral("&1 again"));
  commands_.SetEntries("mnuRecent", {});
  EXPECT_FALSE(menu.menuAction()->isEnabled());
  QTest::qWait(1);
  EXPECT_EQ(window_->findChild<QAction*>(QStringLiteral("mnuRecent1")), nullptr);
}

TEST_F(MainWindowTest, TakesInstrumentFilesDroppedAnywhere) {
  std::string dropped;
  commands_.onFileDropped = [&](const std::string& path) { dropped = path; };
  auto& sheet = ShowSheet();
  QWidget* const targets[] = {window_.get(), window_->Area().viewport(),
                              &Find<QLineEdit>(sheet, "txtTagNo"),
                              presenter_.ViewOf(sheet)->viewport()};
  const struct {
    const char* url;
    const char* path;
  } rows[] = {{"file:///data/%E8%A8%88%E8%A3%85%20A.zph", "/data/計装 A.zph"},
              {"file:///data/OLD.ZPH", "/data/OLD.ZPH"},
              {"file:///data/a.zph.txt", ""},
              {"https://example.org/a.zph", ""}};
  for (QWidget* target : targets) {
    for (const auto& row : rows) {
      SCOPED_TRACE(testing::Message() << target->metaObject()->className() << " " << row.url);
      dropped.clear();
      const QUrl url(QString::fromLatin1(row.url));
      EXPECT_EQ(Drop(*target, {url}), *row.path != '\0');
      EXPECT_EQ(dropped, row.path);
    }
  }
  EXPECT_EQ(sheet.txtTagNo.Text(), "");
  ShowDialog();
  EXPECT_FALSE(Drop(*window_, {QUrl(QString::fromLatin1(rows[0].url))}));
}

TEST_F(MainWindowTest, TellsHowToBeginWhileNoSheetIsOpen) {
  const auto inked = [this] {
    const QImage page = window_->Area().viewport()->grab().toImage();
    const QRgb ground = page.pixel(2, 2);
    for (int y = 2; y < page.height() - 2; y += 3) {
      for (int x = 2; x < page.width() - 2; x += 3) {
        if (page.pixel(x, y) != ground) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(inked());
  auto& sheet = ShowSheet();
  EXPECT_TRUE(window_->Area().AnySheet());
  QWidget* const shown = presenter_.ViewOf(sheet)->window();
  EXPECT_EQ(shown, window_.get());
  forms_.Unload(sheet);
  EXPECT_FALSE(window_->Area().AnySheet());
  EXPECT_TRUE(inked());
  QTest::qWait(1);
}

TEST(SplashTest, EndsOnceAtAKeyAClickOrTheTimer) {
  const std::function<void(Splash&)> rows[] = {
      [](Splash& splash) { QTest::keyClick(&splash, Qt::Key_Return); },
      [](Splash& splash) { QTest::mouseClick(&splash, Qt::LeftButton); },
      [](Splash& splash) { splash.close(); },
      [](Splash& splash) { EXPECT_TRUE(QTest::qWaitFor([&] { return splash.isHidden(); })); }};
  for (const auto& end : rows) {
    Splash splash(QStringLiteral("Ver.1"));
    int ends = 0;
    bool first = false;
    splash.onEnd = [&] {
      ++ends;
      first = splash.isVisible();
    };
    splash.show();
    QApplication::processEvents();
    EXPECT_EQ(ends, 0);
    end(splash);
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(first);
    QTest::keyClick(&splash, Qt::Key_A);
    splash.close();
    QTest::qWait(1);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(splash.isVisible());
  }
}

TEST(Platform, StartsWhatIsThereAndNothingElse) {
  QtPresenter presenter;
  QtPlatform platform(presenter);
  const QTemporaryDir folder;
  const QString mark = folder.filePath(QStringLiteral("a b"));
  EXPECT_TRUE(platform.StartProgram("touch", {mark.toStdString()}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(mark); }));
  EXPECT_FALSE(platform.StartProgram("", {}));
  EXPECT_FALSE(platform.StartProgram(folder.filePath(QStringLiteral("none")).toStdString(), {}));
  EXPECT_FALSE(platform.OpenWithDesktop(folder.filePath(QStringLiteral("none")).toStdString()));
}

// The opener of the desktop is there also where no program takes the file, and then says so.
TEST(Platform, KnowsWhetherAFileWasOpened) {
  const QByteArray before = qgetenv("PATH");
  const QTemporaryDir folder;
  QFile book(folder.filePath(QStringLiteral("計器 一覧 (1).xlsx")));
  ASSERT_TRUE(book.open(QIODevice::WriteOnly));
  QtPresenter presenter;
  QtPlatform platform(presenter);
  const struct {
    const char* opener;
    bool opened;
  } rows[] = {{"test -f \"$1\" && test $# = 1", true},
              {"exit 3", false},
              {"kill -9 $$", false},
              {"sleep 4", true},
              {nullptr, false}};
  qputenv("PATH", folder.path().toUtf8() + ":" + before);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.opener == nullptr ? "none" : row.opener);
    QFile script(folder.filePath(QStringLiteral("xdg-open")));
    if (row.opener == nullptr) {
      script.remove();
      qputenv("PATH", folder.path().toUtf8());
    } else {
      ASSERT_TRUE(script.open(QIODevice::WriteOnly | QIODevice::Truncate));
      script.write(QByteArray("#!/bin/sh\n") + row.opener + "\n");
      script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
      script.close();
    }
    EXPECT_EQ(platform.OpenWithDesktop(book.fileName().toStdString()), row.opened);
  }
  qputenv("PATH", before);
}

}  // namespace
}  // namespace desktop
