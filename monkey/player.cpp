#include "player.h"

#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <sstream>

#include "checks.h"
#include "folder.h"
#include "forms/controls.h"

namespace monkey {

namespace {

using headless::Json;

/// Lists, grids and pictures are looked at after every so many events.
constexpr long kThoroughEvery = 8;

double CpuSeconds() {
  timespec now;
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

forms::Control* FindControl(sheets::Workbench& bench, const std::string& name) {
  const auto mark = name.find('!');
  if (mark == std::string::npos) return nullptr;
  const forms::Form* const form = bench.Forms().Find(name.substr(0, mark));
  return form == nullptr ? nullptr : form->Find(name.substr(mark + 1));
}

bool IsCalculation(const forms::Control* control) {
  const auto* const button = dynamic_cast<const forms::Button*>(control);
  return button != nullptr && button->Role() == forms::ButtonRole::kDefault &&
         button->Owner().Role() == forms::FormRole::kSheet;
}

bool IsFaultText(const std::string& text) {
  using common::Fault;
  constexpr std::array kFaults = {Fault::kInvalidArgument, Fault::kOverflow,
                                  Fault::kIndexOutOfRange, Fault::kDivisionByZero};
  return std::any_of(kFaults.begin(), kFaults.end(), [&](Fault fault) {
    return text.find(common::FaultText(fault)) != std::string::npos;
  });
}

/// Whether a line handles a control, and does not read a file.
bool IsSheetEvent(const std::string& line) {
  constexpr std::array kVerbs = {"click", "dblclick", "enter", "choose", "pick", "type", "keys"};
  return std::any_of(kVerbs.begin(), kVerbs.end(),
                     [&](const char* verb) { return line.starts_with(std::string(verb) + " "); });
}

/// What the user does to a control beyond the driver's commands.
void Handle(forms::Control& control, const std::string& verb, std::istringstream& words) {
  int first = 0;
  int second = 0;
  words >> first >> second;
  if (verb == "hover") {
    control.Hover();
  } else if (auto* const box = dynamic_cast<forms::TextBox*>(&control); box && verb == "arrow") {
    box->PressArrow(static_cast<forms::Arrow>(first));
  } else if (box != nullptr && verb == "undo") {
    box->Undo();
  } else if (auto* const list = dynamic_cast<forms::CheckList*>(&control);
             list != nullptr && verb == "mark" && first >= 0 && first < list->Count()) {
    list->SetMarked(first, second != 0);
  } else if (auto* const view = dynamic_cast<forms::Viewport*>(&control)) {
    if (verb == "wheel") view->Wheel(first);
    if (verb == "resize") view->Resize(first, second);
  }
}

}  // namespace

void StartWatch() {
  const itimerval patience = {{0, 0}, {kPatienceSeconds, 0}};
  setitimer(ITIMER_PROF, &patience, nullptr);
  alarm(60 + 10 * kPatienceSeconds);
}

std::string FullName(const forms::Control& control) {
  return control.Owner().Name() + "!" + control.Name();
}

Player::Player(Tally& tally, bool sound) : tally_(tally), settings_(kSettingsFile), sound_(sound) {}

void Player::Start() {
  StartWatch();
  driver_ = std::make_unique<headless::Driver>(kDataFolder, settings_);
  const Json answer = driver_->Start();
  CheckAnswer(answer);
  CheckForms(Bench(), true);
  CheckStores(Bench().Space());
}

void Player::Do(const std::string& line) {
  StartWatch();
  const double begin = CpuSeconds();
  std::istringstream words(line);
  std::string verb, object;
  words >> verb >> object;
  const forms::Control* const control = FindControl(Bench(), object);
  const bool calculates = verb == "click" && IsCalculation(control) && control->Usable();
  const bool reaches = control != nullptr && control->Usable();
  // A list without a selection is what scripts alone can bring about.
  if (line.find("damaged") != std::string::npos || line.ends_with(" -1")) sound_ = false;
  ++tally_.events;
  if (line.starts_with(kOwnMark)) {
    DoOwn(line);
  } else {
    const Json answer = driver_->Execute(line);
    CheckAnswer(answer);
    if (reaches && answer.at("ok").get<bool>()) ++tally_.touched[object];
    if (calculates) {
      ++tally_.counts["calculations"];
      if (!answer.contains("messages")) ++tally_.counts["calculations without a message"];
    }
    TakeStock(line, answer);
    CheckSaved(line, answer);
    if (driver_->Ended() || line == "menu mnuExit") {
      driver_.reset();
      Start();
    }
  }
  CheckForms(Bench(), ++sinceStart_ % kThoroughEvery == 0);
  CheckStores(Bench().Space());
  const double seconds = CpuSeconds() - begin;
  if (seconds > tally_.slowestSeconds) {
    tally_.slowestSeconds = seconds;
    tally_.slowestLine = line;
  }
}

void Player::DoOwn(const std::string& line) {
  std::istringstream words(line.substr(std::string(kOwnMark).size()));
  std::string verb, object;
  words >> verb >> object;
  try {
    if (verb == "restart") {
      driver_->Close();
      driver_.reset();
      Start();
    } else if (verb == "drop") {
      Bench().Window().DropFile(object);
    } else if (forms::Form* const form = Bench().Forms().Find(object)) {
      if (verb == "front") Bench().Forms().MakeActive(*form);
      if (verb == "shut") Bench().Forms().Unload(*form);
    } else if (forms::Control* const control = FindControl(Bench(), object);
               control != nullptr && control->Usable()) {
      ++tally_.touched[object];
      Handle(*control, verb, words);
    }
  } catch (const common::RuntimeFault& fault) {
    throw Finding{"a fault outside of any event: " + fault.Text()};
  }
  Bench().Forms().CollectClosed();
}

void Player::TakeStock(const std::string& line, const Json& answer) {
  if (!answer.contains("messages")) return;
  for (const Json& message : answer.at("messages")) {
    ++tally_.counts["messages"];
    const std::string& text = message.at("text").get_ref<const std::string&>();
    if (!IsFaultText(text)) continue;
    if (sound_ && IsSheetEvent(line) &&
        text.find(common::FaultText(common::Fault::kIndexOutOfRange)) != text.npos) {
      throw Finding{"a place outside a table: " + text};
    }
    const std::string object = line.substr(line.find(' ') + 1);
    ++tally_.faults[object.substr(0, object.find(' ')) + ": " + text];
  }
}

void Player::CheckSaved(const std::string& line, const Json& answer) {
  if (!line.starts_with("save ") || answer.contains("messages")) return;
  if (answer.contains("TagModified") && !answer.at("TagModified").get<bool>()) {
    CheckSavedTags(Bench().Space());
    ++tally_.counts["files of tags read back"];
  } else if (answer.contains("DuctModified") && !answer.at("DuctModified").get<bool>()) {
    CheckSavedDucts(Bench().Space());
    ++tally_.counts["files of ducts read back"];
  }
}

void Player::Finish() {
  StartWatch();
  CheckForms(Bench(), true);
  CheckRecords(Bench().Space());
  driver_->Close();
  driver_.reset();
}

}  // namespace monkey
