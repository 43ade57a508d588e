#include "shell/duct_store.h"

#include <algorithm>
#include <utility>

#include "common/real.h"
#include "common/text.h"
#include "shell/record_text.h"

namespace shell {

static_assert(CableField(kDuctCables, kCableName) == kDuctSumArea);
static_assert(kDuctSag + 1 == kDuctFields);

const DuctRow& DuctStore::Row(int row) const {
  static const DuctRow kEmpty;
  if (row >= DuctCount() && row < kMaxDucts) return kEmpty;
  return common::At(rows_, row);
}

std::vector<std::string> DuctStore::Lines() const {
  std::vector<std::string> lines;
  for (const DuctRow& row : rows_) lines.push_back(row[kDuctName]);
  return lines;
}

void DuctStore::CaptionList(const std::string& colon) {
  const std::string title = FileTitle(ductFileName);
  listCaption_ = "Duct List" + colon + (title.empty() ? "New File" : title);
}

void DuctStore::Select(int row) {
  if (row != -1) common::At(rows_, row);
  selection_ = row;
}

int DuctStore::RowOf(const std::string& name) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(),
                                  [&](const DuctRow& row) { return row[kDuctName] == name; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

bool DuctStore::Add(DuctRow row, common::Messages& messages) {
  row[kDuctName] = common::CodePageForm(row[kDuctName]);
  if (const int place = RowOf(row[kDuctName]); place >= 0) {
    if (!messages.Ask("すでに登録されています。\n新しいデータと置き換えますか")) return false;
    common::At(rows_, place) = std::move(row);
  } else if (DuctCount() >= kMaxDucts) {
    messages.Show("最大20件です。もう追加できません。");
    return false;
  } else {
    rows_.insert(rows_.begin() + (selection_ + 1), std::move(row));
    ++selection_;
  }
  ductModified = true;
  return true;
}

void DuctStore::Delete() {
  if (selection_ < 0) return;
  rows_.erase(rows_.begin() + selection_);
  selection_ = std::min(std::max(selection_ - 1, 0), DuctCount() - 1);
  ductModified = true;
}

void DuctStore::Exchange(int neighbour) {
  if (selection_ < 0 || neighbour < 0 || neighbour >= DuctCount()) return;
  std::swap(common::At(rows_, selection_), common::At(rows_, neighbour));
  selection_ = neighbour;
  ductModified = true;
}

void DuctStore::StartNewFile() {
  ductFileName.clear();
  rows_.clear();
  selection_ = -1;
}

void DuctStore::TakeRows(std::vector<DuctRow> rows) {
  if (rows.size() > kMaxDucts) common::RaiseFault(common::Fault::kIndexOutOfRange);
  rows_ = std::move(rows);
  selection_ = rows_.empty() ? -1 : 0;
}

}  // namespace shell
