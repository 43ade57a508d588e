// Each sheet in the real window: opened until it is painted, and its calculation, from the press of
// the button until the results are painted, on a tag of the sample plant. Medians.

#include <QApplication>
#include <cstdio>
#include <functional>
#include <vector>

#include "bench.h"
#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"
#include "sheets/workbench.h"
#include "shell/sheet.h"
#include "shell/tag_commands.h"

namespace {

constexpr int kRuns = 15;

/// Agrees to everything, so that no box waits for an answer.
class Agreeing : public desktop::QtPresenter {
 public:
  common::Answer Present(const common::Message&) override { return common::Answer::kYes; }
};

/// Until all is painted.
double MillisecondsOf(const std::function<void()>& work) {
  return bench::MillisecondsOf([&work] {
    work();
    QApplication::processEvents();
  });
}

/// The first tag of a kind, 0 for none.
int RowOf(const shell::TagStore& tags, const std::string& kind) {
  for (int row = 1; row <= tags.TagCount(); ++row) {
    if (tags.Text(row, shell::kKindColumn) == kind) return row;
  }
  return 0;
}

double MedianOfCalculation(shell::Workspace& space, int row) {
  forms::Form& sheet = *space.forms.ActiveSheet();
  forms::Control* calculate = sheet.Find("cmd計算");
  if (calculate == nullptr) calculate = sheet.Find("cmdSizing");
  std::vector<double> times;
  for (int run = 0; run < kRuns; ++run) {
    shell::RecallTag(space, row);
    QApplication::processEvents();
    times.push_back(MillisecondsOf([&] { calculate->Click(); }));
  }
  return bench::Median(times);
}

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  desktop::PrepareApplication(application);
  Agreeing presenter;
  shell::MemorySettings settings;
  sheets::Workbench workbench(presenter, ZEPHA_BUILD_DIR, settings);
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  window.resize(1280, 800);
  window.show();
  workbench.Start();
  shell::Workspace& space = workbench.Space();
  shell::OpenFileNamed(space, ZEPHA_SOURCE_DIR "/samples/plant.zph");
  std::printf("| Sheet | Opened, ms | Calculated, ms |\n|---|--:|--:|\n");
  for (const shell::SheetEntry& entry : shell::SheetRegistry()) {
    std::vector<double> opened;
    for (int run = 0; run < kRuns; ++run) {
      opened.push_back(MillisecondsOf([&] { shell::OpenSheet(space, entry.kind); }));
      if (run + 1 < kRuns) space.forms.Unload(*space.forms.ActiveSheet());
      QApplication::processEvents();
    }
    std::printf("| %s | %.1f |", entry.form.c_str(), bench::Median(opened));
    const int row = RowOf(space.tags, entry.kind);
    if (row > 0) std::printf(" %.2f", MedianOfCalculation(space, row));
    std::printf(" |\n");
    std::fflush(stdout);
  }
  presenter.CloseAll();
  return 0;
}
