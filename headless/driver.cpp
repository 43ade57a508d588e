#include "headless/driver.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <utility>

#include "common/parse.h"
#include "common/text.h"
#include "forms/controls.h"
#include "headless/states.h"
#include "shell/duct_commands.h"
#include "shell/lifecycle.h"
#include "shell/page_recorder.h"
#include "shell/recalculation.h"
#include "shell/recovery_commands.h"
#include "shell/report.h"
#include "shell/sheet_registry.h"
#include "shell/tag_commands.h"
#include "shell/workbook_export.h"

namespace headless {

namespace {

/// Cuts the next word off a line; the rest keeps its blanks but the one behind the word.
std::string TakeWord(std::string& line) {
  const auto end = line.find(' ');
  std::string word = line.substr(0, end);
  line = end == std::string::npos ? "" : line.substr(end + 1);
  return word;
}

/// The rest of a line as one text, blanks and all.
std::string WholeLine(const std::string& object, const std::string& text) {
  return text.empty() ? object : object + " " + text;
}

std::vector<std::string> ControlNames(const forms::Form& form) {
  std::vector<std::string> names;
  for (const forms::Control* control : form.Controls()) names.push_back(control->Name());
  return names;
}

}  // namespace

Driver::Driver(std::string installDir, shell::SettingsStore& settings, std::string stateFolder)
    : workbench_(presenter_, std::move(installDir), settings, &platform_) {
  workbench_.Space().recovery.UseFolder(std::move(stateFolder));
}

const std::map<std::string, Driver::Action>& Driver::Actions() {
  static const std::map<std::string, Action> kActions = {
      {"open", &Driver::Open},
      {"menu", &Driver::Menu},
      {"button", &Driver::PressButton},
      {"type", &Driver::Type},
      {"keys", &Driver::Keys},
      {"enter", &Driver::Enter},
      {"pick", &Driver::Pick},
      {"choose", &Driver::Choose},
      {"click", &Driver::Click},
      {"dblclick", &Driver::DblClick},
      {"rclick", &Driver::RightClick},
      {"answer", &Driver::QueueAnswer},
      {"file", &Driver::QueueFile},
      {"get", &Driver::Get},
      {"dump", &Driver::Dump},
      {"forms", &Driver::Forms},
      {"workspace", &Driver::TellWorkspace},
      {"recovery", &Driver::TellRecovery},
      {"close", &Driver::CloseForm},
      {"quit", &Driver::Quit},
      {"row", &Driver::Row},
      {"ductrow", &Driver::DuctRow},
      {"register", &Driver::Register},
      {"recall", &Driver::Recall},
      {"load", &Driver::LoadFile},
      {"save", &Driver::SaveFile},
      {"print", &Driver::Print},
      {"printall", &Driver::PrintAll},
      {"export", &Driver::Export},
      {"recalculate", &Driver::Recalculate},
  };
  return kActions;
}

Json Driver::Start() {
  Json answer = {{"do", "start"}, {"ok", true}};
  workbench_.Start();
  for (const auto& shown : presenter_.TakeShown()) answer["messages"].push_back(StateOf(shown));
  return answer;
}

Json Driver::Execute(const std::string& line) {
  Json answer = {{"do", line}, {"ok", true}};
  const auto refuse = [&answer](const std::string& sentence) {
    answer["ok"] = false;
    answer["error"] = sentence;
  };
  try {
    Run(line, answer);
  } catch (const Refusal& refusal) {
    refuse(refusal.sentence);
  } catch (const common::RuntimeFault& fault) {
    refuse(fault.Text());
  } catch (const std::exception& failure) {
    refuse(failure.what());
  }
  for (const auto& shown : presenter_.TakeShown()) answer["messages"].push_back(StateOf(shown));
  presenter_.TakeBeeps();
  workbench_.Forms().CollectClosed();
  // A script has no time to pass between its commands, so each is as good as a tick of the clock.
  shell::KeepRecovery(workbench_.Space());
  return answer;
}

void Driver::Run(const std::string& line, Json& answer) {
  std::string rest = line;
  const std::string verb = TakeWord(rest);
  const auto action = Actions().find(verb);
  if (action == Actions().end()) Misunderstand("There is no command \"" + verb + "\".");
  const std::string object = TakeWord(rest);
  (this->*action->second)(object, rest, answer);
}

void Driver::RunGuarded(const std::function<void()>& command) {
  try {
    command();
  } catch (const common::RuntimeFault& fault) {
    presenter_.Show(fault.Text(), {}, common::Icon::kWarning);
  }
}

void Driver::Misunderstand(std::string sentence) {
  misunderstood_ = true;
  throw Refusal{std::move(sentence)};
}

void Driver::Close() { shell::WorkspaceEnd(workbench_.Space()); }

forms::Form& Driver::ActiveForm() {
  forms::Form* const form = workbench_.Forms().Active();
  if (form == nullptr) Misunderstand("No form is open.");
  return *form;
}

void Driver::CheckUnlocked() {
  const forms::Form* const form = workbench_.Forms().Active();
  if (form != nullptr && form->Role() == forms::FormRole::kDialog) {
    throw Refusal{"The main window is locked while " + form->Name() + " is open."};
  }
}

forms::Control& Driver::FindControl(const std::string& name) {
  const auto mark = name.find('!');
  forms::Form* form = nullptr;
  if (mark == std::string::npos) {
    form = &ActiveForm();
  } else {
    form = workbench_.Forms().Find(name.substr(0, mark));
    if (form == nullptr) Misunderstand("No form " + name.substr(0, mark) + " is open.");
  }
  const std::string controlName = mark == std::string::npos ? name : name.substr(mark + 1);
  forms::Control* const control = form->Find(controlName);
  if (control == nullptr) {
    Misunderstand(form->Name() + " has no control \"" + controlName + "\"; the nearest name is \"" +
                  NearestName(controlName, ControlNames(*form)) + "\".");
  }
  return *control;
}

/// What cannot be reached with mouse or keys cannot be reached from a script either.
forms::Control& Driver::UsableControl(const std::string& name) {
  forms::Control& control = FindControl(name);
  if (!control.Visible()) throw Refusal{control.Name() + " is not visible."};
  if (!control.Enabled()) throw Refusal{control.Name() + " is disabled."};
  return control;
}

template <class T>
T& Driver::FindOf(const std::string& name, const char* what) {
  forms::Control& control = FindControl(name);
  auto* const typed = dynamic_cast<T*>(&control);
  if (typed == nullptr) Misunderstand(control.Name() + " is not " + what + ".");
  return *typed;
}

void Driver::Open(const std::string& object, const std::string& text, Json&) {
  const std::string name = WholeLine(object, text);
  shell::FormManager& forms = workbench_.Forms();
  if (const shell::SheetEntry* const sheet = shell::FindSheet(name)) {
    if (!forms.Knows(sheet->form)) Misunderstand("The sheet " + name + " is not there yet.");
    shell::OpenSheet(workbench_.Space(), name);
    return;
  }
  if (!forms.Knows(name)) {
    std::vector<std::string> names = forms.KnownNames();
    for (const auto& sheet : shell::SheetRegistry()) names.push_back(sheet.kind);
    Misunderstand("There is no form \"" + name + "\"; the nearest name is \"" +
                  NearestName(name, names) + "\".");
  }
  forms.Show(name);
}

void Driver::Menu(const std::string& object, const std::string&, Json&) {
  const shell::Command* const command = workbench_.Window().Find(object);
  if (command == nullptr) {
    std::vector<std::string> names;
    for (const auto& known : workbench_.Window().Commands()) names.push_back(known.name);
    Misunderstand("There is no command " + object + "; the nearest name is " +
                  NearestName(object, names) + ".");
  }
  if (!command->run) Misunderstand(object + " is not there yet.");
  CheckUnlocked();
  if (!workbench_.Window().Run(object)) throw Refusal{object + " is disabled."};
}

void Driver::PressButton(const std::string& object, const std::string&, Json&) {
  const std::optional<int> number = common::ParseNumber<int>(object);
  const shell::ToolButton* const button = number ? workbench_.Window().Button(*number) : nullptr;
  if (button == nullptr) Misunderstand("There is no tool bar button " + object + ".");
  if (button->separator) return;
  if (!button->run) Misunderstand("Button " + object + " is not there yet.");
  CheckUnlocked();
  if (!workbench_.Window().Press(*number)) throw Refusal{"Button " + object + " is disabled."};
}

void Driver::Type(const std::string& object, const std::string& text, Json&) {
  forms::Control& control = FindControl(object);
  if (auto* const combo = dynamic_cast<forms::ComboBox*>(&control);
      combo != nullptr && combo->Editable()) {
    combo->SetText(text);
    return;
  }
  auto& box = FindOf<forms::TextBox>(object, "a text box");
  box.Owner().SetFocus(box);
  box.Type(text);
}

void Driver::Keys(const std::string& object, const std::string& text, Json& answer) {
  UsableControl(object);
  auto& box = FindOf<forms::TextBox>(object, "a text box");
  presenter_.TakeBeeps();
  for (const char32_t key : common::CodePoints(text)) {
    if (box.PressKey(key)) box.Type(box.Text() + common::Utf8(std::u32string_view(&key, 1)));
  }
  answer["beeps"] = presenter_.TakeBeeps();
  answer["text"] = box.Text();
}

void Driver::Enter(const std::string& object, const std::string&, Json& answer) {
  forms::Control& control = UsableControl(object);
  forms::Form& form = control.Owner();
  form.SetFocus(control);
  if (auto* const box = dynamic_cast<forms::TextBox*>(&control)) {
    box->PressKey(U'\r');
  } else if (auto* const list = dynamic_cast<forms::ListControl*>(&control)) {
    list->PressEnter();
  } else if (dynamic_cast<forms::Button*>(&control) != nullptr) {
    control.Click();
  } else {
    form.FocusNext(control);
  }
  answer["focus"] = form.Focused() == nullptr ? "" : form.Focused()->Name();
}

void Driver::Pick(const std::string& object, const std::string& text, Json&) {
  forms::Control& control = FindControl(object);
  auto* const list = dynamic_cast<forms::ListControl*>(&control);
  if (list != nullptr && text.starts_with("=")) {
    const int index = list->IndexOf(text.substr(1));
    if (index < 0) {
      Misunderstand(control.Name() + " has no entry \"" + text.substr(1) + "\"; the nearest is \"" +
                    NearestName(text.substr(1), list->Items()) + "\".");
    }
    list->Pick(index);
    return;
  }
  const std::optional<int> index = common::ParseNumber<int>(text);
  if (!index) Misunderstand("\"" + text + "\" is neither an entry's number nor =TEXT.");
  const auto checkRange = [&](int first, std::size_t count) {
    if (*index < first || *index >= static_cast<int>(count)) {
      Misunderstand(control.Name() + " has entries 0 to " +
                    std::to_string(static_cast<int>(count) - 1) + ".");
    }
  };
  if (list != nullptr) {
    checkRange(-1, list->Items().size());
    list->Pick(*index);
  } else if (auto* const grid = dynamic_cast<forms::Grid*>(&control)) {
    checkRange(0, grid->Rows().size());
    grid->Pick(*index);
  } else if (auto* const bar = dynamic_cast<forms::ScrollBar*>(&control)) {
    bar->SetValue(*index);
  } else {
    Misunderstand(control.Name() + " has no entries.");
  }
}

void Driver::Choose(const std::string& object, const std::string&, Json&) {
  UsableControl(object);
  FindOf<forms::CheckControl>(object, "an option button or check box").Choose();
}

void Driver::Click(const std::string& object, const std::string&, Json&) {
  forms::Control& control = UsableControl(object);
  control.Owner().SetFocus(control);
  if (auto* const check = dynamic_cast<forms::CheckControl*>(&control)) {
    check->Choose();
  } else {
    control.Click();
  }
}

void Driver::DblClick(const std::string& object, const std::string&, Json&) {
  forms::Control& control = UsableControl(object);
  control.Owner().SetFocus(control);
  control.DblClick();
}

void Driver::RightClick(const std::string& object, const std::string&, Json&) {
  UsableControl(object).RightClick();
}

void Driver::QueueAnswer(const std::string& object, const std::string&, Json&) {
  const std::optional<common::Answer> answer = AnswerOf(object);
  if (!answer) Misunderstand("\"" + object + "\" is none of yes, no, ok, cancel.");
  presenter_.QueueAnswer(*answer);
}

void Driver::QueueFile(const std::string& object, const std::string& text, Json&) {
  presenter_.QueueFile(WholeLine(object, text));
}

void Driver::Get(const std::string& object, const std::string&, Json& answer) {
  answer.update(StateOf(FindControl(object)));
}

void Driver::Dump(const std::string&, const std::string&, Json& answer) {
  const forms::Form& form = ActiveForm();
  answer["form"] = form.Name();
  answer["caption"] = form.Caption();
  Json controls = Json::array();
  for (const forms::Control* control : form.TabOrder()) controls.push_back(StateOf(*control));
  for (const forms::Control* control : form.Controls()) {
    const auto& shown = form.TabOrder();
    if (std::find(shown.begin(), shown.end(), control) == shown.end()) {
      controls.push_back(StateOf(*control));
    }
  }
  answer["controls"] = std::move(controls);
}

void Driver::Forms(const std::string&, const std::string&, Json& answer) {
  answer["forms"] = Json::array();
  for (const forms::Form* form : workbench_.Forms().Open()) answer["forms"].push_back(form->Name());
}

void Driver::TellWorkspace(const std::string&, const std::string&, Json& answer) {
  answer.update(StateOf(workbench_.Space()));
}

void Driver::Row(const std::string& object, const std::string&, Json& answer) {
  const std::optional<int> row = common::ParseNumber<int>(object);
  if (!row || *row < 0 || *row > shell::kMaxTags) Misunderstand("There is no row " + object + ".");
  answer["row"] = workbench_.Space().tags.Row(*row);
}

void Driver::DuctRow(const std::string& object, const std::string&, Json& answer) {
  const std::optional<int> row = common::ParseNumber<int>(object);
  if (!row || *row < 0 || *row >= shell::kMaxDucts) {
    Misunderstand("There is no row " + object + ".");
  }
  answer["row"] = workbench_.Space().ducts.Row(*row);
}

void Driver::Register(const std::string&, const std::string&, Json& answer) {
  RunGuarded([this] { shell::RegisterTag(workbench_.Space()); });
  answer["TagCount"] = workbench_.Space().tags.TagCount();
  answer["CurrentTag"] = workbench_.Space().tags.currentTag;
}

/// A tag by its number or by its place in the list, from 1.
void Driver::Recall(const std::string& object, const std::string& text, Json&) {
  shell::Workspace& space = workbench_.Space();
  const std::string tag = WholeLine(object, text);
  int row = space.tags.RowOf(tag);
  if (row == 0) row = common::ParseNumber<int>(tag).value_or(0);
  if (row < 1 || row > space.tags.TagCount()) Misunderstand("There is no tag " + tag + ".");
  RunGuarded([&] {
    space.tags.SelectLine(row - 1);
    shell::RecallSelectedTag(space);
  });
}

void Driver::LoadFile(const std::string& object, const std::string& text, Json& answer) {
  shell::Workspace& space = workbench_.Space();
  const std::string path = WholeLine(object, text);
  if (shell::DuctsOnTop(space)) {
    RunGuarded([&] { shell::OpenDuctListNamed(space, path); });
    answer["DuctCount"] = space.ducts.DuctCount();
    return;
  }
  RunGuarded([&] { shell::OpenFileNamed(space, path); });
  answer["TagCount"] = space.tags.TagCount();
}

/// Without a path it saves under the present name.
void Driver::SaveFile(const std::string& object, const std::string& text, Json& answer) {
  shell::Workspace& space = workbench_.Space();
  const std::string path = WholeLine(object, text);
  const bool ducts = shell::DuctsOnTop(space);
  RunGuarded([&] {
    if (path.empty()) {
      shell::SaveFile(space);
    } else if (ducts) {
      shell::SaveDuctListNamed(space, path);
    } else {
      shell::SaveFileNamed(space, path);
    }
  });
  if (ducts) {
    answer["DuctModified"] = space.ducts.ductModified;
  } else {
    answer["TagModified"] = space.tags.tagModified;
  }
}

/// Without a path it tells the page.
void Driver::Print(const std::string& object, const std::string& text, Json& answer) {
  shell::Workspace& space = workbench_.Space();
  const std::string path = WholeLine(object, text);
  if (!path.empty()) {
    bool written = false;
    RunGuarded([&] { written = shell::PrintToPdf(space, path); });
    if (!written) throw Refusal{"Nothing was printed to " + path + "."};
    return;
  }
  shell::PageRecorder page;
  space.printScale = shell::kPaperScale;
  RunGuarded([&] { shell::PrintSheet(space, page); });
  answer["items"] = ItemsOf(page);
}

void Driver::PrintAll(const std::string& object, const std::string& text, Json& answer) {
  shell::Workspace& space = workbench_.Space();
  const std::string path = WholeLine(object, text);
  if (path.empty()) Misunderstand("printall wants the path of a PDF file.");
  std::unique_ptr<shell::PrintJob> job = platform_.StartPdf(path);
  if (!job) throw Refusal{path + " cannot be written."};
  std::vector<int> rows;
  for (int row = 1; row <= space.tags.TagCount(); ++row) rows.push_back(row);
  shell::TagPrinter printer(space, std::move(job), std::move(rows));
  while (printer.Next()) continue;
  const bool written = printer.Finish();
  answer["pages"] = printer.Pages();
  answer["left"] = printer.Left();
  if (!written) throw Refusal{path + " could not be written whole."};
}

void Driver::Export(const std::string& object, const std::string& text, Json& answer) {
  shell::Workspace& space = workbench_.Space();
  const std::string path = WholeLine(object, text);
  if (path.empty()) Misunderstand("export wants the path of a workbook.");
  bool written = false;
  RunGuarded([&] {
    std::error_code unknown;
    if (std::filesystem::exists(path, unknown) &&
        !space.Shown().Ask(shell::ReplaceQuestion(path))) {
      return;
    }
    shell::WriteWorkbook(space, path);
    written = true;
  });
  if (!written) throw Refusal{"Nothing was exported to " + path + "."};
  answer["tags"] = std::max(space.tags.TagCount(), 0);
}

void Driver::Recalculate(const std::string& object, const std::string& text, Json& answer) {
  const std::string what = WholeLine(object, text);
  if (!what.empty() && what != "write") Misunderstand("recalculate knows \"write\" alone.");
  shell::Recalculator recalculator(workbench_.Space());
  while (recalculator.Next()) continue;
  answer["tags"] = recalculator.Recalculated();
  answer["changes"] = Json::array();
  for (const shell::TagChange& change : recalculator.Changes()) {
    answer["changes"].push_back({{"row", change.row},
                                 {"tag", change.tag},
                                 {"field", change.field},
                                 {"old", change.before},
                                 {"new", change.after}});
  }
  answer["notes"] = Json::array();
  for (const shell::TagNote& note : recalculator.Notes()) {
    answer["notes"].push_back({{"row", note.row}, {"tag", note.tag}, {"text", note.text}});
  }
  if (what == "write") recalculator.Write(recalculator.ChangedRows());
}

/// The copy as it is after the command before.
void Driver::TellRecovery(const std::string&, const std::string&, Json& answer) {
  const shell::Recovery& recovery = workbench_.Space().recovery;
  answer["folder"] = recovery.Folder();
  answer["copy"] = StateOf(recovery.Kept());
  answer["trouble"] = recovery.Trouble();
}

void Driver::CloseForm(const std::string&, const std::string&, Json&) {
  workbench_.Forms().Unload(ActiveForm());
}

void Driver::Quit(const std::string&, const std::string&, Json&) {
  Close();
  ended_ = true;
}

}  // namespace headless
