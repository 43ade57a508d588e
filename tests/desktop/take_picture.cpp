// Takes a picture of the workbench in a state that a script describes:
//   take_picture OUT.png [--size WIDTHxHEIGHT] [--dark] [--form NAME] < SCRIPT
// Lines of the script: load PATH, recall ROW, menu NAME, open FORM, type CONTROL TEXT, pick CONTROL
// N or =TEXT, choose, click, dblclick, rclick, focus CONTROL, close FORM. --form takes the picture
// of that form's own window alone.
#include <QApplication>
#include <QTimer>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "common/number.h"
#include "desktop/application.h"
#include "desktop/form_view.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"
#include "desktop/theme.h"
#include "forms/controls.h"
#include "sheets/workbench.h"
#include "shell/tag_commands.h"

namespace {

/// Runs one line; an unknown control ends the program with its name.
void Run(sheets::Workbench& workbench, const std::string& line) {
  std::istringstream words(line);
  std::string verb;
  std::string object;
  std::string text;
  words >> verb >> object >> std::ws;
  std::getline(words, text);
  if (verb == "menu") {
    workbench.Window().Run(object);
    return;
  }
  if (verb == "load") {
    shell::OpenFileOfItsKind(workbench.Space(), object);
    return;
  }
  if (verb == "recall") {
    workbench.Space().tags.SelectLine(common::IntIndex(common::Val(object)) - 1);
    shell::RecallSelectedTag(workbench.Space());
    return;
  }
  if (verb == "close") {
    workbench.Forms().Unload(*workbench.Forms().Find(object));
    return;
  }
  if (verb == "open") {
    workbench.Forms().Show(object);
    return;
  }
  forms::Form* const form = workbench.Forms().Active();
  forms::Control* const control = form == nullptr ? nullptr : form->Find(object);
  if (control == nullptr) {
    std::cerr << "no control " << object << '\n';
    std::exit(1);
  }
  if (auto* const box = dynamic_cast<forms::TextBox*>(control); box != nullptr && verb == "type") {
    box->Type(text);
  } else if (auto* const list = dynamic_cast<forms::ListControl*>(control);
             list != nullptr && verb == "pick") {
    list->Pick(text.starts_with("=") ? list->IndexOf(text.substr(1))
                                     : common::IntIndex(common::Val(text)));
  } else if (auto* const check = dynamic_cast<forms::CheckControl*>(control);
             check != nullptr && verb == "choose") {
    check->Choose();
  } else if (verb == "focus") {
    form->SetFocus(*control);
  } else if (verb == "click") {
    control->Click();
  } else if (verb == "dblclick") {
    control->DblClick();
  } else if (verb == "rclick") {
    control->RightClick();
  }
}

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  const QStringList words = QApplication::arguments();
  const auto option = [&words](const char* name) {
    const auto at = words.indexOf(QLatin1String(name));
    return at < 0 || at + 1 >= words.size() ? QString() : words[at + 1];
  };
  if (words.contains(QStringLiteral("--dark"))) {
    QApplication::setPalette(desktop::PaletteOf(desktop::Theme::Dark()));
  }
  desktop::PrepareApplication(application);
  desktop::QtPresenter presenter;
  shell::MemorySettings settings;
  sheets::Workbench workbench(presenter, ZEPHA_BUILD_DIR, settings);
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  window.show();
  workbench.Start();
  for (std::string line; std::getline(std::cin, line);) {
    if (!line.empty() && line.front() != '#') Run(workbench, line);
    workbench.Forms().CollectClosed();
  }
  const QStringList size = option("--size").split(QLatin1Char('x'));
  if (size.size() == 2) window.resize(size[0].toInt(), size[1].toInt());
  QTimer::singleShot(500, &window, [&] {
    QWidget* target = &window;
    if (!option("--form").isEmpty()) {
      if (forms::Form* const form = workbench.Forms().Find(option("--form").toStdString())) {
        target = presenter.ViewOf(*form)->window();
      }
    }
    if (!target->grab().save(words.value(1))) std::cerr << "the picture was not saved\n";
    QApplication::exit(0);
  });
  const int result = QApplication::exec();
  presenter.CloseAll();
  return result;
}
