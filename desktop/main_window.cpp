#include "desktop/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <algorithm>

#include "desktop/binding.h"
#include "desktop/icons.h"
#include "desktop/paper/draw_surface.h"
#include "desktop/sheet_area.h"
#include "desktop/theme.h"

namespace desktop {

namespace {

constexpr int kSettledMs = 50;
constexpr const char* kExitCommand = "mnuExit";
constexpr const char* kWindowMenu = "mnuWindow";

/// The rectangle of a placement in device-independent pixels.
QRect RectOf(const shell::WindowPlacement& placement) {
  return {placement.left / kTwipsPerPixel, placement.top / kTwipsPerPixel,
          placement.width / kTwipsPerPixel, placement.height / kTwipsPerPixel};
}

const shell::MenuEntry* FindEntry(const std::vector<shell::MenuEntry>& entries,
                                  const std::string& name) {
  for (const shell::MenuEntry& entry : entries) {
    if (entry.name == name) return &entry;
    if (const shell::MenuEntry* const inner = FindEntry(entry.entries, name)) return inner;
  }
  return nullptr;
}

/// The first instrument file among what is dragged, "" when there is none.
QString InstrumentFileIn(const QMimeData& data) {
  const auto urls = data.urls();
  for (const QUrl& url : urls) {
    QString path = url.toLocalFile();
    if (path.endsWith(QLatin1String(".zph"), Qt::CaseInsensitive)) return path;
  }
  return {};
}

}  // namespace

const QScreen* ScreenOf(const QRect& rectangle) {
  const QScreen* const screen = QGuiApplication::screenAt(rectangle.center());
  return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

QRect OnScreen(QRect rectangle) {
  const QRect room = ScreenOf(rectangle)->availableGeometry();
  rectangle.setSize(rectangle.size().boundedTo(room.size()));
  rectangle.moveTo(std::clamp(rectangle.x(), room.x(), room.right() + 1 - rectangle.width()),
                   std::clamp(rectangle.y(), room.y(), room.bottom() + 1 - rectangle.height()));
  return rectangle;
}

MainWindow::MainWindow(shell::MainWindow& commands)
    : commands_(commands), area_(new SheetArea(this)) {
  setObjectName(QStringLiteral("frmMDI"));
  setWindowIcon(IconNamed("app"));
  setStyleSheet(WindowStyle(Theme::Current()));
  setCentralWidget(area_);
  setAcceptDrops(true);
  setContextMenuPolicy(Qt::NoContextMenu);
  for (const shell::MenuEntry& entry : commands_.Menus()) {
    AddMenu(*menuBar()->addMenu(QString::fromStdString(entry.caption)), entry);
  }
  AddToolBar();
  statusBar()->setSizeGripEnabled(true);
  commands_.onChange = [this] { ShowState(); };
  commands_.onEntries = [this](const std::string& submenu) { RefillMenu(submenu); };
  commands_.onPlace = [this](const shell::WindowPlacement& placement) { Place(placement); };
  settled_.setSingleShot(true);
  connect(&settled_, &QTimer::timeout, this, [this] { TellPlacement(); });
  ShowState();
  Place(commands_.Placement());
}

void MainWindow::AddMenu(QMenu& menu, const shell::MenuEntry& entry) {
  menus_[entry.name] = &menu;
  menu.setObjectName(QString::fromStdString(entry.name));
  menu.setToolTipsVisible(true);
  if (entry.name == kWindowMenu) {
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { FillWindowList(menu); });
  }
  FillMenu(menu, entry);
}

void MainWindow::FillMenu(QMenu& menu, const shell::MenuEntry& entry) {
  for (const shell::MenuEntry& inner : entry.entries) {
    const shell::Command* const command = commands_.Find(inner.name);
    if (inner.IsSeparator()) {
      menu.addSeparator();
    } else if (command != nullptr) {
      AddCommand(menu, *command);
    } else {
      AddMenu(*menu.addMenu(QString::fromStdString(inner.caption)), inner);
    }
  }
  menu.menuAction()->setEnabled(!entry.entries.empty() || entry.name == kWindowMenu);
}

void MainWindow::RefillMenu(const std::string& name) {
  const auto menu = menus_.find(name);
  const shell::MenuEntry* const entry = FindEntry(commands_.Menus(), name);
  if (menu == menus_.end() || entry == nullptr) return;
  const auto old = menu->second->actions();
  for (QAction* action : old) {
    menu->second->removeAction(action);
    actions_.erase(action->objectName().toStdString());
    // It may be the one whose command is running.
    action->deleteLater();
  }
  FillMenu(*menu->second, *entry);
  ShowState();
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
  constexpr int kIconSize = 20;
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
    QAction* const action = menu.addAction(CaptionOf(window->windowTitle().toStdString()));
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
    const QString tip = QString::fromStdString(button.Told());
    action->setEnabled(button.enabled && button.run);
    action->setText(CaptionOf(button.Told()));
    action->setToolTip(tip.toHtmlEscaped());
    action->setStatusTip(tip);
  }
  ShowToolBar(commands_.ToolBarVisible());
}

