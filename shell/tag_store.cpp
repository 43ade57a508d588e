#include "shell/tag_store.h"

#include <algorithm>
#include <utility>

#include "common/real.h"
#include "common/text.h"
#include "shell/sheet_registry.h"

namespace shell {

namespace {

constexpr int kKindPosition = 28;  // bytes of CP932

bool HoldsTags(const std::string& kind) {
  const SheetEntry* const sheet = FindSheet(kind);
  return sheet != nullptr && sheet->holdsTags;
}

}  // namespace

const TagRow& TagStore::Row(int row) const { return common::At(rows_, row); }

const std::string& TagStore::Text(int row, int column) const {
  return common::At(common::At(rows_, row), column);
}

void TagStore::SetText(int row, int column, std::string text) {
  common::At(common::At(rows_, row), column) = std::move(text);
}

std::string TagStore::ListLine(int row) const {
  return common::PadToBytes(Text(row, kTagNumberColumn), kKindPosition) + Text(row, kKindColumn);
}

int TagStore::Selection() const {
  if (listOpen_) return selection_;
  return std::clamp(currentTag, 0, static_cast<int>(lines_.size())) - 1;
}

void TagStore::Select(int line) {
  selection_ = line;
  if (!listOpen_) currentTag = line + 1;
}

void TagStore::SelectLine(int line) {
  if (line != -1) common::At(lines_, line);
  Select(line);
}

std::string TagStore::ListCaption() const {
  constexpr std::size_t kExtensionLength = 4;
  const std::u32string name = common::CodePoints(common::FileNameOf(zephaFileName));
  const std::size_t shown =
      name.size() > kExtensionLength ? name.size() - kExtensionLength : name.size();
  return "Tag List ： " + (name.empty() ? "New File" : common::Utf8(name.substr(0, shown)));
}

void TagStore::ListOpened() {
  currentTag = std::max(currentTag, 1);
  if (HasTags()) lastTagIndex = 1;
  selection_ = Selection();
  listOpen_ = true;
}

void TagStore::ListClosed() {
  currentTag = Selection() + 1;
  listOpen_ = false;
}

void TagStore::WriteLines() {
  lines_.clear();
  for (int row = 1; row <= tagCount_; ++row) lines_.push_back(ListLine(row));
}

void TagStore::Refresh() {
  WriteLines();
  selection_ = -1;
  if (!HasTags()) return;
  if (currentTag > tagCount_) currentTag = 1;
  selection_ = std::max(currentTag, 0) - 1;
}

int TagStore::RowOf(const std::string& tagNumber) const {
  for (int row = 1; row <= tagCount_; ++row) {
    if (Text(row, kTagNumberColumn) == tagNumber) return row;
  }
  return 0;
}

bool TagStore::Insert(const std::string& tagNumber, const std::string& kind,
                      common::Messages& messages) {
  if (tagCount_ >= kMaxTags) {
    messages.Show("最大300件です。もう追加できません。");
    return false;
  }
  const int row = Selection() + 2;
  const auto place = rows_.begin() + row;
  const auto end = rows_.begin() + CountedTags() + 1;
  std::copy_backward(place, end, end + 1);
  lines_.insert(lines_.begin() + row - 1, common::PadToBytes(tagNumber, kKindPosition) + kind);
  tagCount_ = CountedTags() + 1;
  currentTag = row;
  Select(row - 1);
  return true;
}

int TagStore::Register(const std::string& tagNumber, const std::string& kind,
                       common::Messages& messages, const AddRoutine& add) {
  if (tagNumber.empty() || !HoldsTags(kind)) return 0;
  const std::string number = common::CodePageForm(tagNumber);
  replaceTag_ = false;
  if (const int row = RowOf(number); row > 0) {
    currentTag = row;  // also when the answer is No
    if (!messages.Ask("すでに登録されています。\n新しいデータと置き換えますか")) return 0;
    replaceTag_ = true;
  } else if (!Insert(number, kind, messages)) {
    return 0;
  }
  const int row = currentTag;
  tagModified = true;
  SetText(row, kTagNumberColumn, number);
  SetText(row, kKindColumn, kind);
  add(row);
  // The add routine copies the field as the user typed it.
  SetText(row, kTagNumberColumn, common::CodePageForm(Text(row, kTagNumberColumn)));
  return row;
}

int TagStore::TakeSelectedForRecall() {
  currentTag = Selection() + 1;
  lastTagIndex = currentTag;
  return currentTag;
}

void TagStore::Delete(common::Messages& messages) {
  const int row = Selection() + 1;
  if (row < 1) return;
  if (!messages.Ask(lines_[static_cast<std::size_t>(row - 1)] + "\n削除しても良いですか")) return;
  lines_.erase(lines_.begin() + row - 1);
  const auto place = rows_.begin() + row;
  std::copy(place + 1, rows_.begin() + tagCount_ + 1, place);
  rows_[static_cast<std::size_t>(tagCount_)].fill("");
  --tagCount_;
  Select(std::min(row, tagCount_) - 1);
  tagModified = true;
}

void TagStore::Exchange(int line, int neighbour) {
  const int last = static_cast<int>(lines_.size()) - 1;
  if (line < 0 || neighbour < 0 || neighbour > last) return;
  std::swap(common::At(lines_, line), common::At(lines_, neighbour));
  std::swap(common::At(rows_, line + 1), common::At(rows_, neighbour + 1));
  Select(neighbour);
  tagModified = true;
}

void TagStore::MoveUp() { Exchange(Selection(), Selection() - 1); }

void TagStore::MoveDown() { Exchange(Selection(), Selection() + 1); }

void TagStore::SortBy(std::size_t column) {
  if (tagCount_ < 2) return;
  // The order of UTF-8 bytes is that of the code points, and char_traits compares them unsigned.
  std::stable_sort(rows_.begin() + 1, rows_.begin() + tagCount_ + 1,
                   [column](const TagRow& a, const TagRow& b) { return a[column] < b[column]; });
  WriteLines();
  tagModified = true;
}

void TagStore::StartNewFile() {
  zephaFileName.clear();
  tagCount_ = 0;
  lastTagIndex = 0;
  Refresh();
}

void TagStore::PrepareForReading() {
  tagCount_ = 0;
  currentTag = 0;
  Refresh();
}

void TagStore::TakeRows(std::vector<TagRow> rows) {
  if (rows.size() > rows_.size()) common::RaiseFault(common::Fault::kIndexOutOfRange);
  std::move(rows.begin(), rows.end(), rows_.begin());
  tagCount_ = static_cast<int>(rows.size()) - 1;
  // A character has at most four bytes of UTF-8.
  const std::string head = Text(0, kTagNumberColumn).substr(0, 4);
  fileMajorVersion_ = common::Utf8(common::CodePoints(head).substr(0, 1));
  Refresh();
}

void TagStore::ShowTagsRead() {
  if (HasTags()) currentTag = lastTagIndex > 0 ? lastTagIndex : 1;
  Refresh();
}

}  // namespace shell
