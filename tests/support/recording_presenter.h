#pragma once

#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/form.h"
#include "tests/support/scripted_messages.h"

namespace tests {

/// Answers questions from a list and records what a window would have been told.
class RecordingPresenter : public forms::Presenter {
 public:
  RecordingPresenter(std::initializer_list<bool> answers = {}) : messages(answers) {}

  ScriptedMessages messages;
  std::vector<std::string> events;   // "show frmX", "close frmX", "raise frmX", "focus txtX"
  std::vector<std::string> changed;  // names of changed controls
  int beeps = 0;
  std::optional<std::string> chosen;  // the answer to questions for a file
  std::vector<forms::FileQuestion> asked;

  common::Answer Present(const common::Message& message) override {
    return messages.Present(message);
  }
  void ShowForm(forms::Form& form) override { events.push_back("show " + form.Name()); }
  void RaiseForm(forms::Form& form) override { events.push_back("raise " + form.Name()); }
  void CloseForm(forms::Form& form) override { events.push_back("close " + form.Name()); }
  void FormChanged(forms::Form& form) override { events.push_back("caption " + form.Caption()); }
  void ControlChanged(forms::Control& control) override { changed.push_back(control.Name()); }
  void FocusMoved(forms::Control& control) override { events.push_back("focus " + control.Name()); }
  void Beep() override { ++beeps; }
  void RunSteps(forms::Form& form, std::function<bool()> step) override {
    bool more = true;
    while (more) {
      more = false;
      form.RunEvent(nullptr, [&] { more = step(); });
    }
  }
  std::optional<std::string> AskFile(const forms::FileQuestion& question) override {
    asked.push_back(question);
    return chosen;
  }
};

}  // namespace tests
