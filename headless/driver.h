#pragma once

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <string>

#include "headless/script_platform.h"
#include "headless/script_presenter.h"
#include "sheets/workbench.h"

namespace headless {

using Json = nlohmann::ordered_json;

/// Executes the commands of a script on the real sheets, one line at a time, and answers each with
/// one JSON object. A fault in a command never ends the run.
class Driver {
 public:
  /// installDir: folder of the data files. settings: where runs leave their state; it must outlive
  /// the driver. stateFolder: where unsaved work is kept for the case of a crash, "" for nowhere.
  Driver(std::string installDir, shell::SettingsStore& settings, std::string stateFolder = {});

  /// The program's own start.
  Json Start();
  /// One command line; blank lines and remarks are the caller's business.
  Json Execute(const std::string& line);

  /// Whether a command was not understood so far.
  bool Misunderstood() const { return misunderstood_; }
  /// Whether `quit` was met.
  bool Ended() const { return ended_; }
  /// Ends the run as closing the main window does.
  void Close();

  sheets::Workbench& Bench() { return workbench_; }

 private:
  /// A command that cannot be carried out; its sentence becomes the answer's error.
  struct Refusal {
    std::string sentence;
  };
  using Action = void (Driver::*)(const std::string& object, const std::string& text, Json& answer);
  static const std::map<std::string, Action>& Actions();

  void Run(const std::string& line, Json& answer);
  /// Runs a command of the workspace; a fault becomes a message, as in the window.
  void RunGuarded(const std::function<void()>& command);
  [[noreturn]] void Misunderstand(std::string sentence);

  forms::Form& ActiveForm();
  /// An open dialogue locks the main window.
  void CheckUnlocked();
  forms::Control& FindControl(const std::string& name);
  forms::Control& UsableControl(const std::string& name);
  template <class T>
  T& FindOf(const std::string& name, const char* what);

  void Open(const std::string& object, const std::string& text, Json& answer);
  void Menu(const std::string& object, const std::string& text, Json& answer);
  void PressButton(const std::string& object, const std::string& text, Json& answer);
  void Type(const std::string& object, const std::string& text, Json& answer);
  void Keys(const std::string& object, const std::string& text, Json& answer);
  void Enter(const std::string& object, const std::string& text, Json& answer);
  void Pick(const std::string& object, const std::string& text, Json& answer);
  void Choose(const std::string& object, const std::string& text, Json& answer);
  void Click(const std::string& object, const std::string& text, Json& answer);
  void DblClick(const std::string& object, const std::string& text, Json& answer);
  void RightClick(const std::string& object, const std::string& text, Json& answer);
  void QueueAnswer(const std::string& object, const std::string& text, Json& answer);
  void QueueFile(const std::string& object, const std::string& text, Json& answer);
  void Get(const std::string& object, const std::string& text, Json& answer);
  void Dump(const std::string& object, const std::string& text, Json& answer);
  void Forms(const std::string& object, const std::string& text, Json& answer);
  void TellWorkspace(const std::string& object, const std::string& text, Json& answer);
  void Row(const std::string& object, const std::string& text, Json& answer);
  void DuctRow(const std::string& object, const std::string& text, Json& answer);
  void Register(const std::string& object, const std::string& text, Json& answer);
  void Recall(const std::string& object, const std::string& text, Json& answer);
  void LoadFile(const std::string& object, const std::string& text, Json& answer);
  void SaveFile(const std::string& object, const std::string& text, Json& answer);
  void Print(const std::string& object, const std::string& text, Json& answer);
  void PrintAll(const std::string& object, const std::string& text, Json& answer);
  void Export(const std::string& object, const std::string& text, Json& answer);
  void Recalculate(const std::string& object, const std::string& text, Json& answer);
  void TellRecovery(const std::string& object, const std::string& text, Json& answer);
  void CloseForm(const std::string& object, const std::string& text, Json& answer);
  void Quit(const std::string& object, const std::string& text, Json& answer);

  ScriptPresenter presenter_;
  ScriptPlatform platform_{presenter_};
  sheets::Workbench workbench_;
  bool misunderstood_ = false;
  bool ended_ = false;
};

}  // namespace headless
