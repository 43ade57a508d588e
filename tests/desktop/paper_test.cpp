#include <sys/resource.h>

#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>

#include "desk.h"
#include "desktop/paper/draw_surface.h"
#include "desktop/paper/fonts.h"
#include "desktop/platform.h"
#include "sheets/frm_preview.h"
#include "sheets/frm_print_all.h"
#include "shell/tag_commands.h"

namespace desktop {
namespace {

/// A tag of the sample plant on its sheet, with the paper of the desktop.
class Paper : public Desk {
 protected:
  Paper() {
    bench_.Space().platform = &platform_;
    window_->resize(1280, 800);
    commands_.DropFile(ZEPHA_SOURCE_DIR "/samples/plant.zph");
    bench_.Space().tags.SelectLine(0);
    shell::RecallSelectedTag(bench_.Space());
    QApplication::processEvents();
  }

  template <class Widget>
  Widget& Find(const char* name) {
    return Desk::Find<Widget>(*forms_.Active(), name);
  }

  QTemporaryDir folder_;
  QtPlatform platform_{presenter_};
};

TEST_F(Paper, PreviewShowsThePageAndScrolls) {
  commands_.Run("mnuPreview");
  QApplication::processEvents();
  auto& page = Find<QWidget>("picPage");
  auto& bar = Find<QScrollBar>("VScroll1");
  EXPECT_GT(page.width(), 700);  // nearly the whole width of the paper, on a screen of 800
  EXPECT_GT(bar.maximum(), 0);
  EXPECT_EQ(bar.maximum(), 16840 - page.height() * 15);
  const auto darkness = [&page](int x, int y) {
    return 255 - qGray(page.grab().toImage().pixel(x, y));
  };
  const int left = std::max(0, (page.width() - 794) / 2) +
                   75;  // frame: 1134 twips from the edge, 553 from the top
  EXPECT_GT(std::max(darkness(left, 60), darkness(left + 1, 60)), 60);
  EXPECT_LT(darkness(left - 5, 60), 10);
  Wheel(page);
  EXPECT_EQ(bar.value(), 3 * 340);
  QTest::mouseClick(&Find<QPushButton>("cmdClose"), Qt::LeftButton);
  QTest::qWait(1);
  EXPECT_EQ(forms_.Find("frmPreview"), nullptr);
}

TEST_F(Paper, MarkedTagsGoIntoOnePdf) {
  commands_.Run("mnuPrintAll");
  QApplication::processEvents();
  auto& list = Find<QListWidget>("lstTag");
  ASSERT_EQ(list.count(), bench_.Space().tags.TagCount());
  list.setFocus();
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Space);  // takes the mark of the first tag
  auto* const form = dynamic_cast<sheets::frm一括印刷*>(forms_.Active());
  EXPECT_FALSE(form->lstTag.Marked(0));
  presenter_.file = folder_.filePath("tags.pdf").toStdString();
  QTest::mouseClick(&Find<QPushButton>("cmdPDF"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !presenter_.messages.empty(); }));
  EXPECT_EQ(presenter_.messages,
            std::vector<std::string>{std::to_string(list.count() - 1) + "件を印刷しました。"});
  EXPECT_GT(QFileInfo(folder_.filePath("tags.pdf")).size(), 10000);
  EXPECT_EQ(Find<QProgressBar>("prg進行").value(), list.count() - 1);
}

TEST_F(Paper, StoppedPrintingLeavesNoFile) {
  commands_.Run("mnuPrintAll");
  QApplication::processEvents();
  presenter_.file = folder_.filePath("stopped.pdf").toStdString();
  QTest::mouseClick(&Find<QPushButton>("cmdPDF"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QProgressBar>("prg進行").value() > 0; }));
  QTest::mouseClick(&Find<QPushButton>("cmdCancel"), Qt::LeftButton);
  QTest::qWait(20);
  EXPECT_EQ(presenter_.messages, std::vector<std::string>{"一括印刷を中止しました。"});
  EXPECT_FALSE(QFileInfo::exists(folder_.filePath("stopped.pdf")));
  // Closing the window in the middle ends the work as well.
  QTest::mouseClick(&Find<QPushButton>("cmdPDF"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QProgressBar>("prg進行").value() > 0; }));
  forms_.Unload(*forms_.Active());
  QTest::qWait(20);
  EXPECT_FALSE(QFileInfo::exists(folder_.filePath("stopped.pdf")));
}

