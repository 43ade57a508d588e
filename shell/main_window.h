#pragma once

#include <functional>
#include <string>
#include <vector>

#include "common/fault.h"

namespace shell {

/// A command of the main window, under the name of its menu item.
struct Command {
  std::string name;
  std::string caption;        // "&" marks the mnemonic
  std::string shortcut;       // "Ctrl+N" or ""
  std::string icon;           // name of its picture, "" for none
  std::function<void()> run;  // empty while nothing stands behind it yet
  bool enabled = true;
  bool checkable = false;
  bool checked = false;
};

/// An entry of the menu bar: a submenu with entries, a command, or a separator (empty name).
struct MenuEntry {
  std::string name;
  std::string caption;
  std::vector<MenuEntry> entries;
  bool IsSeparator() const { return name.empty(); }
};

/// A button of the tool bar. Buttons are numbered from 1; separators carry numbers, too.
struct ToolButton {
  int number = 0;
  std::string toolTip;
  std::string icon;
  std::function<void()> run;  // empty: separator, or nothing stands behind it yet
  bool enabled = true;
  bool separator = false;
  /// What it is called while it has no tool tip.
  std::string name;

  const std::string& Told() const { return toolTip.empty() ? name : toolTip; }
};

/// Place of the main window on the screen, in twips, and whether it is maximised or minimised.
struct WindowPlacement {
  enum State { kNormal = 0, kMinimised = 1, kMaximised = 2 };
  int top = 105;
  int left = 105;
  int width = 12000;
  int height = 8600;
  int state = kNormal;
};

/// The main window as the system knows it: menus, commands and tool bar with their state, without a
/// toolkit. The desktop shows it, the driver runs its commands.
class MainWindow {
 public:
  /// Adds an entry to the submenu of that name ("" for the menu bar), in order.
  void AddSubmenu(const std::string& parent, const std::string& name, const std::string& caption);
  void AddCommand(const std::string& parent, Command command);
  void AddSeparator(const std::string& parent);
  void AddButton(ToolButton button);

  const std::vector<MenuEntry>& Menus() const { return menus_; }
  const std::vector<ToolButton>& Buttons() const { return buttons_; }
  const std::vector<Command>& Commands() const { return commands_; }
  /// Command or null.
  const Command* Find(const std::string& name) const;
  const ToolButton* Button(int number) const;

  void SetCommandEnabled(const std::string& name, bool enabled);
  void SetChecked(const std::string& name, bool checked);
  void SetButtonEnabled(int number, bool enabled);
  void SetButtonToolTip(int number, const std::string& toolTip);

  /// Replaces the entries of a submenu that changes while the program runs.
  void SetEntries(const std::string& submenu, std::vector<Command> commands);

  /// Runs a command or presses a button; false if it is unknown, disabled or empty.
  bool Run(const std::string& name);
  bool Press(int number);
  /// The user has dropped a file on the window.
  void DropFile(const std::string& path) const;

  /// Where the window stands; whoever shows it keeps this up to date.
  const WindowPlacement& Placement() const { return placement_; }
  void Moved(const WindowPlacement& placement) { placement_ = placement; }
  /// Moves the window; onPlace tells whoever shows it.
  void Place(const WindowPlacement& placement);
  const std::string& Title() const { return title_; }
  void SetTitle(std::string title);
  bool ToolBarVisible() const { return toolBarVisible_; }
  void SetToolBarVisible(bool visible);

  /// Enabling, marks, tool tips or title changed.
  std::function<void()> onChange;
  /// The entries of this submenu were replaced.
  std::function<void(const std::string& submenu)> onEntries;
  std::function<void(const WindowPlacement&)> onPlace;
  /// A file was dropped on the window.
  std::function<void(const std::string& path)> onFileDropped;
  /// A command ended in a fault.
  std::function<void(const common::RuntimeFault&)> onFault;

 private:
  void RunGuarded(const std::function<void()>& run) const;
  /// The command of that name; an unknown name is our own mistake and throws.
  Command& Edit(const std::string& name);
  void TellChanged() const;

  std::vector<MenuEntry> menus_;
  std::vector<Command> commands_;
  std::vector<ToolButton> buttons_;
  std::string title_;
  WindowPlacement placement_;
  bool toolBarVisible_ = true;
};

}  // namespace shell
