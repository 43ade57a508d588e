#pragma once

#include <QMainWindow>
#include <map>
#include <string>

#include "shell/main_window.h"

class QAction;
class QMdiArea;
class QMenu;
class QToolBar;

namespace desktop {

/// The main window: shows the commands of the shell, and the sheets in its area.
class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(shell::MainWindow& commands);

  QMdiArea& Area() const { return *area_; }
  /// Grows so that a sheet of that size is shown whole, as far as the screen goes.
  void MakeRoomFor(const QSize& sheet);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void FillMenu(QMenu& menu, const shell::MenuEntry& entry);
  void AddCommand(QMenu& menu, const shell::Command& command);
  void AddToolBar();
  void AddButton(const shell::ToolButton& button);
  void FillWindowList(QMenu& menu);
  void RunCommand(const std::string& name);
  /// Brings menus, tool bar and title to the state of the commands.
  void ShowState();
  void ShowToolBar(bool visible);

  shell::MainWindow& commands_;
  QMdiArea* area_;
  QToolBar* toolBar_ = nullptr;
  std::map<std::string, QAction*> actions_;
  std::map<int, QAction*> buttons_;
};

/// Moves a rectangle, and shrinks it if it must, so that it lies on a screen.
QRect OnScreen(QRect rectangle);

}  // namespace desktop
