#pragma once

#include <QMainWindow>
#include <QTimer>
#include <map>
#include <string>

#include "shell/main_window.h"

class QAction;
class QMenu;
class QMimeData;
class QScreen;
class QToolBar;

namespace desktop {

class SheetArea;

/// The main window: shows the commands of the shell, and the sheets in its area.
class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(shell::MainWindow& commands);

  SheetArea& Area() const { return *area_; }
  /// Grows so that a sheet of that size is shown whole, as far as the screen goes. A size that the
  /// user has chosen, in this run or an earlier one, stays, unless less than half of the sheet
  /// would show.
  void MakeRoomFor(const QSize& sheet);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddMenu(QMenu& menu, const shell::MenuEntry& entry);
  void FillMenu(QMenu& menu, const shell::MenuEntry& entry);
  /// Shows the new entries of a submenu.
  void RefillMenu(const std::string& name);
  void AddCommand(QMenu& menu, const shell::Command& command);
  void AddToolBar();
  void AddButton(const shell::ToolButton& button);
  void FillWindowList(QMenu& menu);
  void RunCommand(const std::string& name);
  /// Brings menus, tool bar and title to the state of the commands.
  void ShowState();
  void ShowToolBar(bool visible);
  void Place(const shell::WindowPlacement& placement);
  /// Tells the commands where the window stands.
  void TellPlacement();

  shell::MainWindow& commands_;
  SheetArea* area_;
  QToolBar* toolBar_ = nullptr;
  std::map<std::string, QAction*> actions_;
  std::map<int, QAction*> buttons_;
  std::map<std::string, QMenu*> menus_;
  /// Frame's corner and inner size of the window when it is neither maximised nor minimised.
  QRect normal_;
  /// The size that the program gave the window itself; empty: the user has chosen one.
  QSize ownSize_;
  QTimer settled_;
};

/// The screen that shows the middle of a rectangle, or the first one.
const QScreen* ScreenOf(const QRect& rectangle);
/// Moves a rectangle, and shrinks it if it must, so that it lies on a screen.
QRect OnScreen(QRect rectangle);

}  // namespace desktop
