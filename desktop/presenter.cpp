#include "desktop/presenter.h"

#include <QApplication>
#include <QFileInfo>
#include <locale>
#include <sstream>

#include "desktop/form_view.h"
#include "desktop/main_window.h"
#include "desktop/questions.h"
#include "desktop/sheet_area.h"
#include "desktop/windows.h"
#include "forms/control.h"

namespace desktop {

namespace {

constexpr const char* kToolPlaces = "Tools";

/// Counts one more while it lives.
class Counting {
 public:
  explicit Counting(int& count) : count_(count) { ++count_; }
  ~Counting() { --count_; }
  Counting(const Counting&) = delete;
  Counting& operator=(const Counting&) = delete;

 private:
  int& count_;
};

}  // namespace

QtPresenter::~QtPresenter() { CloseAll(); }

void QtPresenter::Attach(MainWindow& window, shell::FormManager& forms) {
  mainWindow_ = &window;
  forms_ = &forms;
  collector_.setSingleShot(true);
  QObject::connect(&collector_, &QTimer::timeout, &context_, [this] { Collect(); });
  QObject::connect(&window.Area(), &QMdiArea::subWindowActivated, &context_,
                   [this](QMdiSubWindow* sheet) { Activated(sheet); });
}

void QtPresenter::CloseAll() {
  const Counting steering(steering_);
  for (const auto& [form, shown] : shown_) closed_.emplace_back(shown.window);
  shown_.clear();
  for (const QPointer<QWidget>& window : closed_) delete window.data();
  closed_.clear();
}

FormView* QtPresenter::ViewOf(const forms::Form& form) const {
  const auto found = shown_.find(&form);
  return found == shown_.end() ? nullptr : found->second.view;
}

void QtPresenter::ShowForm(forms::Form& form) {
  const Counting steering(steering_);
  auto* const view = new FormView(form);
  QWidget* const window =
      form.Role() == forms::FormRole::kSheet ? ShowSheet(form, *view) : ShowOwnWindow(form, *view);
  shown_[&form] = {window, view};
  window->setObjectName(QString::fromStdString(form.Name()));
  FormChanged(form);
  view->TakeFocus();
}

QWidget* QtPresenter::ShowSheet(forms::Form& form, FormView& view) {
  SheetArea& area = mainWindow_->Area();
  const QMdiSubWindow* const current = area.activeSubWindow();
  const bool fills = !area.AnySheet() || (current != nullptr && current->isMaximized());
  auto* const window = new SheetWindow(view);
  window->onClose = [this, &form] { UserCloses(form); };
  mainWindow_->MakeRoomFor(view.NaturalSize());
  area.addSubWindow(window);
  if (fills) {
    window->showMaximized();
  } else {
    window->show();
  }
  area.setActiveSubWindow(window);
  return window;
}

QWidget* QtPresenter::ShowOwnWindow(forms::Form& form, FormView& view) {
  QWidget* const modal = QApplication::activeModalWidget();
  auto* const window = new OwnWindow(view, modal != nullptr ? *modal : *mainWindow_);
  window->onClose = [this, &form] { UserCloses(form); };
  window->onActivate = [this, &form] { Activated(form); };
  if (const QRect kept = KeptPlace(form); !kept.isEmpty()) {
    const QRect place = OnScreen(kept);
    window->move(place.topLeft());
    window->resize(place.size());
  }
  window->show();
  window->activateWindow();
  return window;
}

/// "left top width height" in pixels.
void QtPresenter::KeepPlace(const forms::Form& form, const QWidget& window) {
  if (form.Role() != forms::FormRole::kTool || form.WantedPlace()) return;
  std::ostringstream place;
  place.imbue(std::locale::classic());
  place << window.x() << ' ' << window.y() << ' ' << window.width() << ' ' << window.height();
  places_->Set(kToolPlaces, form.Name(), place.str());
}

/// Empty when none was kept or it is damaged.
QRect QtPresenter::KeptPlace(const forms::Form& form) const {
  if (form.Role() != forms::FormRole::kTool || form.WantedPlace()) return {};
  std::istringstream place(places_->Get(kToolPlaces, form.Name()));
  int left = 0, top = 0, width = 0, height = 0;
  if (!(place >> left >> top >> width >> height)) return {};
  return {left, top, width, height};
}

void QtPresenter::RaiseForm(forms::Form& form) {
  const auto found = shown_.find(&form);
  if (found == shown_.end()) return;
  const Counting steering(steering_);
  QWidget* const window = found->second.window;
  if (auto* const sheet = qobject_cast<QMdiSubWindow*>(window)) {
    mainWindow_->Area().setActiveSubWindow(sheet);
    if (sheet->isMinimized()) sheet->showNormal();
  } else {
    window->show();
    window->raise();
    window->activateWindow();
  }
  found->second.view->TakeFocus();
}

void QtPresenter::CloseForm(forms::Form& form) {
  const auto found = shown_.find(&form);
  if (found == shown_.end()) return;
  const Counting steering(steering_);
  // An event of one of its widgets may be on the way, so the window goes later.
  QWidget* const window = found->second.window;
  KeepPlace(form, *window);
  shown_.erase(found);
  closed_.emplace_back(window);
  // A window that was opened from this one would go with it.
  for (const auto& [other, shown] : shown_) {
    if (shown.window->parentWidget() != window) continue;
    const QPoint place = shown.window->pos();
    shown.window->setParent(mainWindow_, shown.window->windowFlags());
    shown.window->move(place);
    shown.window->show();
  }
  // Hiding the focus would hand it on to the next field, as if the user had gone there.
  QWidget* const focus = QApplication::focusWidget();
  if (focus != nullptr && window->isAncestorOf(focus)) focus->clearFocus();
  window->hide();
  CollectLater();
}

void QtPresenter::FormChanged(forms::Form& form) {
  const auto found = shown_.find(&form);
  if (found == shown_.end()) return;
  found->second.window->setWindowTitle(QString::fromStdString(form.Caption()));
}

void QtPresenter::ControlChanged(forms::Control& control) {
  if (FormView* const view = ViewOf(control.Owner())) view->Show(control);
}

void QtPresenter::FocusMoved(forms::Control& control) {
  if (FormView* const view = ViewOf(control.Owner())) view->FocusOn(control);
}

void QtPresenter::Beep() { QApplication::beep(); }

/// The timer goes with the window of the form, so that closing it ends the work. It is started anew
/// after each step, because a step may wait for a message box.
void QtPresenter::RunSteps(forms::Form& form, std::function<bool()> step) {
  FormView* const view = ViewOf(form);
  if (view == nullptr) return;
  auto* const timer = new QTimer(view);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, timer, [this, timer, &form, step = std::move(step)] {
    if (ViewOf(form) == nullptr) return;
    bool more = false;
    form.RunEvent(nullptr, [&] { more = step(); });
    if (ViewOf(form) == nullptr) return;
    if (more) {
      timer->start();
    } else {
      timer->deleteLater();
    }
  });
  timer->start();
}

