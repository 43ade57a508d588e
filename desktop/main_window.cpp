#include "desktop/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

#include "desktop/icons.h"
#include "desktop/theme.h"

namespace desktop {

namespace {

constexpr QRect kFirstPlace(7, 7, 800, 573);
constexpr const char* kExitCommand = "mnuExit";
constexpr const char* kWindowMenu = "mnuWindow";

QString Escaped(QString text) { return text.replace(QLatin1Char('&'), QLatin1String("&&")); }

}  // namespace

QRect OnScreen(QRect rectangle) {
  const QScreen* screen = QGuiApplication::screenAt(rectangle.center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  const QRect room = screen->availableGeometry();
  rectangle.setSize(rectangle.size().boundedTo(room.size()));
  rectangle.moveTo(std::clamp(rectangle.x(), room.x(), room.right() + 1 - rectangle.width()),
                   std::clamp(rectangle.y(), room.y(), room.bottom() + 1 - rectangle.height()));
  return rectangle;
}

MainWindow::MainWindow(shell::MainWindow& commands)
    : commands_(commands), area_(new QMdiArea(this)) {
  setObjectName(QStringLiteral("frmMDI"));
  setWindowIcon(IconNamed("app"));
  setStyleSheet(WindowStyle(Theme::Current()));
  area_->setBackground(Theme::Current().window);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(area_);
  setContextMenuPolicy(Qt::NoContextMenu);
  for (const shell::MenuEntry& entry : commands_.Menus()) {
    FillMenu(*menuBar()->addMenu(QString::fromStdString(entry.caption)), entry);
  }
  AddToolBar();
  statusBar()->setSizeGripEnabled(true);
  commands_.onChange = [this] { ShowState(); };
  ShowState();
  setGeometry(OnScreen(kFirstPlace));
}

void MainWindow::FillMenu(QMenu& menu, const shell::MenuEntry& entry) {
  menu.setObjectName(QString::fromStdString(entry.name));
  menu.setToolTipsVisible(true);
  if (entry.name == kWindowMenu) {
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { FillWindowList(menu); });
  }
  for (const shell::MenuEntry& inner : entry.entries) {
    const shell::Command* const command = commands_.Find(inner.name);
    if (inner.IsSeparator()) {
      menu.addSeparator();
    } else if (command != nullptr) {
      AddCommand(menu, *command);
    } else {
      FillMenu(*menu.addMenu(QString::fromStdString(inner.caption)), inner);
    }
  }
}

void MainWindow::AddCommand(QMenu& menu, const shell::Command& command) {
  QAction* const action = menu.addAction(QString::fromStdString(command.caption));
  action->setObjectName(QString::fromStdString(command.name));
  action->setShortcut(QKeySequence(QString::fromStdString(command.shortcut)));
  action->setIcon(IconNamed(command.icon));
  action->setCheckable(command.checkable);
  // A Mac would move entries by their captions otherwise.
  action->setMenuRole(QAction::NoRole);
  connect(action, &QAction::triggered, this, [this, name = command.name] { RunCommand(name); });
  actions_[command.name] = action;
}

void MainWindow::AddToolBar() {
  constexpr int kIconSize = 22;
  toolBar_ = addToolBar(QStringLiteral("ツールバー"));
  toolBar_->setObjectName(QStringLiteral("Toolbar1"));
  toolBar_->setMovable(false);
  toolBar_->setIconSize({kIconSize, kIconSize});
  for (const shell::ToolButton& button : commands_.Buttons()) AddButton(button);
}

void MainWindow::AddButton(const shell::ToolButton& button) {
  if (button.separator) {
    const QList<QAction*> shown = toolBar_->actions();
    if (!shown.isEmpty() && !shown.back()->isSeparator()) toolBar_->addSeparator();
    return;
  }
  QAction* const action = toolBar_->addAction(IconNamed(button.icon), QString());
  action->setObjectName(QStringLiteral("Toolbar1.%1").arg(button.number));
  // The focus stays in the sheet, so that a command such as undo finds its field.
  toolBar_->widgetForAction(action)->setFocusPolicy(Qt::NoFocus);
  connect(action, &QAction::triggered, this,
          [this, number = button.number] { commands_.Press(number); });
  buttons_[button.number] = action;
}

void MainWindow::FillWindowList(QMenu& menu) {
  menu.clear();
  const auto windows = area_->subWindowList();
  for (QMdiSubWindow* window : windows) {
    if (window->isHidden()) continue;
    QAction* const action = menu.addAction(Escaped(window->windowTitle()));
    action->setCheckable(true);
    action->setChecked(window == area_->activeSubWindow());
    connect(action, &QAction::triggered, window,
            [this, window] { area_->setActiveSubWindow(window); });
  }
  menu.addSeparator();
  menu.addAction(QStringLiteral("並べて表示(&T)"), area_, [this] { area_->tileSubWindows(); });
  menu.addAction(QStringLiteral("重ねて表示(&C)"), area_, [this] { area_->cascadeSubWindows(); });
}

void MainWindow::RunCommand(const std::string& name) {
  if (name == kExitCommand) {
    close();
  } else {
    commands_.Run(name);
  }
  // A checkable action has changed its own mark; the command may have decided otherwise.
  ShowState();
}

void MainWindow::ShowState() {
  setWindowTitle(QString::fromStdString(commands_.Title()));
  for (const shell::Command& command : commands_.Commands()) {
    const auto action = actions_.find(command.name);
    if (action == actions_.end()) continue;
    action->second->setEnabled(command.enabled && command.run);
    action->second->setChecked(command.checked);
  }
  for (const auto& [number, action] : buttons_) {
    const shell::ToolButton& button = *commands_.Button(number);
    const QString tip = QString::fromStdString(button.toolTip);
    action->setEnabled(button.enabled && button.run);
    action->setText(Escaped(tip));
    action->setToolTip(tip.toHtmlEscaped());
    action->setStatusTip(tip);
  }
  ShowToolBar(commands_.ToolBarVisible());
}

/// The window grows and shrinks by the height of the tool bar, so that the sheet keeps its size.
void MainWindow::ShowToolBar(bool visible) {
  constexpr int kHeightShown = 8600 / 15;
  constexpr int kHeightHidden = 8180 / 15;
  if (toolBar_->isHidden() != visible) return;
  toolBar_->setVisible(visible);
  const bool normal = isVisible() && !isMaximized() && !isFullScreen();
  const int change = kHeightShown - kHeightHidden;
  if (normal) resize(width(), height() + (visible ? change : -change));
}

void MainWindow::MakeRoomFor(const QSize& sheet) {
  if (isMaximized() || isFullScreen()) return;
  layout()->activate();
  const QSize missing = (sheet - area_->size()).expandedTo({0, 0});
  if (!missing.isNull()) setGeometry(OnScreen({pos(), size() + missing}));
}

/// Closing the window is the exit command, whose work is done first.
void MainWindow::closeEvent(QCloseEvent* event) {
  commands_.Run(kExitCommand);
  event->accept();
}

}  // namespace desktop
