#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "common/number.h"
#include "forms/controls.h"
#include "sheets/list_texts.h"
#include "sheets/workbench.h"
#include "shell/page_recorder.h"
#include "shell/tag_commands.h"
#include "tests/support/recording_presenter.h"

namespace sheets {

/// Drives the real sheets on the shipped data files, by control name.
class SheetTest : public testing::Test {
 protected:
  static constexpr int kLiquid = 0, kGas = 1, kSteam = 2;

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
  void TypeAll(std::initializer_list<std::pair<const char*, const char*>> entries) {
    for (const auto& [name, text] : entries) Type(name, text);
  }
  double Number(const std::string& name) { return GroupedNumber(Text(name)); }
  forms::Color Color(const std::string& name) { return Find(name).ForeColor(); }
  /// Name of an element of a control array.
  static std::string Element(const std::string& name, int i) {
    return name + "(" + std::to_string(i) + ")";
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

  /// The shipped plant, as a new file: nothing here can save over it.
  void LoadPlant() {
    shell::OpenFileNamed(bench.Space(), ZEPHA_SOURCE_DIR "/samples/plant.zph");
    Tags().zephaFileName.clear();
    TakeTexts();
  }
  shell::Workspace& Space() { return bench.Space(); }
  shell::TagStore& Tags() { return bench.Space().tags; }
  int RowOf(const std::string& tag) {
    if (const int row = Tags().RowOf(tag); row > 0) return row;
    throw std::out_of_range("no tag " + tag);
  }

  tests::RecordingPresenter presenter;
  shell::MemorySettings settings;
  Workbench bench;
};

using Texts = std::vector<std::string>;

/// What has been drawn of one kind, in its order.
template <class Kind>
std::vector<Kind> ItemsOf(const shell::PageRecorder& page) {
  std::vector<Kind> items;
  for (const auto& item : page.Items()) {
    if (const auto* const one = std::get_if<Kind>(&item)) items.push_back(*one);
  }
  return items;
}

}  // namespace sheets
