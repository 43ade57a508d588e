// 300 tags to one PDF, a page each, against the same texts and lines drawn on a PDF writer with
// nothing of ours between: several runs in turn, medians.

#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <cstdio>
#include <variant>
#include <vector>

#include "bench.h"
#include "desktop/paper/document.h"
#include "desktop/paper/fonts.h"
#include "headless/script_presenter.h"
#include "sheets/workbench.h"
#include "shell/page_recorder.h"
#include "shell/report.h"
#include "shell/tag_commands.h"

namespace {

constexpr int kTags = shell::kMaxTags;
constexpr int kRuns = 7;

/// Pages that are kept as items.
class RecordingJob : public shell::PrintJob {
 public:
  explicit RecordingJob(std::vector<std::unique_ptr<shell::PageRecorder>>& pages) : pages_(pages) {}
  forms::DrawSurface& NewPage() override {
    return *pages_.emplace_back(std::make_unique<shell::PageRecorder>());
  }
  bool Finish() override { return true; }
  void Abort() override {}

 private:
  std::vector<std::unique_ptr<shell::PageRecorder>>& pages_;
};

std::vector<int> Rows() {
  std::vector<int> rows;
  for (int row = 1; row <= kTags; ++row) rows.push_back(row);
  return rows;
}

void Print(shell::Workspace& space, std::unique_ptr<shell::PrintJob> job) {
  shell::TagPrinter printer(space, std::move(job), Rows());
  while (printer.Next()) continue;
  if (!printer.Finish() || printer.Pages() != kTags) std::fprintf(stderr, "not all was printed\n");
}

/// The same pages with the toolkit alone, fonts made once.
void DrawBare(const std::vector<std::unique_ptr<shell::PageRecorder>>& pages, const QString& path) {
  QPdfWriter writer(path);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins(QMarginsF());
  writer.setResolution(1200);
  QPainter painter(&writer);
  painter.scale(1200 / 1440.0, 1200 / 1440.0);
  QFont plain(desktop::PaperFamily(shell::kMincho));
  plain.setPixelSize(220);
  plain.setHintingPreference(QFont::PreferNoHinting);
  QFont bold = plain;
  bold.setBold(true);
  const double ascent = QFontMetricsF(plain).ascent();
  for (const auto& page : pages) {
    if (page != pages.front()) writer.newPage();
    for (const auto& item : page->Items()) {
      if (const auto* text = std::get_if<shell::PageRecorder::TextItem>(&item)) {
        painter.setFont(text->bold ? bold : plain);
        painter.drawText(QPointF(text->x, text->y + ascent), QString::fromStdString(text->text));
      } else if (const auto* line = std::get_if<shell::PageRecorder::LineItem>(&item)) {
        painter.drawLine(QPointF(line->points[0].first, line->points[0].second),
                         QPointF(line->points[1].first, line->points[1].second));
      } else if (const auto* box = std::get_if<shell::PageRecorder::BoxItem>(&item)) {
        painter.drawRect(QRectF(QPointF(box->x1, box->y1), QPointF(box->x2, box->y2)));
      }
    }
  }
}

}  // namespace

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, arguments);
  const QTemporaryDir folder;
  headless::ScriptPresenter presenter;
  shell::MemorySettings settings;
  sheets::Workbench workbench(presenter, ZEPHA_BUILD_DIR, settings);
  workbench.Start();
  shell::Workspace& space = workbench.Space();
  shell::OpenFileNamed(space, ZEPHA_SOURCE_DIR "/samples/plant.zph");
  space.tags = bench::FullStore(space.tags);

  std::vector<std::unique_ptr<shell::PageRecorder>> pages;
  Print(space, std::make_unique<RecordingJob>(pages));
  std::vector<double> ours;
  std::vector<double> bare;
  std::vector<double> made;
  for (int run = 0; run < kRuns; ++run) {
    const QString path = folder.filePath(QStringLiteral("pages.pdf"));
    ours.push_back(
        bench::MillisecondsOf([&] { Print(space, desktop::StartPdf(path.toStdString())); }));
    bare.push_back(bench::MillisecondsOf([&] { DrawBare(pages, path); }));
    made.push_back(bench::MillisecondsOf([&] {
      std::vector<std::unique_ptr<shell::PageRecorder>> again;
      Print(space, std::make_unique<RecordingJob>(again));
    }));
  }
  std::printf("%d pages to PDF: %.0f ms; bare toolkit: %.0f ms; sheets alone, no PDF: %.0f ms\n",
              kTags, bench::Median(ours), bench::Median(bare), bench::Median(made));
  return 0;
}