/// The window grows and shrinks by the height of the tool bar, so that the sheet keeps its size.
void MainWindow::ShowToolBar(bool visible) {
  constexpr int kToolBarHeight = 420 / kTwipsPerPixel;
  if (toolBar_->isHidden() != visible) return;
  toolBar_->setVisible(visible);
  const bool normal = isVisible() && !isMaximized() && !isFullScreen();
  if (!normal) return;
  const bool own = size() == ownSize_;
  resize(width(), height() + (visible ? kToolBarHeight : -kToolBarHeight));
  if (own) ownSize_ = size();
}

void MainWindow::Place(const shell::WindowPlacement& placement) {
  normal_ = RectOf(placement);
  const shell::WindowPlacement first;
  const bool isFirst = placement.width == first.width && placement.height == first.height;
  if (isFirst) normal_.setWidth(std::max(normal_.width(), toolBar_->sizeHint().width()));
  normal_ = OnScreen(normal_);
  ownSize_ = isFirst ? normal_.size() : QSize();
  setWindowState(Qt::WindowNoState);
  move(normal_.topLeft());
  resize(normal_.size());
  if (placement.state == shell::WindowPlacement::kMaximised) setWindowState(Qt::WindowMaximized);
}

void MainWindow::TellPlacement() {
  settled_.stop();
  shell::WindowPlacement placement;
  if (isMinimized()) {
    placement.state = shell::WindowPlacement::kMinimised;
  } else if (isMaximized() || isFullScreen()) {
    placement.state = shell::WindowPlacement::kMaximised;
  } else {
    normal_ = {pos(), size()};
  }
  placement.left = normal_.left() * kTwipsPerPixel;
  placement.top = normal_.top() * kTwipsPerPixel;
  placement.width = normal_.width() * kTwipsPerPixel;
  placement.height = normal_.height() * kTwipsPerPixel;
  commands_.Moved(placement);
}

/// A window system tells the new size before it tells that the window is maximised, so the place is
/// told when the events on the way are done.
void MainWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  settled_.start(kSettledMs);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  settled_.start(kSettledMs);
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) settled_.start(kSettledMs);
}

void MainWindow::MakeRoomFor(const QSize& sheet) {
  if (isMaximized() || isFullScreen()) return;
  // A window that has not been shown yet has not given its parts their room.
  QResizeEvent resized(size(), size());
  QApplication::sendEvent(this, &resized);
  const QSize room = area_->size();
  const bool usable = room.width() * 2 >= sheet.width() && room.height() * 2 >= sheet.height();
  const QSize missing = (sheet - room).expandedTo({0, 0});
  if (missing.isNull() || (usable && size() != ownSize_)) return;
  const QRect place = OnScreen({pos(), size() + missing});
  move(place.topLeft());
  resize(place.size());
  ownSize_ = place.size();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  // Handlers wait behind an open dialogue.
  const bool busy = QApplication::activeModalWidget() != nullptr;
  if (!busy && !InstrumentFileIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const std::string path = InstrumentFileIn(*event->mimeData()).toStdString();
  if (path.empty()) return;
  event->acceptProposedAction();
  // The program that the file comes from waits for the end of this event, not for our questions.
  QTimer::singleShot(0, this, [this, path] { commands_.DropFile(path); });
}

/// Closing the window is the exit command, whose work is done first.
void MainWindow::closeEvent(QCloseEvent* event) {
  TellPlacement();
  commands_.Run(kExitCommand);
  event->accept();
}

}  // namespace desktop
