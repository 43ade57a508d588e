#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "demo_sheet.h"
#include "demo_window.h"
#include "desktop/form_view.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"

namespace desktop {

/// The presenter of the tests: real windows, but messages are answered at once and recorded.
class RecordingPresenter : public QtPresenter {
 public:
  common::Answer Present(const common::Message& message) override {
    messages.push_back(message.text);
    return common::Answer::kOk;
  }
  void Beep() override { ++beeps; }

  std::vector<std::string> messages;
  int beeps = 0;
};

/// A main window with its forms, as the program has them.
class Desk : public testing::Test {
 protected:
  Desk() {
    FillDemoWindow(commands_);
    window_ = std::make_unique<MainWindow>(commands_);
    presenter_.Attach(*window_, forms_);
    forms_.Provide("frmDemo", [] { return std::make_unique<DemoSheet>(); });
    forms_.Provide("frmDemoDialog", [] { return std::make_unique<DemoDialog>(); });
    forms_.Provide("frmDemoTool", [] { return std::make_unique<DemoTool>(); });
    window_->show();
  }
  ~Desk() override { presenter_.CloseAll(); }

  DemoSheet& ShowSheet() {
    auto& sheet = dynamic_cast<DemoSheet&>(forms_.Show("frmDemo"));
    QApplication::setActiveWindow(window_.get());
    QApplication::processEvents();
    return sheet;
  }

  DemoDialog& ShowDialog() {
    auto& dialog = dynamic_cast<DemoDialog&>(forms_.Show("frmDemoDialog"));
    QApplication::processEvents();
    return dialog;
  }

  /// The widget of that object name, the control's own, in an open form.
  template <class Widget>
  Widget& Find(const forms::Form& form, const char* name) {
    auto* const widget = presenter_.ViewOf(form)->findChild<Widget*>(QString::fromUtf8(name));
    if (widget == nullptr) throw std::logic_error(name);
    return *widget;
  }

  RecordingPresenter presenter_;
  shell::FormManager forms_{presenter_};
  shell::MainWindow commands_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace desktop
