// Time from the start of the process to the first paint of its window: an empty Qt main window
// against the whole workbench, each in processes of their own, in turn.

#include <QApplication>
#include <QMainWindow>
#include <QProcess>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench.h"
#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"
#include "sheets/workbench.h"

namespace {

/// Ends the process at the first paint of a window.
class EndAtFirstPaint : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return QObject::eventFilter(watched, event);
    QTimer::singleShot(0, [] { std::_Exit(0); });
    return false;
  }
};

int ShowEmpty(QApplication& application, EndAtFirstPaint& end) {
  QMainWindow window;
  window.resize(800, 573);
  window.installEventFilter(&end);
  window.show();
  return application.exec();
}

int ShowWorkbench(QApplication& application, EndAtFirstPaint& end) {
  desktop::PrepareApplication(application);
  desktop::QtPresenter presenter;
  shell::MemorySettings settings;
  sheets::Workbench workbench(presenter, ZEPHA_BUILD_DIR, settings);
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  window.installEventFilter(&end);
  window.show();
  workbench.Start();
  return application.exec();
}

/// Milliseconds that a process of this program takes to its first paint.
double TimeOf(const QString& program, const QString& what) {
  return bench::MillisecondsOf([&] { QProcess::execute(program, {what}); });
}

int Compare(const QString& program) {
  constexpr int kRuns = 21;
  std::vector<double> empty;
  std::vector<double> workbench;
  for (int i = 0; i < kRuns; ++i) {
    empty.push_back(TimeOf(program, "empty"));
    workbench.push_back(TimeOf(program, "workbench"));
  }
  std::printf("empty Qt main window %.1f ms, workbench %.1f ms, ratio %.2f (medians of %d)\n",
              bench::Median(empty), bench::Median(workbench),
              bench::Median(workbench) / bench::Median(empty), kRuns);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string what = count > 1 ? arguments[1] : "";
  if (what.empty()) return Compare(QString::fromLocal8Bit(arguments[0]));
  QApplication application(count, arguments);
  EndAtFirstPaint end;
  return what == "empty" ? ShowEmpty(application, end) : ShowWorkbench(application, end);
}
