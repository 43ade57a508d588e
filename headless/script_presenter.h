#pragma once

#include <deque>
#include <string>
#include <vector>

#include "forms/presenter.h"

namespace headless {

/// Stands in for the window system: answers questions from a queue and remembers what was shown.
class ScriptPresenter : public forms::Presenter {
 public:
  struct Shown {
    common::Message message;
    common::Answer answer;
  };

  void QueueAnswer(common::Answer answer) { answers_.push_back(answer); }
  /// An empty path queues Cancel.
  void QueueFile(std::string path) { files_.push_back(std::move(path)); }

  /// Message boxes and beeps since the last call.
  std::vector<Shown> TakeShown();
  int TakeBeeps();

  common::Answer Present(const common::Message& message) override;
  void ShowForm(forms::Form&) override {}
  void RaiseForm(forms::Form&) override {}
  void CloseForm(forms::Form&) override {}
  void FormChanged(forms::Form&) override {}
  void ControlChanged(forms::Control&) override {}
  void FocusMoved(forms::Control&) override {}
  void Beep() override { ++beeps_; }
  void RunSteps(forms::Form& form, std::function<bool()> step) override;
  std::optional<std::string> AskFile(const forms::FileQuestion& question) override;

 private:
  common::Answer NextAnswer(common::Buttons buttons);

  std::deque<common::Answer> answers_;
  std::deque<std::string> files_;
  std::vector<Shown> shown_;
  int beeps_ = 0;
};

}  // namespace headless
