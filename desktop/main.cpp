#include <QApplication>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>
#include <csignal>

#include "common/file.h"
#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/platform.h"
#include "desktop/presenter.h"
#include "desktop/splash.h"
#include "sheets/workbench.h"
#include "shell/instrument_file.h"
#include "shell/recovery_commands.h"

namespace {

/// How much work a crash may cost.
constexpr int kRecoveryMs = 3000;

/// A hint that disappears by itself; work goes on without the copy.
void ShowQuietly(const desktop::MainWindow& window, std::string text) {
  constexpr int kShownMs = 20000;
  std::replace(text.begin(), text.end(), '\n', ' ');
  window.statusBar()->showMessage(QString::fromStdString(text), kShownMs);
}

}  // namespace

int main(int count, char** arguments) {
  // A limit on the size of files is told like a full disk; the tags in memory must not go with it.
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication application(count, arguments);
  desktop::PrepareApplication(application);
  desktop::Splash splash(QStringLiteral("Ver.") + QLatin1String(shell::kProgramVersion));
  splash.show();
  desktop::QtPresenter presenter;
  desktop::QtPlatform platform(presenter);
  shell::FileSettings settings(shell::DefaultSettingsPath());
  const std::string programFolder = QApplication::applicationDirPath().toStdString();
  sheets::Workbench workbench(presenter, programFolder, settings, &platform);
  workbench.Space().guideDir = common::JoinPath(programFolder, "guide");
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  presenter.KeepPlacesIn(settings);
  shell::Workspace& workspace = workbench.Space();
  workspace.keepsUnits = true;
  workspace.recovery.UseFolder(shell::DefaultStateFolder());
  workspace.recovery.onTrouble = [&window](const std::string& text) { ShowQuietly(window, text); };
  QTimer recoveryTimer;
  QObject::connect(&recoveryTimer, &QTimer::timeout,
                   [&workspace] { shell::KeepRecovery(workspace); });
  splash.onEnd = [&] {
    window.show();
    workbench.Start();
    recoveryTimer.start(kRecoveryMs);
  };
  workbench.Load();
  const int result = QApplication::exec();
  // The windows go before the forms that they show.
  presenter.CloseAll();
  return result;
}
