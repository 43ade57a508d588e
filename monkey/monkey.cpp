#include "monkey.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "common/number.h"
#include "common/text.h"
#include "folder.h"
#include "forms/controls.h"
#include "shell/sheet_registry.h"

namespace monkey {

namespace {

std::string Short(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.5g", value);
  return text;
}

/// What a clumsy or curious user types into any field. None of it may hold the words that the
/// checks look for.
const std::vector<std::string>& OddTexts() {
  // clang-format off
  static const std::vector<std::string> kTexts = {
      "", " ", "　", ".", "-", "+", "1e", "e", "1e308", "1.8e308", "-1e308", "1e-308",
      "4.9e-324", "1e400", "1d300", "999999999999", "-999999999999", "0", "0.0", "-0", "-1",
      "-0.5", "00012", "1e-9", "1e9", "2147483647", "-2147483648", "4294967296",
      "9007199254740993", "32768", "65536", "1,000", "1 000", "1/2", "1-1/2", "1..2",
      "1.2.3", "--1", "&H10", "%d%s%n", "１２３", "－１．５", "十二", "液体", "ﾊﾝｶｸ", "～−‖¢£¬", "①㈱㎜",
      "髙﨑", "é", "€", "한국", "😀", "a\"b", "\"", "\"\"", "'", ",", "a,b", "\\", "\\n", "\t",
      "a\tb", "<b>&amp;</b>", "{}[]", "TAG-1", "FE-1101", "FE-1101 ", "0.1",
      "0.99999999999999999", "100", "273.15", "-273.15", "-273.16", "1E+15",
      "123456789.123456789"};
  // clang-format on
  return kTexts;
}

std::string LongText(Random& random) {
  static const std::vector<std::string> kParts = {"9", "あ", "x", "0.", "1e9 ", "\""};
  const std::string& part = random.Of(kParts);
  std::string text;
  for (int i = random.Between(20, 3000); i > 0; --i) text += part;
  return text;
}

const std::vector<std::string>& FilesFor(const std::string& line) {
  if (line.find("xcel") != std::string::npos) return Workbooks();
  if (line.find("rint") != std::string::npos || line == "button 4" ||
      line.find("PDF") != std::string::npos || line.find("印刷") != std::string::npos) {
    return PdfFiles();
  }
  return InstrumentFiles();
}

}  // namespace

bool CanBeHandled(const forms::Control& control) {
  return control.TakesFocus() || control.onClick || control.onDblClick || control.onRightClick ||
         control.onHover || dynamic_cast<const forms::Viewport*>(&control) != nullptr;
}

Monkey::Monkey(Player& player, Tally& tally, Random& random, std::string form)
    : player_(player), tally_(tally), random_(random), form_(std::move(form)) {
  for (const shell::SheetEntry& sheet : shell::SheetRegistry()) {
    if (sheet.form == form_) kind_ = sheet.kind;
  }
}

std::string Monkey::Next() {
  while (lines_.empty()) ThinkUp();
  std::string line = std::move(lines_.front());
  lines_.pop_front();
  return line;
}

void Monkey::ThinkUp() {
  const forms::Form* const front = player_.Bench().Forms().Active();
  if (front == nullptr) {
    if (random_.Percent(30)) UseWindow();
    OpenSomething();
    return;
  }
  // A dialogue locks the rest; the driver's own commands pass it all the same.
  if (front->Role() == forms::FormRole::kDialog && !random_.Percent(4)) {
    HandleControl(*front);
    return;
  }
  if (!form_.empty() && front->Name() != form_ && random_.Percent(30)) {
    GoBackToForm();
    return;
  }
  const int chance = random_.Between(0, 999);
  if (chance < 330) {
    ChangeAndCalculate();
  } else if (chance < 760) {
    HandleControl(*front);
  } else if (chance < 860) {
    RecallTag();
  } else if (chance < 900) {
    OpenSomething();
  } else if (chance < 945) {
    UseWindow();
  } else if (chance < 970) {
    UseFiles();
  } else if (chance < 985) {
    PrintOrExport();
  } else {
    LookOrBlunder();
  }
}

void Monkey::OpenSomething() {
  if (!form_.empty()) {
    GoBackToForm();
    return;
  }
  if (random_.Percent(60)) {
    Say("open " + random_.Of(shell::SheetRegistry()).kind);
  } else {
    Say("open " + random_.Of(player_.Bench().Forms().KnownNames()));
  }
}

void Monkey::GoBackToForm() { Say("open " + form_); }

/// A filled sheet is the best start for plausible calculations.
void Monkey::RecallTag() {
  const shell::Workspace& space = player_.Bench().Space();
  const shell::TagStore& tags = space.tags;
  if (random_.Percent(15) && (form_.empty() || kind_ == "CableDuct")) {
    Say("open CableDuct");
    if (space.ducts.DuctCount() < 1) Say("load ducts.dct");
    Say("open frmDuctList");
    Say("pick frmDuctList!lstDuct " + PickIndex(4, true));
    Say("click frmDuctList!cmdSend");
    return;
  }
  if (!tags.HasTags()) {
    Say("open Vortex");
    Say("load plant.zph");
    return;
  }
  std::vector<int> rows;
  for (int row = 1; row <= tags.TagCount(); ++row) {
    if (kind_.empty() || tags.Text(row, shell::kKindColumn) == kind_) rows.push_back(row);
  }
  Say("recall " + std::to_string(rows.empty() ? 1 : random_.Of(rows)));
}

std::string Monkey::NewText(const std::string& present, bool plausible) {
  if (!plausible && random_.Percent(60)) {
    return random_.Percent(8) ? LongText(random_) : random_.Of(OddTexts());
  }
  if (!present.empty() && common::WholeNumber(present) && random_.Percent(85)) {
    // Mostly a little more or less, now and then another order of magnitude.
    const double spread = random_.Percent(85) ? 0.3 : 3;
    try {
      const common::Real factor = std::pow(10, spread * (2 * random_.Fraction() - 1));
      return Short(common::Val(present) * factor);
    } catch (const common::RuntimeFault&) {
      return "1";
    }
  }
  static const std::vector<std::string> kRound = {"1",  "2",  "5",   "10",  "20",
                                                  "25", "50", "100", "0.5", "300"};
  return random_.Percent(50) ? random_.Of(kRound) : Short(std::pow(10, 8 * random_.Fraction() - 3));
}

std::string Monkey::PickIndex(int count, bool plausible) {
  if (plausible || random_.Percent(85)) {
    return std::to_string(random_.Below(static_cast<std::size_t>(std::max(count, 0))));
  }
  static const std::vector<std::string> kOdd = {"-1", "-2", "999", "=", "=無い", "x", "2147483648"};
  return random_.Percent(20) ? std::to_string(count) : random_.Of(kOdd);
}

/// Gives a control another value, as its kind has it.
void Monkey::Enter(const forms::Control& control, bool plausible) {
  const std::string name = FullName(control);
  if (dynamic_cast<const forms::TextBox*>(&control) != nullptr) {
    const std::string text = NewText(control.Text(), plausible);
    const bool byKeys = text.size() < 40 && random_.Percent(15);
    Say((byKeys ? "keys " : "type ") + name + " " + text);
  } else if (const auto* const combo = dynamic_cast<const forms::ComboBox*>(&control);
             combo != nullptr && combo->Editable() && random_.Percent(50)) {
    Say("type " + name + " " + NewText(control.Text(), plausible));
  } else if (const auto* const list = dynamic_cast<const forms::ListControl*>(&control)) {
    if (dynamic_cast<const forms::CheckList*>(list) != nullptr && random_.Percent(60)) {
      Say(kOwnMark + ("mark " + name) + " " + PickIndex(list->Count(), true) + " " +
          std::to_string(random_.Below(2)));
    } else {
      Say("pick " + name + " " + PickIndex(list->Count(), plausible));
    }
  } else if (const auto* const grid = dynamic_cast<const forms::Grid*>(&control)) {
    Say("pick " + name + " " + PickIndex(static_cast<int>(grid->Rows().size()), plausible));
  } else if (const auto* const bar = dynamic_cast<const forms::ScrollBar*>(&control)) {
    Say("pick " + name + " " + std::to_string(random_.Between(-1, bar->Maximum() + 1)));
  } else if (dynamic_cast<const forms::Viewport*>(&control) != nullptr) {
    if (random_.Percent(50)) {
      Say(kOwnMark + ("wheel " + name) + " " + std::to_string(random_.Between(-9, 9)));
    } else {
      Say(kOwnMark + ("resize " + name) + " " + std::to_string(random_.Between(0, 20000)) + " " +
          std::to_string(random_.Between(0, 20000)));
    }
  } else if (dynamic_cast<const forms::CheckControl*>(&control) != nullptr) {
    Say("choose " + name);
  } else {
    Say("click " + name);
  }
}

/// Any of the ways in which a control can be handled.
void Monkey::Handle(const forms::Control& control) {
  const std::string name = FullName(control);
  PrepareAnswers();
  if (dynamic_cast<const forms::Button*>(&control) != nullptr && random_.Percent(30)) {
    Say("file " + (random_.Percent(20) ? "" : random_.Of(FilesFor(name))));
  }
  const int chance = random_.Between(0, 99);
  if (chance < 66) {
    Enter(control, random_.Percent(60));
  } else if (chance < 74) {
    Say("dblclick " + name);
  } else if (chance < 82) {
    Say("click " + name);
  } else if (chance < 88) {
    Say("rclick " + name);
  } else if (chance < 94) {
    Say("enter " + name);
  } else if (chance < 96) {
    Say(kOwnMark + ("hover " + name));
  } else if (chance < 98) {
    Say(kOwnMark + ("arrow " + name) + " " + std::to_string(random_.Below(4)));
  } else {
    Say(kOwnMark + ("undo " + name));
  }
}

/// Of a few controls that a user can reach now, the one that has been touched least.
const forms::Control* Monkey::RarelyTouched(const forms::Form& form) {
  std::vector<const forms::Control*> reachable;
  for (const forms::Control* control : form.Controls()) {
    if (control->Usable() && CanBeHandled(*control)) reachable.push_back(control);
  }
  if (reachable.empty()) return nullptr;
  const forms::Control* best = nullptr;
  long fewest = 0;
  for (int i = random_.Between(1, 3); i > 0; --i) {
    const forms::Control* const control = random_.Of(reachable);
    const auto found = tally_.touched.find(FullName(*control));
    const long times = found == tally_.touched.end() ? 0 : found->second;
    if (best == nullptr || times < fewest) {
      best = control;
      fewest = times;
    }
  }
  return best;
}

void Monkey::HandleControl(const forms::Form& form) {
  const forms::Control* const control =
      random_.Percent(98) ? RarelyTouched(form) : random_.Of(form.Controls());
  if (control != nullptr) {
    Handle(*control);
  } else {
    Say("close");
  }
}

void Monkey::ChangeAndCalculate() {
  const forms::Form* const sheet = player_.Bench().Forms().ActiveSheet();
  if (sheet == nullptr) {
    RecallTag();
    return;
  }
  std::vector<const forms::Control*> entries, buttons;
  for (const forms::Control* control : sheet->Controls()) {
    if (!control->Usable()) continue;
    if (const auto* const button = dynamic_cast<const forms::Button*>(control)) {
      if (button->Role() == forms::ButtonRole::kDefault) buttons.push_back(control);
    } else if (control->TakesFocus()) {
      entries.push_back(control);
    }
  }
  if (entries.empty()) return HandleControl(*sheet);
  for (int i = random_.Between(1, 3); i > 0; --i) Enter(*random_.Of(entries), random_.Percent(90));
  // Estimates hang on double clicks of their fields.
  if (random_.Percent(25)) Say("dblclick " + FullName(*random_.Of(entries)));
  PrepareAnswers();
  if (!buttons.empty()) Say("click " + FullName(*random_.Of(buttons)));
}

void Monkey::PrepareAnswers() {
  static const std::vector<std::string> kWords = {"no", "yes", "cancel", "ok", "perhaps"};
  if (random_.Percent(12)) Say("answer " + random_.Of(kWords));
}

/// Menus, tool bar and the windows themselves.
void Monkey::UseWindow() {
  PrepareAnswers();
  std::string line;
  const int chance = random_.Between(0, 99);
  if (chance < 45) {
    line = "menu " + random_.Of(player_.Bench().Window().Commands()).name;
    if (line == "menu mnuExit" && !random_.Percent(10)) return;
  } else if (chance < 70) {
    line = "button " + std::to_string(random_.Between(0, 33));
  } else if (chance < 80) {
    line = kOwnMark + ("front " + random_.Of(player_.Bench().Forms().KnownNames()));
  } else if (chance < 92) {
    line = "close";
  } else if (chance < 98) {
    line = kOwnMark + ("shut " + random_.Of(player_.Bench().Forms().KnownNames()));
  } else {
    line = kOwnMark + std::string("restart");
  }
  if (random_.Percent(50)) {
    Say("file " + (random_.Percent(20) ? "" : random_.Of(FilesFor(line))));
  }
  Say(line);
}

void Monkey::UseFiles() {
  PrepareAnswers();
  const bool ducts = player_.Bench().Space().activeSheetKind == "CableDuct";
  const std::string& name = random_.Of(ducts ? DuctFiles() : InstrumentFiles());
  switch (random_.Below(8)) {
    case 0:
      Say("load " + name);
      break;
    case 1:
      Say("save");
      break;
    case 2:
      Say(kOwnMark + ("drop " + name));
      break;
    case 3:
    case 4:
      // The sample stays as it is: filled sheets come from it.
      Say("save " + (name.starts_with("plant") || name.starts_with("ducts") ? "own" : name));
      break;
    default:
      Say("register");
  }
}

void Monkey::PrintOrExport() {
  const int chance = random_.Between(0, 99);
  if (chance < 88) {
    Say("print");
  } else if (chance < 92) {
    Say("print " + random_.Of(PdfFiles()));
  } else if (chance < 94) {
    Say("printall " + random_.Of(PdfFiles()));
  } else {
    Say("export " + random_.Of(Workbooks()));
  }
}

/// Questions to the driver, and commands that are none.
void Monkey::LookOrBlunder() {
  // clang-format off
  static const std::vector<std::string> kLines = {
      "dump", "forms", "workspace", "get txtTagNo", "row 0", "row 300", "row 301", "row -1",
      "row x", "ductrow 0", "ductrow 20", "ductrow 19", "recall 0", "recall 301", "recall",
      "open", "open 無い", "menu", "menu mnu無い", "button", "button 99", "frobnicate", "click",
      "type 無い 1", "pick", "get frmOrifice!無い", "click !x", "enter frmCV!", "export",
      "printall", "file", "answer", "load", "load /dev/null", "save", "close x",
      "recalculate"};
  // clang-format on
  Say(random_.Of(kLines));
}

}  // namespace monkey
