#pragma once

#include <deque>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "common/messages.h"

namespace tests {

/// Answers messages from a list, yes or no, and records them all. Only questions use an answer up;
/// with none left the answer is yes or OK.
class ScriptedMessages : public common::Messages {
 public:
  ScriptedMessages(std::initializer_list<bool> answers = {}) : answers_(answers) {}

  std::vector<common::Message> shown;
  std::optional<common::Answer> always;  // the answer to whatever is asked

  common::Answer Present(const common::Message& message) override {
    shown.push_back(message);
    if (always) return *always;
    if (message.buttons == common::Buttons::kOk) return common::Answer::kOk;
    const bool yes = NextAnswer();
    if (message.buttons == common::Buttons::kOkCancel) {
      return yes ? common::Answer::kOk : common::Answer::kCancel;
    }
    return yes ? common::Answer::kYes : common::Answer::kNo;
  }

  /// One more answer at the end of the list.
  void Queue(bool yes) { answers_.push_back(yes); }

  /// The texts shown so far, in order.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const common::Message& message : shown) texts.push_back(message.text);
    return texts;
  }

 private:
  bool NextAnswer() {
    if (answers_.empty()) return true;
    const bool answer = answers_.front();
    answers_.pop_front();
    return answer;
  }

  std::deque<bool> answers_;
};

}  // namespace tests
