// 300 tags to a workbook, against the same cells handed to the writer's library with nothing of
// ours between: several runs in turn, medians.

#include <unistd.h>
#include <xlsxwriter.h>

#include <cstdio>
#include <vector>

#include "bench.h"
#include "shell/hidden_sheets.h"
#include "shell/instrument_file.h"
#include "shell/workbook_export.h"
#include "shell/workspace.h"

namespace {

constexpr int kTags = shell::kMaxTags;
constexpr int kRuns = 21;

using shell::workbook::CellValue;
using shell::workbook::Worksheet;

using Rows = std::vector<std::vector<CellValue>>;

/// The cells of all worksheets, without the titles.
std::vector<Rows> CellsOf(const shell::Workspace& space) {
  std::vector<Rows> sheets;
  for (const Worksheet& sheet : shell::workbook::Worksheets()) {
    Rows& rows = sheets.emplace_back();
    for (int tag = 1; tag <= kTags; ++tag) {
      const shell::TagRow& record = space.tags.Row(tag);
      if (record[shell::kKindColumn] != sheet.kind) continue;
      auto& row = rows.emplace_back();
      for (const auto& column : sheet.columns) row.push_back(column.value(record, space.tables));
    }
  }
  return sheets;
}

void WriteBareRow(lxw_worksheet* target, lxw_row_t row, const std::vector<CellValue>& cells) {
  lxw_col_t column = 0;
  for (const CellValue& cell : cells) {
    if (const auto* number = std::get_if<double>(&cell)) {
      worksheet_write_number(target, row, column, *number, nullptr);
    } else if (const auto* text = std::get_if<std::string>(&cell)) {
      worksheet_write_string(target, row, column, text->c_str(), nullptr);
    }
    ++column;
  }
}

void WriteBare(const std::vector<Rows>& sheets, const std::string& path) {
  lxw_workbook* const workbook = workbook_new(path.c_str());
  lxw_format* const bold = workbook_add_format(workbook);
  format_set_bold(bold);
  std::vector<lxw_format*> formats;
  for (const char* text : {"#,##0_ ", "#,##0.0_ ", "#,##0.00_ ", "#,##0.000_ ", "#,##0.0000_ "}) {
    formats.push_back(workbook_add_format(workbook));
    format_set_num_format(formats.back(), text);
  }
  for (std::size_t index = 0; index < sheets.size(); ++index) {
    const Worksheet& layout = shell::workbook::Worksheets()[index];
    lxw_worksheet* const target = workbook_add_worksheet(workbook, layout.kind.c_str());
    lxw_col_t column = 0;
    for (const auto& [title, decimals, source] : layout.columns) {
      worksheet_set_column(target, column, column, 12,
                           decimals < 0 ? nullptr : formats[static_cast<std::size_t>(decimals)]);
      worksheet_write_string(target, 0, column++, title.c_str(), bold);
    }
    lxw_row_t row = 0;
    for (const auto& cells : sheets[index]) WriteBareRow(target, ++row, cells);
    worksheet_freeze_panes(target, 1, 1);
    worksheet_autofilter(target, 0, 0, row, static_cast<lxw_col_t>(column - 1));
  }
  if (workbook_close(workbook) != LXW_NO_ERROR) std::fprintf(stderr, "not written\n");
}

}  // namespace

int main() {
  shell::Listener user;
  shell::MemorySettings settings;
  shell::Workspace space(user, settings, nullptr);
  space.tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  shell::OpenInstrumentFile(space.tags, ZEPHA_SOURCE_DIR "/samples/plant.zph", space.tables.pipes,
                            space.tables.lists, user);
  space.tags = bench::FullStore(space.tags);

  const std::vector<Rows> cells = CellsOf(space);
  const std::string path = "/tmp/zepha-bench-" + std::to_string(getpid()) + ".xlsx";
  std::vector<double> ours;
  std::vector<double> bare;
  for (int run = 0; run < kRuns; ++run) {
    ours.push_back(bench::MillisecondsOf([&] { shell::WriteWorkbook(space, path); }));
    bare.push_back(bench::MillisecondsOf([&] { WriteBare(cells, path); }));
  }
  std::remove(path.c_str());
  std::printf("%d tags to a workbook: %.1f ms; bare library: %.1f ms; ratio %.2f\n", kTags,
              bench::Median(ours), bench::Median(bare), bench::Median(ours) / bench::Median(bare));
  return 0;
}
