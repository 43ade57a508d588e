#pragma once

#include <memory>
#include <vector>

#include "forms/controls.h"
#include "shell/recalculation.h"
#include "shell/workspace.h"

namespace sheets {

/// Calculates all tags anew, lists what came out otherwise and what was said, and writes the
/// results of the marked tags when the user says so.
class frm全タグ再計算 : public forms::Form {
 public:
  static constexpr const char* kName = shell::kRecalculateForm;

  forms::Label lbl説明{*this, "lbl説明", "", forms::LabelStyle::kNote};
  forms::ProgressBar prg進行{*this, "prg進行"};
  forms::Label lbl結果{*this, "lbl結果"};
  /// The tags with changes; the marked ones are written.
  forms::CheckList lstTag{*this, "lstTag", 8};
  forms::Button cmd全選択{*this, "cmd全選択", "すべて選択"};
  forms::Button cmd全解除{*this, "cmd全解除", "すべて解除"};
  forms::Grid grd変更{
      *this,
      "grd変更",
      {{"タグ番号", 1700, false}, {"項目", 3000, false}, {"旧", 2250}, {"新", 2250}},
      9};
  forms::Grid grdメッセージ{
      *this, "grdメッセージ", {{"タグ番号", 1700, false}, {"メッセージ", 10000, false}}};
  forms::Button cmd再計算{*this, "cmd再計算", "再計算"};
  forms::Button cmd書込{*this, "cmd書込", "結果を書き込む"};
  forms::Button cmdCancel{*this, "cmdCancel", "閉じる", forms::ButtonRole::kCancel};

  explicit frm全タグ再計算(shell::Workspace& workspace);

  void Load() override;
  /// The first time it begins to calculate.
  void Activate() override;
  void Unload() override { recalculator_.reset(); }

 private:
  void Start();
  /// Calculates one tag; false when the work is done or was given up.
  bool Step();
  bool Running() const { return recalculator_ != nullptr && !finished_; }
  void ShowResults();
  /// Which buttons can be used now.
  void ShowButtons();
  std::vector<int> MarkedRows() const;
  void cmd書込_Click();
  void cmdCancel_Click();

  shell::Workspace& workspace_;
  std::unique_ptr<shell::Recalculator> recalculator_;
  /// Rows of the tags in the list.
  std::vector<int> rows_;
  bool finished_ = false;
};

}  // namespace sheets
