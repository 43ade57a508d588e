// Takes pictures of the workbench in states that a script describes:
//   take_picture [OUT.png] [--size WIDTHxHEIGHT] [--dark] [--form NAME] [--script FILE] [< SCRIPT]
// Lines of the script: load PATH, recall TAG (its number or place in the list), menu NAME, open
// FORM, close FORM, reset (closes all forms), type CONTROL TEXT, pick CONTROL N or =TEXT, choose,
// click, dblclick, rclick, focus CONTROL, where CONTROL may be FORM!CONTROL; size WIDTHxHEIGHT of
// the window, place TOOL X Y WIDTH HEIGHT over it; picture PATH [FORM] of the window, or of that
// form alone, desk PATH of the window and the tools over it. --form takes the last picture of that
// form's own window alone. What a user would be told ends the program: nobody is there to read it.
#include <QApplication>
#include <QEventLoop>
#include <QPainter>
#include <QTimer>
#include <cstdlib>
#include <fstream>
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

[[noreturn]] void Fail(const std::string& sentence) {
  std::cerr << sentence << std::endl;
  std::_Exit(1);
}

/// A box would wait for a click for ever.
class PicturePresenter : public desktop::QtPresenter {
 public:
  common::Answer Present(const common::Message& message) override {
    Fail("a message came up: " + message.text);
  }
};

/// Lets the windows take their sizes and draw themselves.
void Settle(int ms) {
  QEventLoop loop;
  QTimer::singleShot(ms, &loop, &QEventLoop::quit);
  loop.exec();
}

/// Takes the pictures of one workbench and its window.
class Camera {
 public:
  Camera(sheets::Workbench& workbench, const desktop::QtPresenter& presenter, QWidget& window)
      : workbench_(workbench), presenter_(presenter), window_(window) {}

  /// Runs one line; an unknown name ends the program.
  void Run(const std::string& line);
  void Resize(const std::string& text) {
    const QStringList size = QString::fromStdString(text).split(QLatin1Char('x'));
    if (size.size() == 2) window_.resize(size[0].toInt(), size[1].toInt());
  }
  desktop::FormView& ViewOf(const std::string& name) const {
    forms::Form* const form = workbench_.Forms().Find(name);
    if (form == nullptr) Fail("no form " + name);
    return *presenter_.ViewOf(*form);
  }
  static void Save(const QPixmap& picture, const QString& path) {
    if (!picture.save(path)) Fail("the picture was not saved: " + path.toStdString());
  }

 private:
  QPixmap Desk() const;
  bool RunOnWindow(const std::string& verb, const std::string& object, const std::string& text);
  forms::Control& FindControl(const std::string& name) const;
  static void Pick(forms::ListControl& list, const std::string& text);

  sheets::Workbench& workbench_;
  const desktop::QtPresenter& presenter_;
  QWidget& window_;
};

forms::Control& Camera::FindControl(const std::string& name) const {
  const auto mark = name.find('!');
  forms::Form* const form = mark == std::string::npos
                                ? workbench_.Forms().Active()
                                : workbench_.Forms().Find(name.substr(0, mark));
  forms::Control* const control =
      form == nullptr ? nullptr
                      : form->Find(mark == std::string::npos ? name : name.substr(mark + 1));
  if (control == nullptr) Fail("no control " + name);
  return *control;
}

void Camera::Pick(forms::ListControl& list, const std::string& text) {
  const int index =
      text.starts_with("=") ? list.IndexOf(text.substr(1)) : common::IntIndex(common::Val(text));
  if (index < 0) Fail(list.Name() + " has no entry " + text);
  list.Pick(index);
}

/// The window and the tools over it, each at its place below a strip with its title: there is no
/// window manager who would draw one.
QPixmap Camera::Desk() const {
  constexpr int kStrip = 24;
  QPixmap desk = window_.grab();
  QPainter painter(&desk);
  for (const forms::Form* form : workbench_.Forms().Open()) {
    QWidget& tool = *presenter_.ViewOf(*form)->window();
    if (&tool == &window_ || !tool.isVisible()) continue;
    const QRect place(tool.pos() - window_.pos(), tool.size());
    const QRect strip(place.left(), place.top() - kStrip, place.width(), kStrip);
    const QPalette& palette = tool.palette();
    painter.fillRect(strip, palette.mid());
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(strip, Qt::AlignCenter, tool.windowTitle());
    painter.drawPixmap(place.topLeft(), tool.grab());
    painter.drawRect(place.united(strip).adjusted(0, 0, -1, -1));
  }
  return desk;
}