void QtPresenter::Activated(QMdiSubWindow* window) {
  if (window == nullptr) return;
  for (const auto& [form, shown] : shown_) {
    if (shown.window == window) return Activated(shown.view->Shown());
  }
}

void QtPresenter::Activated(forms::Form& form) {
  if (steering_ == 0 && waiting_ == 0) forms_->MakeActive(form);
}

void QtPresenter::UserCloses(forms::Form& form) { forms_->Unload(form); }

void QtPresenter::CollectLater() { collector_.start(); }

void QtPresenter::Collect() {
  // A handler may stand behind a box that waits; the box calls again.
  if (waiting_ > 0) return;
  for (const QPointer<QWidget>& window : closed_) delete window.data();
  closed_.clear();
  forms_->CollectClosed();
}

int QtPresenter::Wait(QDialog& dialog) {
  int result = 0;
  {
    const Counting waiting(waiting_);
    result = dialog.exec();
  }
  CollectLater();
  return result;
}

common::Answer QtPresenter::Present(const common::Message& message) {
  QWidget* const active = QApplication::activeWindow();
  MessageBox box(message, active != nullptr ? active : mainWindow_);
  Wait(box);
  return box.Answer();
}

std::optional<std::string> QtPresenter::AskFile(const forms::FileQuestion& question) {
  FileBox box(question, mainWindow_);
  while (Wait(box) == QDialog::Accepted) {
    const std::string path = box.Path();
    const bool replaces = question.save && QFileInfo::exists(QString::fromStdString(path));
    if (!replaces || Ask(box.ReplaceQuestion(), question.title, common::Icon::kWarning)) {
      return path;
    }
  }
  return std::nullopt;
}

}  // namespace desktop
