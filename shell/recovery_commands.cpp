#include "shell/recovery_commands.h"

#include <algorithm>
#include <ctime>
#include <utility>
#include <vector>

#include "common/fault.h"
#include "common/file.h"
#include "shell/duct_commands.h"
#include "shell/duct_file.h"
#include "shell/instrument_file.h"
#include "shell/tag_commands.h"
#include "shell/workspace.h"

namespace shell {

namespace {

using common::RuntimeFault;

/// Whether a save would give the file what it holds anyway. A text that cannot be saved differs.
template <class Row, class Encode, class Parse>
bool SaysTheSame(const Unsaved<Row>& list, Encode encode, Parse parse) {
  try {
    return parse(encode()) == parse(common::ReadFile(list.path));
  } catch (const RuntimeFault&) {
    return false;
  }
}

bool IsSaved(const Unsaved<TagRow>& list, const Tables& tables) {
  const auto encode = [&list] {
    TagStore store;
    store.TakeRows(list.rows);
    return EncodeInstrumentFile(store);
  };
  const auto parse = [&tables](std::string bytes) {
    std::vector<TagRow> rows = ParseInstrumentFile(std::move(bytes), tables.pipes, tables.lists);
    // Saving brings the header to this program's version.
    if (!rows.empty()) rows.front() = {};
    return rows;
  };
  return SaysTheSame(list, encode, parse);
}

bool IsSaved(const Unsaved<DuctRow>& list) {
  const auto encode = [&list] {
    DuctStore store;
    store.TakeRows(list.rows);
    return EncodeDuctFile(store);
  };
  const auto parse = [](std::string bytes) {
    DuctFileContents contents = ParseDuctFile(std::move(bytes));
    if (contents.fault) throw RuntimeFault(*contents.fault);
    return std::move(contents.rows);
  };
  return SaysTheSame(list, encode, parse);
}

template <class Row>
std::string Paragraph(const char* what, int count, const Unsaved<Row>& list) {
  std::string text = std::string("\n\n") + what + "：" + std::to_string(count) + "件\nファイル：" +
                     (list.path.empty() ? "（新規ファイル）" : list.path);
  if (list.path.empty()) return text;
  const std::string now = FileFingerprint(list.path);
  if (now.empty()) {
    text += "\n※このファイルは、見つからないか読み込めません。";
  } else if (now != list.fileWas) {
    text +=
        "\n※このファイルは、編集を始めた後に書き換えられています。"
        "\n　復元して保存すると、その内容は失われます。";
  }
  return text;
}

common::Answer Ask(Workspace& workspace, const RecoveryCopy& copy) {
  std::string text =
      "保存されないまま終了したデータの控えがあります。\n\n控えの日時：" + LocalTimeText(copy.time);
  if (copy.tags) text += Paragraph("計装データ", copy.TagCount(), *copy.tags);
  if (copy.ducts) text += Paragraph("ケーブルダクト", copy.DuctCount(), *copy.ducts);
  text +=
      "\n\n復元しても、保存するまでファイルは変わりません。"
      "\nキャンセルすると、次回の起動時に再び確認します。"
      "\n\n復元しますか";
  return workspace.Shown().Present(
      {text, "データの復元", common::Icon::kQuestion, common::Buttons::kYesNoCancel});
}

void TakeUnsaved(Workspace& workspace, RecoveryCopy copy) {
  if (copy.ducts) TakeUnsavedDucts(workspace, std::move(copy.ducts->rows), copy.ducts->path);
  if (copy.tags) TakeUnsavedTags(workspace, std::move(copy.tags->rows), copy.tags->path);
}

}  // namespace

void OfferRecovery(Workspace& workspace) {
  Recovery& recovery = workspace.recovery;
  for (Recovery::Leftover& found : recovery.Leftovers()) {
    RecoveryCopy wanted = found.copy;
    if (wanted.tags && IsSaved(*wanted.tags, workspace.tables)) wanted.tags.reset();
    if (wanted.ducts && IsSaved(*wanted.ducts)) wanted.ducts.reset();
    if (wanted.Empty()) {
      recovery.Discard(found);
      continue;
    }
    const common::Answer answer = Ask(workspace, wanted);
    if (answer == common::Answer::kNo) {
      recovery.SetAside(found);
      continue;
    }
    if (answer == common::Answer::kYes) {
      recovery.Continue(std::move(found));
      TakeUnsaved(workspace, std::move(wanted));
    }
    return;
  }
}

void KeepRecovery(Workspace& workspace) {
  workspace.recovery.Keep(workspace.tags, workspace.ducts);
}

std::string LocalTimeText(std::int64_t seconds) {
  const auto time = static_cast<std::time_t>(seconds);
  std::tm local{};
  if (localtime_r(&time, &local) == nullptr) return "不明";
  char text[64];
  const std::size_t length = std::strftime(text, sizeof text, "%Y年%m月%d日 %H:%M:%S", &local);
  return length == 0 ? "不明" : std::string(text, length);
}

}  // namespace shell
