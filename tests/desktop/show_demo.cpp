// Shows the demonstration sheet for a look at the desktop's forms:
//   show_demo [--dark] [--dialog] [--tool] [--messages] [--gas] [--full]
#include <QApplication>
#include <QScreen>

#include "demo_sheet.h"
#include "demo_window.h"
#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"
#include "desktop/questions.h"
#include "desktop/theme.h"

namespace {

/// A message of every kind.
void ShowMessages(QWidget& owner) {
  QPoint place = owner.geometry().bottomLeft();
  for (const auto icon : {common::Icon::kInformation, common::Icon::kQuestion,
                          common::Icon::kWarning, common::Icon::kCritical}) {
    auto* const box = new desktop::MessageBox(
        {"レイノルズ数が適用範囲外です。", "", icon, common::Buttons::kYesNo}, &owner);
    box->setModal(false);
    box->show();
    box->move(place);
    place.rx() += box->width();
  }
}

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  const QStringList words = QApplication::arguments();
  if (words.contains(QStringLiteral("--dark"))) {
    QApplication::setPalette(desktop::PaletteOf(desktop::Theme::Dark()));
  }
  desktop::PrepareApplication(application);
  desktop::QtPresenter presenter;
  shell::FormManager forms(presenter);
  shell::MainWindow commands;
  desktop::FillDemoWindow(commands);
  desktop::MainWindow window(commands);
  presenter.Attach(window, forms);
  forms.Provide("frmDemo", [] { return std::make_unique<desktop::DemoSheet>(); });
  forms.Provide("frmDemoDialog", [] { return std::make_unique<desktop::DemoDialog>(); });
  forms.Provide("frmDemoTool", [] { return std::make_unique<desktop::DemoTool>(); });
  window.show();
  auto& sheet = dynamic_cast<desktop::DemoSheet&>(forms.Show("frmDemo"));
  if (words.contains(QStringLiteral("--gas"))) sheet.cbo流体.Pick(1);
  sheet.FillIn();
  if (words.contains(QStringLiteral("--tool"))) forms.Show("frmDemoTool");
  if (words.contains(QStringLiteral("--dialog"))) forms.Show("frmDemoDialog");
  if (words.contains(QStringLiteral("--full")))
    window.setGeometry(window.screen()->availableGeometry());
  if (words.contains(QStringLiteral("--messages"))) ShowMessages(window);
  const int result = QApplication::exec();
  presenter.CloseAll();
  return result;
}
