#pragma once

#include <string>
#include <vector>

namespace forms {

class Control;
class Frame;

/// One place in a line of a layout: a control, several controls of which one is visible at a time,
/// a few controls side by side, or a fixed text.
class Cell {
 public:
  enum class Kind { kEmpty, kControl, kOneOf, kSide, kText };

  Cell() = default;
  Cell(Control& control) : kind_(Kind::kControl), controls_{&control} {}  // NOLINT: reads as a list
  Cell(const char* text) : kind_(Kind::kText), text_(text) {}             // NOLINT
  /// Controls that share a place, such as the unit selectors of three phases.
  static Cell OneOf(std::vector<Control*> controls);
  /// Controls beside each other.
  static Cell Side(std::vector<Control*> controls);

  /// The cell takes this many columns of its table.
  Cell Over(int columns) const;
  /// Width in average characters, instead of the width that its kind has by default.
  Cell Wide(int characters) const;

  Kind What() const { return kind_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  const std::string& Text() const { return text_; }
  int Columns() const { return columns_; }
  int Characters() const { return characters_; }

 private:
  Kind kind_ = Kind::kEmpty;
  std::vector<Control*> controls_;
  std::string text_;
  int columns_ = 1;
  int characters_ = 0;
};

/// Cells from left to right; the lines of a table share their columns.
using Line = std::vector<Cell>;

/// A part of a form's layout: a table of lines, or blocks in a row, in a column, or in a titled
/// group.
struct Block {
  enum class Kind { kTable, kRow, kColumn, kGroup, kResults, kButtons, kSpace };

  Kind kind = Kind::kColumn;
  std::string title;
  /// The frame control of a group, if it has one of its own.
  Frame* frame = nullptr;
  std::vector<Line> lines;
  std::vector<Block> blocks;
  /// Share of the spare room that it takes, beside its neighbours.
  int stretch = 0;

  /// The controls in reading order, which is the order of the tab key.
  void Collect(std::vector<Control*>& controls) const;
};

Block Table(std::vector<Line> lines);
Block Row(std::vector<Block> blocks);
Block Column(std::vector<Block> blocks);
Block Group(std::string title, Block contents);
Block Group(Frame& frame, Block contents);
/// A group of results, set apart from the entries.
Block Results(std::string title, Block contents);
/// A line of buttons; what stands behind an empty cell moves to the right end.
Block Buttons(Line line);
/// Takes the spare room.
Block Space();
/// The block with a share of the spare room.
Block Stretched(Block block, int stretch = 1);

}  // namespace forms
