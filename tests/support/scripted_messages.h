#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

#include "common/messages.h"

namespace tests {

/// Answers message boxes from a list and keeps what was shown. A box with nothing but OK is
/// answered with OK; a question with the next answer (true is Yes), and Yes when none is left.
class ScriptedMessages : public common::Messages {
 public:
  ScriptedMessages(std::initializer_list<bool> answers = {}) : answers_(answers) {}

  common::Answer Present(const common::Message& message) override {
    shown.push_back(message);
    if (message.buttons == common::Buttons::kOk) return common::Answer::kOk;
    const bool yes = next_ < answers_.size() ? answers_[next_++] : true;
    return yes ? common::Answer::kYes : common::Answer::kNo;
  }

  std::vector<common::Message> shown;

 private:
  std::vector<bool> answers_;
  std::size_t next_ = 0;
};

}  // namespace tests
