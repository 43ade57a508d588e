#include "shell/duct_file.h"

#include <algorithm>
#include <utility>

#include "common/fields.h"
#include "common/file.h"
#include "shell/record_text.h"

namespace shell {

namespace {

using common::Fault;
using common::RuntimeFault;

/// Whether the record is what an instrument file looks like from here: the 50 empty fields of its
/// header and a tag number, which would be the area of a cable that is not there.
bool IsStartOfTags(const DuctRow& row) {
  constexpr int kHeaderFields = 50;
  return !row[kHeaderFields].empty() &&
         std::all_of(row.begin(), row.begin() + kHeaderFields,
                     [](const std::string& text) { return text.empty(); });
}

}  // namespace

DuctFileContents ParseDuctFile(std::string bytes) {
  DuctFileContents contents;
  if (common::IsUnfinished(bytes)) contents.fault = CutShort();
  common::FieldReader reader(std::move(bytes));
  if (!reader.Next()) contents.fault = CutShort();
  while (!reader.AtEnd()) {
    if (contents.rows.size() == kMaxDucts) {
      contents.fault = RuntimeFault(Fault::kIndexOutOfRange);
      break;
    }
    DuctRow row;
    for (std::string& field : row) {
      std::optional<std::string> text = reader.Next();
      if (!text) {
        contents.fault = CutShort();
        return contents;
      }
      field = std::move(*text);
    }
    if (contents.rows.empty() && IsStartOfTags(row)) {
      contents.fault = RuntimeFault(Fault::kFileAccess, "ケーブルダクトのファイルではありません。");
      break;
    }
    contents.rows.push_back(std::move(row));
  }
  return contents;
}

std::string EncodeDuctFile(const DuctStore& store) {
  std::string bytes;
  AppendField(bytes, kProgramVersion, {});
  bytes += "\r\n";
  for (int row = 0; row < store.DuctCount(); ++row) {
    const std::string owner = "ダクト「" + store.Row(row)[kDuctName] + "」";
    for (const std::string& text : store.Row(row)) AppendField(bytes, text, owner);
    bytes += "\r\n";
  }
  return bytes;
}

bool OpenDuctFile(DuctStore& store, const std::string& path, common::Messages& messages) {
  std::optional<RuntimeFault> fault;
  try {
    DuctFileContents contents = ParseDuctFile(common::ReadFile(path));
    fault = contents.fault;
    store.TakeRows(std::move(contents.rows));
    store.ductFileName = fault ? "" : path;
    store.ductModified = fault && store.DuctCount() > 0;
  } catch (const RuntimeFault& unreadable) {
    fault = unreadable;
  }
  store.CaptionList();
  if (!fault) return true;
  std::string text = fault->Text();
  if (text.find(path) == std::string::npos) text += "\n" + path;
  messages.Show(text, {}, common::Icon::kWarning);
  return false;
}

bool HasDuctsToSave(const DuctStore& store, common::Messages& messages) {
  if (store.DuctCount() > 0) return true;
  messages.Show("データがありません。\n保存を中止します。");
  return false;
}

bool SaveDuctFile(DuctStore& store, common::Messages& messages) {
  if (!HasDuctsToSave(store, messages)) return false;
  store.ductModified = true;  // until all of it is written
  SaveUserFile(store.ductFileName, [&store] { return EncodeDuctFile(store); });
  store.ductModified = false;
  return true;
}

}  // namespace shell
