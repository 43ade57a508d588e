// Random clicks, keys and commands on the real windows, without a display. What stands behind them
// is checked as for the driver; this is for the way from a widget to its control and back.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>

#include "checks.h"
#include "desktop/application.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"
#include "folder.h"
#include "headless/script_platform.h"
#include "trial.h"

namespace {

using monkey::Random;

constexpr int kEventsPerTrial = 400;

/// The real presenter, with files chosen at random.
class RandomPresenter : public desktop::QtPresenter {
 public:
  explicit RandomPresenter(Random& random) : random_(random) {}

  std::optional<std::string> AskFile(const forms::FileQuestion& question) override {
    if (random_.Percent(20)) return QtPresenter::AskFile(question);
    if (random_.Percent(20)) return std::nullopt;
    if (question.extension == ".pdf") return random_.Of(monkey::PdfFiles());
    if (question.extension == ".dct") return random_.Of(monkey::DuctFiles());
    return random_.Of(monkey::InstrumentFiles());
  }

 private:
  Random& random_;
};

/// Whether a widget is one that users aim at.
bool IsField(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
}

class WindowMonkey {
 public:
  WindowMonkey(desktop::MainWindow& window, sheets::Workbench& bench,
               const monkey::TrialStage& stage)
      : window_(window), bench_(bench), stage_(stage), random_(stage.random) {
    // Message boxes wait in a loop of their own.
    answerer_.callOnTimeout([this] { AnswerBox(); });
    answerer_.start(1);
  }

  void Act() {
    monkey::StartWatch();
    acting_ = true;
    const bool locked = QApplication::activeModalWidget() != nullptr ||
                        QApplication::activePopupWidget() != nullptr;
    if (!locked && random_.Percent(8)) {
      RunCommand();
    } else if (random_.Percent(3)) {
      const QSize size(random_.Between(100, 1600), random_.Between(100, 1200));
      Note("resize", window_);
      window_.resize(size);
    } else if (QWidget* const widget = SomeWidget()) {
      if (random_.Percent(55)) {
        UseMouse(*widget);
      } else {
        UseKeys(*widget);
      }
    }
    acting_ = false;
    QApplication::processEvents();
    ++stage_.tally.events;
    monkey::CheckForms(bench_, stage_.tally.events % 16 == 0);
    monkey::CheckStores(bench_.Space());
  }

  /// Closes one dialogue after the other, as a user must, and ends the program.
  void End() {
    for (int i = 0; i < 100 && QApplication::activeModalWidget() != nullptr; ++i) {
      Note("close", *QApplication::activeModalWidget());
      QApplication::activeModalWidget()->close();
      QApplication::processEvents();
    }
    stage_.note("command mnuExit");
    bench_.Window().Run("mnuExit");
    QApplication::processEvents();
  }

 private:
  void Note(const std::string& what, const QObject& object) const {
    stage_.note(what + " " + object.metaObject()->className() + " " +
                object.objectName().toStdString());
  }