/// What concerns no control; false for another verb.
bool Camera::RunOnWindow(const std::string& verb, const std::string& object,
                         const std::string& text) {
  shell::FormManager& forms = workbench_.Forms();
  if (verb == "menu") {
    workbench_.Window().Run(object);
  } else if (verb == "load") {
    shell::OpenFileOfItsKind(workbench_.Space(), object);
  } else if (verb == "recall") {
    shell::TagStore& tags = workbench_.Space().tags;
    const int row = tags.RowOf(object);
    tags.SelectLine((row > 0 ? row : common::IntIndex(common::Val(object))) - 1);
    shell::RecallSelectedTag(workbench_.Space());
  } else if (verb == "open") {
    forms.Show(object);
  } else if (verb == "close") {
    forms.Unload(*forms.Find(object));
  } else if (verb == "reset") {
    forms.UnloadAll();
  } else if (verb == "size") {
    Resize(object);
  } else if (verb == "place") {
    std::istringstream numbers(text);
    int x = 0, y = 0, width = 0, height = 0;
    numbers >> x >> y >> width >> height;
    ViewOf(object).window()->setGeometry({window_.pos() + QPoint(x, y), QSize(width, height)});
  } else if (verb == "picture" || verb == "desk") {
    constexpr int kDrawn = 150;  // ms
    forms.CollectClosed();
    Settle(kDrawn);
    QWidget& target = text.empty() ? window_ : ViewOf(text);
    Save(verb == "desk" ? Desk() : target.grab(), QString::fromStdString(object));
  } else {
    return false;
  }
  return true;
}

void Camera::Run(const std::string& line) {
  std::istringstream words(line);
  std::string verb;
  std::string object;
  std::string text;
  words >> verb >> object >> std::ws;
  std::getline(words, text);
  if (RunOnWindow(verb, object, text)) return;
  forms::Control& control = FindControl(object);
  auto* const list = dynamic_cast<forms::ListControl*>(&control);
  if (auto* const box = dynamic_cast<forms::TextBox*>(&control); box != nullptr && verb == "type") {
    box->Type(text);
  } else if (list != nullptr && verb == "type") {
    list->SetText(text);
  } else if (list != nullptr && verb == "pick") {
    Pick(*list, text);
  } else if (auto* const grid = dynamic_cast<forms::Grid*>(&control);
             grid != nullptr && verb == "pick") {
    grid->Pick(common::IntIndex(common::Val(text)));
  } else if (auto* const check = dynamic_cast<forms::CheckControl*>(&control);
             check != nullptr && verb == "choose") {
    check->Choose();
  } else if (verb == "focus") {
    control.Owner().SetFocus(control);
  } else if (verb == "click") {
    control.Click();
  } else if (verb == "dblclick") {
    control.DblClick();
  } else if (verb == "rclick") {
    control.RightClick();
  } else {
    Fail("not understood: " + line);
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
  PicturePresenter presenter;
  shell::MemorySettings settings;
  sheets::Workbench workbench(presenter, ZEPHA_BUILD_DIR, settings);
  desktop::MainWindow window(workbench.Window());
  presenter.Attach(window, workbench.Forms());
  window.show();
  workbench.Start();
  Camera camera(workbench, presenter, window);
  // Before the script: what it fills takes the size that the picture shall have.
  camera.Resize(option("--size").toStdString());
  std::ifstream script(option("--script").toStdString());
  std::istream& lines = script.is_open() ? script : std::cin;
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line.front() != '#') camera.Run(line);
    workbench.Forms().CollectClosed();
  }
  if (const QString path = words.value(1);
      !path.isEmpty() && !path.startsWith(QLatin1String("--"))) {
    constexpr int kDrawn = 500;  // ms
    Settle(kDrawn);
    const std::string form = option("--form").toStdString();
    QWidget& target = form.empty() ? window : *camera.ViewOf(form).window();
    Camera::Save(target.grab(), path);
  }
  presenter.CloseAll();
  return 0;
}
