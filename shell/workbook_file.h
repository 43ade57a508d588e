#pragma once

#include <memory>
#include <string>

#include "shell/workbook_columns.h"

namespace shell {

/// A workbook in the making: worksheets with a title row that stays in view and can filter, number
/// formats by column, and columns as wide as what stands in them.
class WorkbookFile {
 public:
  WorkbookFile();
  ~WorkbookFile();
  WorkbookFile(const WorkbookFile&) = delete;
  WorkbookFile& operator=(const WorkbookFile&) = delete;

  /// Adds a worksheet with its title row; `sheet` must outlive the workbook.
  void AddWorksheet(const workbook::Worksheet& sheet);
  /// Puts a value below the title of a column of the worksheet with this index. row: 1 for the
  /// first one below the titles.
  void Write(int worksheet, int row, int column, const workbook::CellValue& value);
  /// Ends the workbook and returns the bytes of its file. Raises kFileAccess when there is no room
  /// to make them.
  std::string Finish();

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace shell
