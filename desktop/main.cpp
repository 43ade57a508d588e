#include <QApplication>
#include <csignal>

#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/platform.h"
#include "desktop/presenter.h"
#include "desktop/splash.h"
#include "sheets/workbench.h"
#include "shell/instrument_file.h"

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
  sheets::Workbench workbench(presenter, QApplication::applicationDirPath().toStdString(), settings,
                              &platform);
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  splash.onEnd = [&] {
    window.show();
    workbench.Start();
  };
  workbench.Load();
  const int result = QApplication::exec();
  // The windows go before the forms that they show.
  presenter.CloseAll();
  return result;
}
