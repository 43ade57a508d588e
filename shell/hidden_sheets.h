#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/presenter.h"
#include "shell/workspace.h"

namespace shell {

class Sheet;

/// What filling and calculating a sheet that nobody sees changes for the others; put back when it
/// goes.
class KeptValues {
 public:
  explicit KeptValues(Workspace& workspace);
  ~KeptValues();
  KeptValues(const KeptValues&) = delete;
  KeptValues& operator=(const KeptValues&) = delete;

 private:
  Workspace& workspace_;
  data::ProcessState process_;
  flow::OrificeTable orifice_;
  std::string activeSheetKind_;
  std::string calcNote_;
  int elementKind_;
  bool calcFailed_;
  bool calcDone_;
};

/// One sheet of each kind, without a window, for work on many tags.
class HiddenSheets {
 public:
  explicit HiddenSheets(Workspace& workspace);
  ~HiddenSheets();
  HiddenSheets(const HiddenSheets&) = delete;
  HiddenSheets& operator=(const HiddenSheets&) = delete;

  /// The loaded sheet of a kind; null if the program has none that holds tags. Creating it changes
  /// the workspace: to be called while KeptValues live.
  Sheet* Of(const std::string& kind);

 private:
  Workspace& workspace_;
  std::vector<std::unique_ptr<Sheet>> sheets_;
};

/// Stands in for the window of a sheet that nobody sees: keeps the messages and answers every
/// question by its default button.
class Listener : public forms::Presenter {
 public:
  /// What came since the last call.
  std::vector<common::Message> Take() { return std::exchange(heard_, {}); }

  common::Answer Present(const common::Message& message) override {
    heard_.push_back(message);
    return common::DefaultAnswer(message.buttons);
  }
  void ShowForm(forms::Form&) override {}
  void RaiseForm(forms::Form&) override {}
  void CloseForm(forms::Form&) override {}
  void FormChanged(forms::Form&) override {}
  void ControlChanged(forms::Control&) override {}
  void FocusMoved(forms::Control&) override {}
  void Beep() override {}
  void RunSteps(forms::Form&, std::function<bool()>) override {}
  std::optional<std::string> AskFile(const forms::FileQuestion&) override { return std::nullopt; }

 private:
  std::vector<common::Message> heard_;
};

}  // namespace shell
