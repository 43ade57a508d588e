#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <map>
#include <string>
#include <vector>

#include "forms/presenter.h"
#include "shell/form_manager.h"
#include "shell/settings.h"

class QDialog;
class QMdiSubWindow;
class QWidget;

namespace desktop {

class FormView;
class MainWindow;

/// Shows the forms in windows: sheets in the main window's area, tools and dialogues in windows of
/// their own. Message boxes and file questions wait for their answer; forms never do.
class QtPresenter : public forms::Presenter {
 public:
  QtPresenter() = default;
  ~QtPresenter() override;

  /// From now on the forms of this manager appear in this window.
  void Attach(MainWindow& window, shell::FormManager& forms);
  /// Places of tools are kept there, for later runs as well.
  void KeepPlacesIn(shell::SettingsStore& settings) { places_ = &settings; }
  /// Takes all windows off the screen, before the forms go.
  void CloseAll();
  /// The view of an open form, or null.
  FormView* ViewOf(const forms::Form& form) const;
  /// Runs a dialogue of Qt's to its end. Nothing is destroyed while it waits, because handlers are
  /// waiting behind it.
  int Wait(QDialog& dialog);

  common::Answer Present(const common::Message& message) override;
  void ShowForm(forms::Form& form) override;
  void RaiseForm(forms::Form& form) override;
  void CloseForm(forms::Form& form) override;
  void FormChanged(forms::Form& form) override;
  void ControlChanged(forms::Control& control) override;
  void FocusMoved(forms::Control& control) override;
  void Beep() override;
  void RunSteps(forms::Form& form, std::function<bool()> step) override;
  std::optional<std::string> AskFile(const forms::FileQuestion& question) override;

 private:
  struct Shown {
    QWidget* window = nullptr;
    FormView* view = nullptr;
  };

  QWidget* ShowSheet(forms::Form& form, FormView& view);
  QWidget* ShowOwnWindow(forms::Form& form, FormView& view);
  void KeepPlace(const forms::Form& form, const QWidget& window);
  QRect KeptPlace(const forms::Form& form) const;
  void Activated(QMdiSubWindow* window);
  void Activated(forms::Form& form);
  void UserCloses(forms::Form& form);
  void CollectLater();
  void Collect();

  QObject context_;
  /// Runs out as soon as the events on the way are done.
  QTimer collector_;
  MainWindow* mainWindow_ = nullptr;
  shell::FormManager* forms_ = nullptr;
  std::map<const forms::Form*, Shown> shown_;
  /// Where the tools stood when they were closed, by form name.
  shell::MemorySettings ownPlaces_;
  shell::SettingsStore* places_ = &ownPlaces_;
  /// They may go with each other.
  std::vector<QPointer<QWidget>> closed_;
  /// Dialogues that wait.
  int waiting_ = 0;
  /// The program moves windows itself; what Qt says about activation is no act of the user.
  int steering_ = 0;
};

}  // namespace desktop
