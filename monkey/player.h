#pragma once

#include <map>
#include <memory>
#include <string>

#include "headless/driver.h"

namespace monkey {

/// What a trial did, summed up over trials.
struct Tally {
  long events = 0;
  /// Events that reached a control, by "FORM!CONTROL".
  std::map<std::string, long> touched;
  /// Clicks on buttons that calculate, those of them after which results stood on the sheet,
  /// messages shown, saves compared ...
  std::map<std::string, long> counts;
  /// Sentences of the runtime's faults that the user was told, by form.
  std::map<std::string, long> faults;
  double slowestSeconds = 0;
  std::string slowestLine;
};

/// Ends the process with a signal when what begins now takes too long, on the processor or asleep.
void StartWatch();

/// Executes lines on the driver, in the current folder, and checks what comes of each. Lines that
/// begin with kOwnMark are events that a script of the driver has no command for; to the driver
/// they are remarks.
class Player {
 public:
  /// sound: the data files and all that will be opened are as this program writes them, so that no
  /// table can be too short for what is looked up in it.
  Player(Tally& tally, bool sound);

  /// The program's start; throws a Finding as Do does.
  void Start();
  /// One line. Throws a Finding when something is wrong after it.
  void Do(const std::string& line);
  /// Ends the run, and checks all that is too much for every event.
  void Finish();

  sheets::Workbench& Bench() { return driver_->Bench(); }

 private:
  void DoOwn(const std::string& line);
  void TakeStock(const std::string& line, const headless::Json& answer);
  void CheckSaved(const std::string& line, const headless::Json& answer);

  Tally& tally_;
  shell::FileSettings settings_;
  std::unique_ptr<headless::Driver> driver_;
  bool sound_;
  long sinceStart_ = 0;
};

inline constexpr const char* kOwnMark = "#monkey ";

/// "FORM!CONTROL", as scripts name it.
std::string FullName(const forms::Control& control);

/// CPU time of one event from which on it counts as hanging, seconds.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int kPatienceSeconds = 20;
#else
inline constexpr int kPatienceSeconds = 2;
#endif

}  // namespace monkey
