#include "forms/layout.h"

#include <utility>

namespace forms {

namespace {

Block Of(Block::Kind kind, std::vector<Block> blocks) {
  Block block;
  block.kind = kind;
  block.blocks = std::move(blocks);
  return block;
}

}  // namespace

Cell Cell::OneOf(std::vector<Control*> controls) {
  Cell cell;
  cell.kind_ = Kind::kOneOf;
  cell.controls_ = std::move(controls);
  return cell;
}

Cell Cell::Side(std::vector<Control*> controls) {
  Cell cell = OneOf(std::move(controls));
  cell.kind_ = Kind::kSide;
  return cell;
}

Cell Cell::Over(int columns) const {
  Cell cell = *this;
  cell.columns_ = columns;
  return cell;
}

Cell Cell::Wide(int characters) const {
  Cell cell = *this;
  cell.characters_ = characters;
  return cell;
}

void Block::Collect(std::vector<Control*>& controls) const {
  for (const Line& line : lines) {
    for (const Cell& cell : line) {
      controls.insert(controls.end(), cell.Controls().begin(), cell.Controls().end());
    }
  }
  for (const Block& block : blocks) block.Collect(controls);
}

Block Table(std::vector<Line> lines) {
  Block block;
  block.kind = Block::Kind::kTable;
  block.lines = std::move(lines);
  return block;
}

Block Row(std::vector<Block> blocks) { return Of(Block::Kind::kRow, std::move(blocks)); }

Block Column(std::vector<Block> blocks) { return Of(Block::Kind::kColumn, std::move(blocks)); }

Block Group(std::string title, Block contents) {
  Block block = Of(Block::Kind::kGroup, {std::move(contents)});
  block.title = std::move(title);
  return block;
}

Block Group(Frame& frame, Block contents) {
  Block block = Of(Block::Kind::kGroup, {std::move(contents)});
  block.frame = &frame;
  return block;
}

Block Results(std::string title, Block contents) {
  Block block = Group(std::move(title), std::move(contents));
  block.kind = Block::Kind::kResults;
  return block;
}

Block Buttons(Line line) {
  Block block = Table({std::move(line)});
  block.kind = Block::Kind::kButtons;
  return block;
}

Block Space() {
  Block block = Of(Block::Kind::kSpace, {});
  block.stretch = 1;
  return block;
}

Block Stretched(Block block, int stretch) {
  block.stretch = stretch;
  return block;
}

}  // namespace forms
