#include <QApplication>

#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"
#include "sheets/workbench.h"

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  desktop::PrepareApplication(application);
  desktop::QtPresenter presenter;
  shell::FileSettings settings(shell::DefaultSettingsPath());
  sheets::Workbench workbench(presenter, QApplication::applicationDirPath().toStdString(),
                              settings);
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  window.show();
  workbench.Start();
  const int result = QApplication::exec();
  // The windows go before the forms that they show.
  presenter.CloseAll();
  return result;
}
