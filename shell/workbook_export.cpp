#include "shell/workbook_export.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "common/fault.h"
#include "common/file.h"
#include "shell/record_text.h"
#include "shell/workspace.h"

namespace shell {

TagExport::TagExport(const Workspace& workspace)
    : workspace_(workspace),
      tags_(std::max(workspace.tags.TagCount(), 0)),
      sheetNextRow_(workbook::Worksheets().size(), 1) {}

bool TagExport::Next() {
  if (done_ == Steps()) return false;
  ++done_;
  if (done_ > kStepsBefore) {
    AddTag(done_ - kStepsBefore);
  } else if (done_ > 1) {
    file_->AddWorksheet(workbook::Worksheets().at(static_cast<std::size_t>(done_ - 2)));
  } else {
    Begin();
  }
  return true;
}

void TagExport::Begin() {
  if (workspace_.tables.lists.Empty()) {
    throw common::RuntimeFault(
        common::Fault::kFileAccess,
        "ZephaConvertData.dat を読み込めなかったため、単位などの名称を書き込めません。");
  }
  file_.emplace();
}

void TagExport::AddTag(int row) {
  const TagRow& record = workspace_.tags.Row(row);
  const auto& sheets = workbook::Worksheets();
  const auto found = std::find_if(
      sheets.begin(), sheets.end(),
      [&record](const workbook::Worksheet& sheet) { return sheet.kind == record[kKindColumn]; });
  if (found == sheets.end()) {
    throw common::RuntimeFault(common::Fault::kInvalidArgument, "該当するカテゴリーがありません。");
  }
  const auto index = static_cast<int>(found - sheets.begin());
  const int sheetRow = sheetNextRow_[static_cast<std::size_t>(index)]++;
  for (std::size_t column = 0; column < found->columns.size(); ++column) {
    file_->Write(index, sheetRow, static_cast<int>(column),
                 found->columns[column].value(record, workspace_.tables));
  }
}

void WriteWorkbook(const Workspace& workspace, const std::string& path) {
  TagExport workbook(workspace);
  while (workbook.Next()) continue;
  common::WriteFile(path, workbook.Finish());
}

std::string ReplaceQuestion(const std::string& path) {
  return path + " は既に存在します。\n上書きしますか？";
}

std::string NewWorkbookPath(const std::string& instrumentFile) {
  const std::string title = instrumentFile.empty() ? "ZEPHA" : FileTitle(instrumentFile);
  for (int number = 1;; ++number) {
    std::string name = title;
    if (number > 1) name.append("(").append(std::to_string(number)).append(")");
    std::string path = common::JoinPath(common::TemporaryFolder(), name + ".xlsx");
    // "x" creates the file or fails, so that no other program gets the same name.
    if (std::FILE* const file = std::fopen(path.c_str(), "wbx")) {
      std::fclose(file);
      return path;
    }
    if (errno != EEXIST) {
      throw common::RuntimeFault(common::Fault::kFileAccess, "Excelを起動できません。");
    }
  }
}

}  // namespace shell
