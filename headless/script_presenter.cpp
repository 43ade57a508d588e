#include "headless/script_presenter.h"

#include <utility>

#include "forms/form.h"

namespace headless {

namespace {

using common::Answer;
using common::Buttons;

bool Offers(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::kOk:
      return answer == Answer::kOk;
    case Buttons::kOkCancel:
      return answer == Answer::kOk || answer == Answer::kCancel;
    case Buttons::kYesNo:
      return answer == Answer::kYes || answer == Answer::kNo;
    case Buttons::kYesNoCancel:
      return answer != Answer::kOk;
  }
  return false;
}

}  // namespace

Answer ScriptPresenter::NextAnswer(Buttons buttons) {
  if (buttons == Buttons::kOk || answers_.empty()) return common::DefaultAnswer(buttons);
  const Answer answer = answers_.front();
  answers_.pop_front();
  return Offers(buttons, answer) ? answer : common::DefaultAnswer(buttons);
}

Answer ScriptPresenter::Present(const common::Message& message) {
  const Answer answer = NextAnswer(message.buttons);
  shown_.push_back({message, answer});
  return answer;
}

std::vector<ScriptPresenter::Shown> ScriptPresenter::TakeShown() {
  return std::exchange(shown_, {});
}

int ScriptPresenter::TakeBeeps() { return std::exchange(beeps_, 0); }

/// A script goes on when the work is done.
void ScriptPresenter::RunSteps(forms::Form& form, std::function<bool()> step) {
  bool more = true;
  while (more) {
    more = false;
    form.RunEvent(nullptr, [&] { more = step(); });
  }
}

std::optional<std::string> ScriptPresenter::AskFile(const forms::FileQuestion&) {
  if (files_.empty()) return std::nullopt;
  const std::string path = files_.front();
  files_.pop_front();
  if (path.empty()) return std::nullopt;
  return path;
}

}  // namespace headless
