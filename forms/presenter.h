#pragma once

#include <functional>
#include <optional>
#include <string>

#include "common/messages.h"

namespace forms {

class Control;
class Form;

/// A question for a file.
struct FileQuestion {
  bool save = false;
  std::string title;
  /// Name and pattern as dialogues show them, "ZEPHAデータ(*.zph)|*.zph".
  std::string filter;
  /// Extension with its point, for a chosen name that has none.
  std::string extension;
  /// Where the dialogue opens; "", or a folder that is gone: where the user keeps documents.
  std::string folder = {};
  /// The name that is proposed for saving.
  std::string name = {};
};

/// Whoever shows the forms and stands between them and the user: the window system, the driver, or
/// a recorder in tests.
class Presenter : public common::Messages {
 public:
  /// A form has been loaded and is to appear; it lives until CloseForm.
  virtual void ShowForm(Form& form) = 0;
  /// Comes to the front and takes the focus.
  virtual void RaiseForm(Form& form) = 0;
  /// The form is about to be destroyed.
  virtual void CloseForm(Form& form) = 0;
  /// The caption of a form changed.
  virtual void FormChanged(Form& form) = 0;

  /// A control looks different now.
  virtual void ControlChanged(Control& control) = 0;
  /// The form has moved its focus to this control.
  virtual void FocusMoved(Control& control) = 0;
  virtual void Beep() = 0;

  /// Runs a step again and again, with other events in between, until it returns false or the form
  /// is closed: long work that the user can watch and stop.
  virtual void RunSteps(Form& form, std::function<bool()> step) = 0;

  /// The file that the user chose, or nothing when he cancelled.
  virtual std::optional<std::string> AskFile(const FileQuestion& question) = 0;
};

}  // namespace forms
