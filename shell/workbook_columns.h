#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "data/convert_lists.h"
#include "shell/tables.h"
#include "shell/tag_store.h"

/// What stands in the columns of a workbook of tags.
namespace shell::workbook {

/// Nothing, a number or a text.
using CellValue = std::variant<std::monostate, double, std::string>;

/// Makes a cell from a tag record and the tables that its list positions refer to.
struct CellSource {
  std::function<CellValue(const TagRow& record, const Tables& tables)> make;
  /// The column of the record that the cell shows; -1 for none.
  int column = -1;

  CellValue operator()(const TagRow& record, const Tables& tables) const {
    return make(record, tables);
  }
};

/// Number format of a column without one. Any other column has "#,##0_ " with so many decimals.
inline constexpr int kGeneral = -1;

struct WorkbookColumn {
  std::string title;
  int decimals = kGeneral;
  CellSource value;
};

struct Worksheet {
  std::string kind;  // of its tags; the worksheet's name
  std::vector<WorkbookColumn> columns;
};

using Lists = data::ConvertLists;
/// One of the lists of the data file.
using ListMember = data::TextList Lists::*;

// Sources. A column number is one of the tag record. A blank text gives an empty cell.

/// The text as it stands: tag numbers, sizes and models are no numbers, even where they look so.
CellSource Text(int column);
/// A number, if the whole text is one, thousands commas included; else the text.
CellSource Number(int column);
/// Text of the list position that is stored, with `suffix` behind. A position outside the list
/// gives an empty cell, a text that is no position stands as it is.
CellSource Item(int column, ListMember list, const std::string& suffix = {});
CellSource Item(int column, data::TextList list);
/// Units that have a list for each fluid phase, which is stored in a column of its own.
CellSource FlowUnit(int phaseColumn, int unitColumn);
CellSource DensityUnit(int phaseColumn, int unitColumn);
/// "WetBase" or "DryBase" of a flag.
CellSource WetOrDry(int column);
/// Mark of a judgement by the colour and the caption of its label: passed, failed, or none without
/// a caption.
CellSource Judgement(int colourColumn, int captionColumn);
/// Part n, from 0, of a text that is divided by semicolons.
CellSource NumberPart(int column, int n);
CellSource TextPart(int column, int n);
CellSource Constant(const std::string& text);
CellSource Blank();
/// One of two sources, by a condition on the record. The column is that of the usual case, the
/// second one.
CellSource If(bool (*condition)(const TagRow&), CellSource then, CellSource otherwise);

inline constexpr int kNoPosition = -2;
/// The list position that a text stands for; -1 for none selected, kNoPosition for a text that is
/// no whole number.
int ListPosition(const std::string& text);

/// The name that a table holds for the stored position; where it has none the stored text.
template <class Names>
CellValue NameOr(const std::string& stored, const Names& names) {
  const int position = ListPosition(stored);
  if (position == -1) return {};
  const bool named = position >= 0 && static_cast<std::size_t>(position) < names.size() &&
                     !names[static_cast<std::size_t>(position)].empty();
  return named ? names[static_cast<std::size_t>(position)] : stored;
}

// Columns of the worksheets.
std::vector<WorkbookColumn> DifferentialPressureColumns();
std::vector<WorkbookColumn> IntegralColumns();
std::vector<WorkbookColumn> VortexColumns();
std::vector<WorkbookColumn> RestrictionColumns();
std::vector<WorkbookColumn> ThermowellColumns();
std::vector<WorkbookColumn> SensorColumns();
std::vector<WorkbookColumn> ValveColumns();
std::vector<WorkbookColumn> PressureLossColumns();

/// All worksheets in their order.
const std::vector<Worksheet>& Worksheets();

}  // namespace shell::workbook
