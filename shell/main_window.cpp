#include "shell/main_window.h"

#include <algorithm>
#include <stdexcept>

namespace shell {

namespace {

MenuEntry* FindEntry(std::vector<MenuEntry>& entries, const std::string& name) {
  for (MenuEntry& entry : entries) {
    if (entry.name == name) return &entry;
    if (MenuEntry* const inner = FindEntry(entry.entries, name)) return inner;
  }
  return nullptr;
}

std::vector<MenuEntry>& EntriesOf(std::vector<MenuEntry>& menus, const std::string& parent) {
  if (parent.empty()) return menus;
  MenuEntry* const entry = FindEntry(menus, parent);
  if (entry == nullptr) throw std::logic_error("no submenu " + parent);
  return entry->entries;
}

}  // namespace

void MainWindow::AddSubmenu(const std::string& parent, const std::string& name,
                            const std::string& caption) {
  EntriesOf(menus_, parent).push_back({name, caption, {}});
}

void MainWindow::AddCommand(const std::string& parent, Command command) {
  EntriesOf(menus_, parent).push_back({command.name, command.caption, {}});
  if (!command.run) command.enabled = false;
  commands_.push_back(std::move(command));
}

void MainWindow::AddSeparator(const std::string& parent) {
  EntriesOf(menus_, parent).emplace_back();
}

void MainWindow::AddButton(ToolButton button) {
  if (!button.run) button.enabled = false;
  buttons_.push_back(std::move(button));
}

const Command* MainWindow::Find(const std::string& name) const {
  const auto found = std::find_if(commands_.begin(), commands_.end(),
                                  [&](const Command& command) { return command.name == name; });
  return found == commands_.end() ? nullptr : &*found;
}

Command& MainWindow::Edit(const std::string& name) {
  const Command* const command = Find(name);
  if (command == nullptr) throw std::logic_error("no command " + name);
  return commands_[static_cast<std::size_t>(command - commands_.data())];
}

const ToolButton* MainWindow::Button(int number) const {
  const auto found = std::find_if(buttons_.begin(), buttons_.end(), [&](const ToolButton& button) {
    return button.number == number;
  });
  return found == buttons_.end() ? nullptr : &*found;
}

void MainWindow::SetCommandEnabled(const std::string& name, bool enabled) {
  Command& command = Edit(name);
  command.enabled = enabled && command.run;
  TellChanged();
}

void MainWindow::SetChecked(const std::string& name, bool checked) {
  Command& command = Edit(name);
  command.checkable = true;
  command.checked = checked;
  TellChanged();
}

void MainWindow::SetButtonEnabled(int number, bool enabled) {
  for (ToolButton& button : buttons_) {
    if (button.number == number) button.enabled = enabled && button.run;
  }
  TellChanged();
}

void MainWindow::SetButtonToolTip(int number, const std::string& toolTip) {
  for (ToolButton& button : buttons_) {
    if (button.number == number) button.toolTip = toolTip;
  }
  TellChanged();
}

void MainWindow::SetEntries(const std::string& submenu, std::vector<Command> commands) {
  std::vector<MenuEntry>& entries = EntriesOf(menus_, submenu);
  for (const MenuEntry& entry : entries) {
    std::erase_if(commands_, [&](const Command& command) { return command.name == entry.name; });
  }
  entries.clear();
  for (Command& command : commands) AddCommand(submenu, std::move(command));
  if (onEntries) onEntries(submenu);
}

void MainWindow::Place(const WindowPlacement& placement) {
  placement_ = placement;
  if (onPlace) onPlace(placement);
}

void MainWindow::RunGuarded(const std::function<void()>& run) const {
  const auto copy = run;  // the command may rebuild the menus
  try {
    copy();
  } catch (const common::RuntimeFault& fault) {
    if (onFault) onFault(fault);
  }
}

bool MainWindow::Run(const std::string& name) {
  const Command* const command = Find(name);
  if (command == nullptr || !command->enabled || !command->run) return false;
  RunGuarded(command->run);
  return true;
}

bool MainWindow::Press(int number) {
  const ToolButton* const button = Button(number);
  if (button == nullptr || !button->enabled || !button->run) return false;
  RunGuarded(button->run);
  return true;
}

void MainWindow::DropFile(const std::string& path) const {
  if (onFileDropped) RunGuarded([&] { onFileDropped(path); });
}

void MainWindow::SetTitle(std::string title) {
  title_ = std::move(title);
  TellChanged();
}

void MainWindow::SetToolBarVisible(bool visible) {
  toolBarVisible_ = visible;
  TellChanged();
}

void MainWindow::TellChanged() const {
  if (onChange) onChange();
}

}  // namespace shell