  void AnswerBox() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
      QAbstractButton* const button = random_.Of(box->buttons());
      stage_.note("answer " + button->text().toStdString());
      button->click();
    } else if (auto* const files = qobject_cast<QFileDialog*>(modal)) {
      Note("cancel", *files);
      files->reject();
    } else if (QWidget* const popup = QApplication::activePopupWidget(); popup && acting_) {
      // A menu that waits in a loop of its own.
      Note("leave", *popup);
      popup->close();
    }
  }

  /// A menu item or a tool bar button. The end of the program is left to the end of the trial.
  void RunCommand() {
    QList<QAction*> actions;
    for (QAction* action : window_.findChildren<QAction*>()) {
      if (action->isEnabled() && action->menu() == nullptr && !action->isSeparator() &&
          !action->text().contains(QStringLiteral("終了"))) {
        actions.append(action);
      }
    }
    if (actions.isEmpty()) return;
    QAction* const action = random_.Of(actions);
    stage_.note("command " + action->text().toStdString());
    action->trigger();
  }

  /// One that the user can reach now.
  QWidget* SomeWidget() {
    if (QWidget* const popup = QApplication::activePopupWidget(); popup && random_.Percent(30)) {
      popup->close();
    }
    QWidget* top = QApplication::activePopupWidget();
    if (top == nullptr) top = QApplication::activeModalWidget();
    if (top == nullptr) {
      QList<QWidget*> tops;
      for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible()) tops.append(widget);
      }
      if (tops.isEmpty()) return nullptr;
      top = random_.Of(tops);
    }
    const bool fieldsOnly = random_.Percent(85);
    QList<QWidget*> widgets;
    for (QWidget* widget : top->findChildren<QWidget*>()) {
      if (widget->isVisible() && widget->isEnabled() && (!fieldsOnly || IsField(*widget))) {
        widgets.append(widget);
      }
    }
    return widgets.isEmpty() ? top : random_.Of(widgets);
  }

  void UseMouse(QWidget& widget) {
    const QPoint at(random_.Between(0, std::max(widget.width() - 1, 0)),
                    random_.Between(0, std::max(widget.height() - 1, 0)));
    const int chance = random_.Between(0, 99);
    if (chance < 65) {
      Note("click", widget);
      QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    } else if (chance < 80) {
      Note("dblclick", widget);
      QTest::mouseDClick(&widget, Qt::LeftButton, {}, at);
    } else if (chance < 90) {
      Note("rclick", widget);
      QTest::mouseClick(&widget, Qt::RightButton, {}, at);
    } else if (chance < 95) {
      Note("move", widget);
      QTest::mouseMove(&widget, at);
    } else {
      Note("wheel", widget);
      QWheelEvent wheel(at, widget.mapToGlobal(at), {}, {0, random_.Percent(50) ? 120 : -120},
                        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(&widget, &wheel);
    }
  }

  void UseKeys(QWidget& widget) {
    static const std::vector<Qt::Key> kKeys = {
        Qt::Key_Return,   Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Up,    Qt::Key_Down,
        Qt::Key_Left,     Qt::Key_Right,     Qt::Key_Home,    Qt::Key_End,   Qt::Key_Delete,
        Qt::Key_F1,       Qt::Key_Backspace, Qt::Key_Escape,  Qt::Key_Space, Qt::Key_PageUp,
        Qt::Key_PageDown, Qt::Key_F4};
    static const std::vector<QString> kTexts = {
        QStringLiteral("1"),     QStringLiteral("25"), QStringLiteral("300"), QStringLiteral("1.5"),
        QStringLiteral("1e"),    QStringLiteral("-4"), QStringLiteral("0"),   QStringLiteral("."),
        QStringLiteral("水"),    QStringLiteral("１"), QStringLiteral("\""),  QStringLiteral("😀"),
        QStringLiteral("1e308"), QStringLiteral("é"),  QStringLiteral("TAG")};
    if (random_.Percent(50)) widget.setFocus();
    if (random_.Percent(50)) {
      if (random_.Percent(60)) QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
      const QString& text = random_.Of(kTexts);
      Note("keys " + text.toStdString(), widget);
      // What has no key comes from the input method.
      if (text.front().unicode() < 0x80) {
        QTest::keyClicks(&widget, text);
      } else {
        QInputMethodEvent composed;
        composed.setCommitString(text);
        QApplication::sendEvent(&widget, &composed);
      }
    } else if (random_.Percent(85)) {
      const Qt::Key key = random_.Of(kKeys);
      Note("key " + std::to_string(static_cast<int>(key)), widget);
      QTest::keyClick(&widget, key);
    } else {
      static const std::vector<Qt::Key> kWithControl = {Qt::Key_Z, Qt::Key_V, Qt::Key_C, Qt::Key_X,
                                                        Qt::Key_S, Qt::Key_N, Qt::Key_O, Qt::Key_P};
      const Qt::Key key = random_.Of(kWithControl);
      Note("ctrl " + std::to_string(static_cast<int>(key)), widget);
      QTest::keyClick(&widget, key, Qt::ControlModifier);
    }
  }

  desktop::MainWindow& window_;
  sheets::Workbench& bench_;
  const monkey::TrialStage& stage_;
  Random& random_;
  QTimer answerer_;
  /// An event is being sent; when the timer fires all the same, a loop has begun behind it.
  bool acting_ = false;
};

void Perform(const monkey::TrialStage& stage) {
  static int count = 1;
  static char name[] = "zepha-window-monkey";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  monkey::StartWatch();
  QApplication application(count, arguments);
  desktop::PrepareApplication(application);
  RandomPresenter presenter(stage.random);
  headless::ScriptPlatform platform(presenter);
  shell::FileSettings settings(monkey::kSettingsFile);
  sheets::Workbench bench(presenter, monkey::kDataFolder, settings, &platform);
  desktop::MainWindow window(bench.Window());
  presenter.Attach(window, bench.Forms());
  {
    WindowMonkey monkey(window, bench, stage);
    window.show();
    bench.Start();
    bench.Window().DropFile("plant.zph");
    for (int i = 0; i < kEventsPerTrial; ++i) monkey.Act();
    monkey.End();
  }
  presenter.CloseAll();
}

void Tell(const monkey::TrialPlan& plan, const monkey::TrialResult& result) {
  std::printf("FOUND with --seed %" PRIu64 " in trial %" PRIu64 ": %s\n%s\nThe last events:\n",
              plan.seed, plan.number, result.finding.c_str(),
              result.report.substr(0, 6000).c_str());
  const std::size_t first = result.lines.size() - std::min<std::size_t>(result.lines.size(), 25);
  for (std::size_t i = first; i < result.lines.size(); ++i) {
    std::printf("  %s\n", result.lines[i].c_str());
  }
  std::fflush(stdout);
}

}  // namespace

int main(int count, char** values) {
  monkey::TrialPlan plan;
  long events = 2000;
  try {
    for (int i = 1; i < count; i += 2) {
      const std::string word = values[i];
      if (i + 1 == count || (word != "--seed" && word != "--events")) throw std::exception();
      if (word == "--seed") plan.seed = std::stoull(values[i + 1]);
      if (word == "--events") events = std::stol(values[i + 1]);
    }
  } catch (const std::exception&) {
    std::cerr << "usage: zepha-window-monkey [--seed N] [--events N]\n";
    return 2;
  }
  int failures = 0;
  for (long done = 0; done < events; done += kEventsPerTrial, ++plan.number) {
    const monkey::TrialResult result = monkey::RunTrial(plan, Perform);
    if (result.finding.empty()) continue;
    ++failures;
    Tell(plan, result);
  }
  std::printf("%ld events on the windows, %d trials of %" PRIu64 " failed.\n", events, failures,
              plan.number);
  return failures == 0 ? 0 : 1;
}
