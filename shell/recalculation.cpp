#include "shell/recalculation.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "common/number.h"
#include "shell/field_names.h"
#include "shell/tag_commands.h"
#include "shell/workspace.h"

namespace shell {

namespace {

constexpr int kRecalled = 1;
constexpr int kRegistered = 2;

/// Puts a store in place of the workspace's while it lives.
class StoreInPlace {
 public:
  StoreInPlace(TagStore& tags, TagStore& instead) : tags_(tags), instead_(instead) {
    std::swap(tags_, instead_);
  }
  ~StoreInPlace() { std::swap(tags_, instead_); }
  StoreInPlace(const StoreInPlace&) = delete;
  StoreInPlace& operator=(const StoreInPlace&) = delete;

 private:
  TagStore& tags_;
  TagStore& instead_;
};

void SetRow(TagStore& tags, int row, const TagRow& record) {
  for (int column = 0; column < kTagColumns; ++column) {
    tags.SetText(row, column, record[static_cast<std::size_t>(column)]);
  }
}

/// The same text or, where both are numbers, the same number ("0.9", "0.90").
bool SameValue(const std::string& one, const std::string& other) {
  if (one == other) return true;
  const common::Real number = common::Val(one);
  return number != 0 && number == common::Val(other);
}

std::string NoteOf(const common::Message& message) {
  if (message.buttons == common::Buttons::kOk) return message.text;
  const bool yes = common::DefaultAnswer(message.buttons) == common::Answer::kYes;
  return message.text + (yes ? "（「はい」で続けました）" : "（「OK」で続けました）");
}

}  // namespace

Recalculator::Recalculator(Workspace& workspace) : workspace_(workspace), sheets_(workspace) {
  for (int row = 1; row <= workspace.tags.TagCount(); ++row) {
    stored_.push_back(workspace.tags.Row(row));
  }
  results_ = stored_;
}

bool Recalculator::Next() {
  if (done_ >= Count()) return false;
  const int row = ++done_;
  const KeptValues kept(workspace_);
  const FormManager::Diverted diverted(workspace_.forms, listener_);
  const StoreInPlace ownStore(workspace_.tags, scratch_);
  try {
    Recalculate(row);
  } catch (const common::RuntimeFault& fault) {
    Note(row, "登録内容をシートに呼び出せないため、再計算していません（" + fault.Text() + "）。");
  }
  return true;
}

void Recalculator::Recalculate(int row) {
  const TagRow& record = Stored(row);
  const std::string& kind = record[kKindColumn];
  workspace_.activeSheetKind = kind;
  listener_.Take();
  Sheet* const sheet = sheets_.Of(kind);
  if (sheet == nullptr) {
    Note(row, "「" + kind + "」のシートがないため、再計算していません。");
    return;
  }
  sheet->SetPresenter(&listener_);
  Fill(*sheet, record);
  const std::vector<Sheet::Calculation> calculations = sheet->CalculationsOf(record);
  if (calculations.empty()) {
    Note(row, "計算結果が登録されていないため、再計算していません。");
    return;
  }
  std::optional<Outcome> likeliest;
  for (const Sheet::Calculation& calculation : calculations) {
    Outcome outcome = Run(*sheet, calculation, record);
    const bool same = outcome.record == record;
    if (same || !likeliest || (outcome.complete && !likeliest->complete)) {
      likeliest = std::move(outcome);
    }
    if (same) break;
  }
  Take(row, *likeliest, calculations.size() > 1);
  try {
    CheckEntries(*sheet, row);
  } catch (const common::RuntimeFault&) {
    // What cannot be looked up cannot be compared.
  }
}

/// An entry that was looked up counts as the user's once it is registered, so a database that has
/// changed does not change the tag; but he shall know. A value that the database lacks is none.
void Recalculator::CheckEntries(Sheet& sheet, int row) {
  const TagRow& record = Stored(row);
  const std::string& kind = record[kKindColumn];
  Fill(sheet, record);
  const std::vector<int> columns = sheet.LookUpAnew();
  listener_.Take();
  sheet.AddTo(kRegistered);
  for (const int column : columns) {
    const std::string& found = workspace_.tags.Text(kRegistered, column);
    const std::string& entered = common::At(record, column);
    if (found.empty() || found == "0" || SameValue(found, entered)) continue;
    Note(row, "入力値「" + FieldName(kind, column) + "」の登録値 " +
                  ShownField(kind, column, entered) + " は、データベースの値 " + found +
                  " と異なります。");
  }
}

void Recalculator::Fill(Sheet& sheet, const TagRow& record) {
  SetRow(workspace_.tags, kRecalled, record);
  sheet.GetFrom(kRecalled);
}

/// What the add routine does not write stays as it was, as in a tag that is registered once more.
Recalculator::Outcome Recalculator::Run(Sheet& sheet, const Sheet::Calculation& calculation,
                                        const TagRow& record) {
  listener_.Take();
  Fill(sheet, record);
  Outcome outcome;
  outcome.mode = calculation.mode;
  outcome.complete = calculation.press();
  SetRow(workspace_.tags, kRegistered, record);
  sheet.AddTo(kRegistered);
  outcome.record = workspace_.tags.Row(kRegistered);
  outcome.record[kTagNumberColumn] = record[kTagNumberColumn];
  outcome.messages = listener_.Take();
  return outcome;
}

/// Blanks of a calculation that came to no end are no results.
void Recalculator::Take(int row, const Outcome& outcome, bool hasModes) {
  for (const common::Message& message : outcome.messages) Note(row, NoteOf(message));
  const TagRow& record = Stored(row);
  const bool same = outcome.record == record;
  if (!same && !outcome.complete) {
    Note(row, "再計算で結果が得られないため、登録されている結果を残します。");
    return;
  }
  ++recalculated_;
  if (same) return;
  if (hasModes) {
    Note(row,
         "どの計算モードでも登録値に一致しません。「" + outcome.mode + "」の結果と比べました。");
  }
  common::At(results_, row - 1) = outcome.record;
  for (int column = 0; column < kTagColumns; ++column) {
    const std::string& before = common::At(record, column);
    const std::string& after = common::At(outcome.record, column);
    if (before == after) continue;
    changes_.push_back({row, column, record[kTagNumberColumn],
                        FieldName(record[kKindColumn], column), before, after});
  }
}

void Recalculator::Note(int row, std::string text) {
  notes_.push_back({row, Stored(row)[kTagNumberColumn], std::move(text)});
}

std::vector<int> Recalculator::ChangedRows() const {
  std::vector<int> rows;
  for (const TagChange& change : changes_) {
    if (rows.empty() || rows.back() != change.row) rows.push_back(change.row);
  }
  return rows;
}

bool Recalculator::IsStale() const {
  const TagStore& tags = workspace_.tags;
  if (std::max(tags.TagCount(), 0) != Count()) return true;
  for (int row = 1; row <= Count(); ++row) {
    if (tags.Row(row) != Stored(row)) return true;
  }
  return false;
}

bool Recalculator::Write(const std::vector<int>& rows) {
  if (IsStale()) return false;
  for (const int row : rows) {
    const TagRow& result = common::At(results_, row - 1);
    if (result == Stored(row)) continue;
    SetRow(workspace_.tags, row, result);
    common::At(stored_, row - 1) = result;
    std::erase_if(changes_, [row](const TagChange& change) { return change.row == row; });
    workspace_.tags.tagModified = true;
  }
  ShowTitle(workspace_);  // the lines of the list, number and kind, are as before
  return true;
}

std::string RecalculatedText(const Recalculator& recalculator) {
  std::string text = std::to_string(recalculator.Recalculated()) + " タグを再計算しました。";
  const auto& changes = recalculator.Changes();
  if (changes.empty()) {
    text += "変わった結果はありません。";
  } else {
    text += std::to_string(recalculator.ChangedRows().size()) + " タグで " +
            std::to_string(changes.size()) + " 項目が変わりました。";
  }
  if (recalculator.Left() > 0) {
    text += std::to_string(recalculator.Left()) + " タグは再計算できませんでした。";
  }
  return text;
}

}  // namespace shell
