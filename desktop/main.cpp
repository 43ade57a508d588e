#include <QApplication>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>
#include <csignal>
#include <functional>
#include <utility>

#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/platform.h"
#include "desktop/presenter.h"
#include "desktop/splash.h"
#include "sheets/workbench.h"
#include "shell/instrument_file.h"
#include "shell/own_data.h"
#include "shell/recovery_commands.h"

namespace {

/// How much work a crash may cost.
constexpr int kRecoveryMs = 3000;
/// How long the start waits for a frame around the window.
constexpr int kFramedMs = 200;

/// A hint that disappears by itself; work goes on without the copy.
void ShowQuietly(const desktop::MainWindow& window, std::string text) {
  constexpr int kShownMs = 20000;
  std::replace(text.begin(), text.end(), '\n', ' ');
  window.statusBar()->showMessage(QString::fromStdString(text), kShownMs);
}

/// Goes on when the window manager has framed the window, or after a while where there is none. A
/// window that is resized earlier ends up with its frame above the screen.
void WhenFramed(const desktop::MainWindow& window, int patience, std::function<void()> next) {
  constexpr int kPeriodMs = 10;
  if (patience <= 0 || window.frameGeometry() != window.geometry()) {
    next();
    return;
  }
  QTimer::singleShot(kPeriodMs, &window, [&window, patience, next = std::move(next)]() mutable {
    WhenFramed(window, patience - kPeriodMs, std::move(next));
  });
}

}  // namespace

int main(int count, char** arguments) {
  // A limit on the size of files is told like a full disk; the tags in memory must not go with it.
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication application(count, arguments);
  // Qt has taken its own words out; names of files are bytes.
  const std::string file = count > 1 ? arguments[1] : "";
  desktop::PrepareApplication(application);
  desktop::Splash splash(QStringLiteral("Ver.") + QLatin1String(shell::kProgramVersion));
  splash.show();
  desktop::QtPresenter presenter;
  desktop::QtPlatform platform(presenter);
  shell::FileSettings settings(shell::DefaultSettingsPath());
  const shell::DataFolder data = shell::FindDataFolder(shell::ProgramFolder());
  sheets::Workbench workbench(presenter, data.path, settings, &platform);
  workbench.Space().guideDir = shell::FindGuideFolder(shell::ProgramFolder());
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  presenter.KeepPlacesIn(settings);
  shell::Workspace& workspace = workbench.Space();
  workspace.keepsUnits = true;
  workspace.dataNote = data.note;
  workspace.recovery.UseFolder(shell::DefaultStateFolder());
  workspace.recovery.onTrouble = [&window](const std::string& text) { ShowQuietly(window, text); };
  QTimer recoveryTimer;
  QObject::connect(&recoveryTimer, &QTimer::timeout,
                   [&workspace] { shell::KeepRecovery(workspace); });
  splash.onEnd = [&] {
    window.show();
    WhenFramed(window, kFramedMs, [&] {
      workbench.Start(file);
      shell::TakeNoteOfNewer(data);
      recoveryTimer.start(kRecoveryMs);
    });
  };
  workbench.Load();
  const int result = QApplication::exec();
  // The windows go before the forms that they show.
  presenter.CloseAll();
  return result;
}