TEST_F(Paper, RecalculationRunsBetweenEventsAndStops) {
  commands_.Run("mnuRecalculate");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QProgressBar>("prg進行").value() > 0; }));
  EXPECT_FALSE(Find<QPushButton>("cmd再計算").isEnabled());
  QTest::mouseClick(&Find<QPushButton>("cmdCancel"), Qt::LeftButton);
  const int stopped = Find<QProgressBar>("prg進行").value();
  QTest::qWait(20);
  EXPECT_EQ(Find<QProgressBar>("prg進行").value(), stopped);
  EXPECT_LT(stopped, bench_.Space().tags.TagCount());
  QTest::mouseClick(&Find<QPushButton>("cmd再計算"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QPushButton>("cmd再計算").isEnabled(); }));
  EXPECT_EQ(Find<QProgressBar>("prg進行").value(), bench_.Space().tags.TagCount());
}

/// Answers the printer dialogue: a file to print into, or Cancel with none.
void AnswerPrinterDialogue(const QString& file) {
  QTimer::singleShot(50, [file] {
    auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    if (file.isEmpty()) {
      dialog->reject();
      return;
    }
    dialog->printer()->setOutputFileName(file);
    for (QLineEdit* edit : dialog->findChildren<QLineEdit*>(QStringLiteral("filename"))) {
      edit->setText(file);
    }
    dialog->accept();
  });
}

TEST_F(Paper, PrinterDialogueOffersAFileWhereThereIsNoPrinter) {
  AnswerPrinterDialogue({});
  commands_.Run("mnuPrint");
  EXPECT_TRUE(presenter_.messages.empty());
  const QString path = folder_.filePath("printed.pdf");
  AnswerPrinterDialogue(path);
  commands_.Run("mnuPrint");
  EXPECT_TRUE(presenter_.messages.empty());
  EXPECT_GT(QFileInfo(path).size(), 5000);
  const QString image = folder_.filePath("image.pdf");
  commands_.SetCommandEnabled("mnuHCopy", true);
  AnswerPrinterDialogue(image);
  commands_.Run("mnuHCopy");
  EXPECT_GT(QFileInfo(image).size(), 5000);
}

/// Lets no file grow beyond some bytes, as a full disk would.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

TEST_F(Paper, PrintingIntoAFileTellsOfAFullDisk) {
  const FileSizeLimit limit(8192);
  commands_.SetCommandEnabled("mnuHCopy", true);
  for (const char* command : {"mnuPrint", "mnuHCopy"}) {
    AnswerPrinterDialogue(folder_.filePath(command));
    commands_.Run(command);
  }
  EXPECT_EQ(presenter_.messages,
            std::vector<std::string>(
                2, "印刷できませんでした。プリンタまたは保存先を確認してください。"));
  presenter_.messages.clear();
  AnswerPrinterDialogue(folder_.filePath("none/printed.pdf"));
  commands_.Run("mnuPrint");
  EXPECT_EQ(
      presenter_.messages,
      std::vector<std::string>{"印刷を開始できません。プリンタまたは保存先を確認してください。"});
}

TEST(DrawSurface, DrawsInTwips) {
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  {
    QtDrawSurface surface(painter, 1.0 / 15);
    surface.SetColor(forms::kRed);
    surface.FilledRectangle(300, 300, 750, 600);  // pixels 20 to 50 and 20 to 40
  }
  painter.end();
  EXPECT_EQ(image.pixelColor(35, 30), QColor(255, 0, 0));
  for (const QPoint beside : {QPoint(18, 30), QPoint(52, 30), QPoint(35, 42)}) {
    EXPECT_EQ(image.pixelColor(beside), QColor(Qt::white));
  }
}

// The families behind the sheets have letters of exactly one or two columns, and where one has not,
// the letters are set on their columns one by one.
TEST(PaperFonts, TextsKeepTheirColumns) {
  for (const char* family : {"ＭＳ 明朝", "ＭＳ ゴシック"}) {
    const QString name = PaperFamily(family);
    QImage image(1200, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    {
      QtDrawSurface surface(painter, 1.0 / 15);
      surface.SetFont(family, 11, false);
      for (const char* text : {"ABC123", "入力データ", "ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ", "αβ×⊿㎜～℃"}) {
        EXPECT_NEAR(surface.TextWidth(text), shell::FixedTextWidth(text, 11), 2)
            << name.toStdString() << " " << text;
      }
    }
  }
}

}  // namespace
}  // namespace desktop
