#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "forms/controls.h"
#include "sheets/workbench.h"
#include "tests/support/recording_presenter.h"

namespace sheets {

/// Drives the real sheets on the shipped data files, by control name.
class SheetTest : public testing::Test {
 protected:
  explicit SheetTest(const std::string& dataFolder = ZEPHA_BUILD_DIR)
      : bench(presenter, dataFolder, settings) {
    bench.Start();
  }

  forms::Control& Find(const std::string& name) {
    forms::Control* const control = bench.Forms().Active()->Find(name);
    if (control == nullptr) throw std::out_of_range("no control " + name);
    return *control;
  }
  template <class T>
  T& Find(const std::string& name) {
    return dynamic_cast<T&>(Find(name));
  }

  std::string Text(const std::string& name) { return Find(name).Text(); }
  void Type(const std::string& name, const std::string& text) {
    Find<forms::TextBox>(name).Type(text);
  }
  void Pick(const std::string& name, int index) { Find<forms::ListControl>(name).Pick(index); }
  void Choose(const std::string& name) { Find<forms::CheckControl>(name).Choose(); }
  void Click(const std::string& name) {
    Find(name).Click();
    bench.Forms().CollectClosed();
  }
  void DblClick(const std::string& name) { Find(name).DblClick(); }

  /// Texts shown since the last call.
  std::vector<std::string> TakeTexts() {
    std::vector<std::string> texts = presenter.messages.Texts();
    presenter.messages.shown.clear();
    return texts;
  }
  void Answer(bool yes) { presenter.messages.Queue(yes); }

  tests::RecordingPresenter presenter;
  shell::MemorySettings settings;
  Workbench bench;
};

using Texts = std::vector<std::string>;

}  // namespace sheets
