#include "shell/instrument_file.h"

#include <algorithm>
#include <utility>

#include "common/fields.h"
#include "common/file.h"
#include "common/number.h"
#include "common/text.h"

namespace shell {

namespace {

using common::Fault;
using common::RuntimeFault;

constexpr int kElementColumn = 2;
constexpr const char* kDifferentialPressure = "⊿P Flow";

constexpr int kThermowellMark = 49;
constexpr int kThermowellResults = 28;  // first column whose meaning has changed
constexpr const char* kThermowellVersion = "Ver 2.2";

constexpr int kValveBore = 26;
constexpr int kValveRating = 28;
constexpr int kValveSize = 37;

std::string& Column(TagRow& record, int column) { return common::At(record, column); }

/// The elements had a list of their own each; now they stand in one, behind one another.
void ConvertElement(TagRow& record, int offset) {
  Column(record, kKindColumn) = kDifferentialPressure;
  std::string& element = Column(record, kElementColumn);
  element = common::NumberText(common::Val(element) + offset);
}

/// Results of the older layout would be shown under other names, so they are dropped.
void ConvertThermowell(TagRow& record) {
  if (Column(record, kThermowellMark) >= kThermowellVersion) return;
  const std::string blank = " ";
  std::fill(record.begin() + kThermowellResults, record.begin() + kKindColumn, blank);
}

/// Column 37 held the size as a position in the list of pipes. The bore becomes that of the pipe of
/// this size and Sch40, computed and shown in single precision. The list of valve sizes is two
/// longer than the pipe table; these keep their bore.
void ConvertValve(TagRow& record, const data::PipeTable& pipes, const data::ConvertLists& lists) {
  constexpr int kSchedule40 = 7;
  const int size = common::IntIndex(common::Val(Column(record, kValveSize)));
  const std::string& sizeText = common::At(lists.valveSizes, size);
  if (size < data::PipeTable::kSizes) {
    const common::Real outside = pipes.OutsideDiameter(size);
    const common::Real bore =
        common::Single(outside - 2 * common::Real(pipes.WallThickness(size, kSchedule40)));
    Column(record, kValveBore) = common::SingleText(static_cast<float>(static_cast<double>(bore)));
  }
  Column(record, kValveRating).clear();
  Column(record, kValveSize) = sizeText;
}

std::string OwnerName(const TagStore& store, int row) {
  return row == 0 ? "ファイルの見出し" : "Tag No.「" + store.Text(row, kTagNumberColumn) + "」";
}

}  // namespace

std::string EncodeInstrumentFile(const TagStore& store) {
  std::string bytes;
  for (int row = 0; row <= std::max(store.TagCount(), 0); ++row) {
    TagRow record = store.Row(row);
    if (row == 0) {
      Column(record, kTagNumberColumn) = kProgramVersion;
      Column(record, kKindColumn).clear();
    }
    const std::string owner = OwnerName(store, row);
    for (const std::string& text : record) AppendField(bytes, text, owner);
    bytes += "\r\n";
  }
  return bytes;
}

void ConvertOldRecord(TagRow& record, const std::string& fileVersion, const data::PipeTable& pipes,
                      const data::ConvertLists& lists) {
  const std::string kind = Column(record, kKindColumn);
  if (kind == "Orifice") {
    Column(record, kKindColumn) = kDifferentialPressure;
  } else if (kind == "Nozzle") {
    ConvertElement(record, 5);
  } else if (kind == "Venturi") {
    ConvertElement(record, 7);
  } else if (kind == "TW") {
    ConvertThermowell(record);
  } else if (kind == "CV" && fileVersion.starts_with('1')) {
    ConvertValve(record, pipes, lists);
  }
}

std::vector<TagRow> ParseInstrumentFile(std::string bytes, const data::PipeTable& pipes,
                                        const data::ConvertLists& lists) {
  // A record may end where the file is cut.
  if (common::IsUnfinished(bytes)) throw CutShort();
  common::FieldReader reader(std::move(bytes));
  std::vector<TagRow> records;
  while (!reader.AtEnd()) {
    if (records.size() > kMaxTags) common::RaiseFault(Fault::kIndexOutOfRange);
    TagRow& record = records.emplace_back();
    for (std::string& field : record) {
      auto text = reader.Next();
      if (!text) throw CutShort();
      field = std::move(*text);
    }
    ConvertOldRecord(record, records.front()[kTagNumberColumn], pipes, lists);
  }
  return records;
}

bool OpenInstrumentFile(TagStore& store, const std::string& path, const data::PipeTable& pipes,
                        const data::ConvertLists& lists, common::Messages& messages) {
  store.PrepareForReading();
  try {
    store.TakeRows(ParseInstrumentFile(common::ReadFile(path), pipes, lists));
    store.zephaFileName = path;
    store.ShowTagsRead();
    return true;
  } catch (const RuntimeFault& fault) {
    const bool missing = fault.Number() == Fault::kFileNotFound;
    const std::string text =
        missing ? "ＺＥＰＨＡのデータファイル\n" + path + "\nが見つかりません。" : fault.Text();
    // Else the next save would replace the file that could not be read. `path` may be this name.
    store.zephaFileName.clear();
    messages.Show(text, {}, common::Icon::kWarning);
    return false;
  }
}

bool HasTagsToSave(const TagStore& store, common::Messages& messages) {
  if (store.HasTags()) return true;
  messages.Show(
      "《 Ｔａｇ Ｌｉｓｔ 》 には、一件もデータが登録されていません。\n"
      "保存する前に 《 Ｔａｇ Ｌｉｓｔ 》 に登録して下さい。");
  return false;
}

bool SaveInstrumentFile(TagStore& store, common::Messages& messages) {
  if (!HasTagsToSave(store, messages)) return false;
  // From here on nobody knows what stands in the file until all of it is written.
  store.tagModified = true;
  SaveUserFile(store.zephaFileName, [&store] { return EncodeInstrumentFile(store); });
  store.SetText(0, kTagNumberColumn, kProgramVersion);
  store.SetText(0, kKindColumn, "");
  store.tagModified = false;
  return true;
}

bool AskBeforeNewFile(const std::string& question, bool& modified, TagStore& store,
                      common::Messages& messages) {
  if (!modified) return true;
  const common::Answer answer =
      messages.Present({question + "\n新しいファイルを開く前に保存しますか", "File Open",
                        common::Icon::kQuestion, common::Buttons::kYesNoCancel});
  if (answer == common::Answer::kCancel) return false;
  if (answer == common::Answer::kYes) SaveInstrumentFile(store, messages);
  if (answer == common::Answer::kNo) modified = false;
  return true;
}

bool NewInstrumentFile(TagStore& store, common::Messages& messages) {
  if (!AskBeforeNewFile("開いているデータシートが変更されています。", store.tagModified, store,
                        messages)) {
    return false;
  }
  store.StartNewFile();
  return true;
}

void ShowDataVersion(const TagStore& store, common::Messages& messages) {
  const std::string text = store.zephaFileName.empty()
                               ? "計装データファイルが読み込まれていません。"
                               : "表示している計装データ" + store.zephaFileName +
                                     "は\n　ZEPHA version " + store.Text(0, kTagNumberColumn) +
                                     "\nで作成されました。";
  messages.Show(text, "ZEPHA Data Version");
}

}  // namespace shell
