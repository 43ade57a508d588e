#pragma once

#include <deque>
#include <string>
#include <vector>

#include "player.h"
#include "random.h"

namespace monkey {

/// Thinks of the next line for the player, from what is open at the moment. A good half of its time
/// it behaves like a user who changes figures of a filled sheet and calculates; otherwise it
/// handles whatever there is in any way that there is.
class Monkey {
 public:
  /// form: the name of the form that it keeps to, or "".
  Monkey(Player& player, Tally& tally, Random& random, std::string form);

  std::string Next();

 private:
  void ThinkUp();
  void OpenSomething();
  void RecallTag();
  void ChangeAndCalculate();
  void HandleControl(const forms::Form& form);
  void UseWindow();
  void UseFiles();
  void PrintOrExport();
  void LookOrBlunder();
  void GoBackToForm();

  void Say(std::string line) { lines_.push_back(std::move(line)); }
  void PrepareAnswers();
  void Enter(const forms::Control& control, bool plausible);
  void Handle(const forms::Control& control);
  std::string NewText(const std::string& present, bool plausible);
  std::string PickIndex(int count, bool plausible);
  const forms::Control* RarelyTouched(const forms::Form& form);

  Player& player_;
  Tally& tally_;
  Random& random_;
  std::string form_;
  std::string kind_;
  std::deque<std::string> lines_;
};

/// Whether a user can do anything to a control.
bool CanBeHandled(const forms::Control& control);

}  // namespace monkey
