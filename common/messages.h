#pragma once

#include <string>

namespace common {

enum class Icon { kNone, kInformation, kQuestion, kWarning, kCritical };
enum class Buttons { kOk, kYesNo, kYesNoCancel, kOkCancel };
enum class Answer { kOk, kCancel, kYes, kNo };

/// What Enter answers: the first button.
constexpr Answer DefaultAnswer(Buttons buttons) {
  return buttons == Buttons::kOk || buttons == Buttons::kOkCancel ? Answer::kOk : Answer::kYes;
}

/// A message box as the user sees it. Line breaks are "\n".
struct Message {
  std::string text;
  std::string title;
  Icon icon = Icon::kNone;
  Buttons buttons = Buttons::kOk;
};

/// Whoever tells the user something and asks him: boxes in the window, a list of answers in the
/// driver and in tests. It is handed in, because the order of messages is part of a calculation.
class Messages {
 public:
  Messages() = default;
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;
  virtual ~Messages() = default;

  /// Shows a message and waits for its answer.
  virtual Answer Present(const Message& message) = 0;

  /// Tells something, with an OK button.
  void Show(std::string text, std::string title = {}, Icon icon = Icon::kNone) {
    Present({std::move(text), std::move(title), icon, Buttons::kOk});
  }

  /// Asks with Yes and No; true for Yes.
  bool Ask(std::string text, std::string title = {}, Icon icon = Icon::kQuestion) {
    return Present({std::move(text), std::move(title), icon, Buttons::kYesNo}) == Answer::kYes;
  }
};

/// Hears nothing: for a calculation whose messages are told elsewhere or not wanted.
class NoMessages : public Messages {
 public:
  Answer Present(const Message&) override { return Answer::kOk; }
};

}  // namespace common
