#include "desktop/form_layout.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/binding.h"
#include "forms/controls.h"

namespace desktop {

namespace {

// Distances in letter heights.
constexpr double kBetweenColumns = 0.7;
constexpr double kBetweenLines = 0.42;
constexpr double kBetweenBlocks = 0.75;
constexpr double kCardMargin = 0.85;
constexpr double kWithinCard = 0.52;
constexpr double kFormMargin = 0.9;
constexpr double kButtonWidth = 7;

QWidget* Box() {
  auto* const box = new QWidget;
  SetLook(*box, "box");
  return box;
}

template <class Kind>
bool Is(const forms::Control* control) {
  return dynamic_cast<const Kind*>(control) != nullptr;
}

bool IsResult(const forms::Control* control) {
  const auto* const label = dynamic_cast<const forms::Label*>(control);
  return label != nullptr && label->Style() == forms::LabelStyle::kResult;
}

bool IsCaption(const forms::Cell& cell) {
  if (cell.What() == forms::Cell::Kind::kText || cell.Controls().empty()) return true;
  return Is<forms::Label>(cell.Controls().front()) && !IsResult(cell.Controls().front());
}

/// Whether the cell shows figures, which stand at its right end.
bool HoldsNumber(const forms::Cell& cell) {
  if (cell.Controls().empty()) return false;
  const forms::Control* const control = cell.Controls().front();
  if (const auto* const box = dynamic_cast<const forms::TextBox*>(control)) return box->IsNumeric();
  const auto* const result = dynamic_cast<const forms::ResultLabel*>(control);
  return result != nullptr && !result->HoldsWords();
}

/// The cell over this column of a line, or null.
const forms::Cell* CellOver(const forms::Line& line, int column) {
  for (const forms::Cell& cell : line) {
    column -= cell.Columns();
    if (column < 0) return &cell;
  }
  return nullptr;
}

bool HoldsHeadings(const forms::Line& line) {
  return std::all_of(line.begin(), line.end(), IsCaption);
}

/// Whether what stands in this column above that line heads figures.
bool IsOverNumbers(const std::vector<forms::Line>& lines, std::size_t line, int column) {
  for (; line < lines.size(); ++line) {
    const forms::Cell* const cell = CellOver(lines[line], column);
    const bool empty = cell == nullptr || cell->What() == forms::Cell::Kind::kEmpty;
    if (!empty && !HoldsHeadings(lines[line])) return HoldsNumber(*cell);
  }
  return false;
}

/// Headings stand where the figures below them do: at the right end of their column, in the middle
/// of several.
Qt::Alignment AlignmentOf(const std::vector<forms::Line>& lines, std::size_t line, int column) {
  if (!HoldsHeadings(lines[line]) || !IsOverNumbers(lines, line + 1, column)) return Qt::AlignLeft;
  return CellOver(lines[line], column)->Columns() > 1 ? Qt::AlignHCenter : Qt::AlignRight;
}

/// Whether the cell gains from more room in both directions.
bool IsArea(const forms::Cell& cell) {
  return std::any_of(cell.Controls().begin(), cell.Controls().end(),
                     [](const forms::Control* control) {
                       return Is<forms::ListBox>(control) || Is<forms::CheckList>(control) ||
                              Is<forms::Grid>(control) || Is<forms::Picture>(control);
                     });
}

/// Whether the cell gains from more height.
bool IsTall(const forms::Cell& cell) {
  return IsArea(cell) ||
         std::any_of(cell.Controls().begin(), cell.Controls().end(),
                     [](const forms::Control* control) {
                       const auto* const tabs = dynamic_cast<const forms::TabStrip*>(control);
                       if (tabs != nullptr) return tabs->Where() == forms::TabStrip::Side::kLeft;
                       const auto* const bar = dynamic_cast<const forms::ScrollBar*>(control);
                       return bar != nullptr &&
                              bar->Orientation() == forms::ScrollBar::Direction::kVertical;
                     });
}

/// Whether the cell gains from more width. A unit selector, which stands behind its value, does
/// not; a selector behind a caption does.
bool IsWide(const forms::Cell& cell, const forms::Cell* before) {
  if (IsArea(cell)) return true;
  return std::any_of(
      cell.Controls().begin(), cell.Controls().end(), [&](const forms::Control* control) {
        if (Is<forms::TextBox>(control) || IsResult(control) || Is<forms::ProgressBar>(control)) {
          return true;
        }
        return Is<forms::ComboBox>(control) && (before == nullptr || IsCaption(*before));
      });
}

std::vector<bool> WideColumns(const std::vector<forms::Line>& lines) {
  std::vector<bool> wide;
  for (const forms::Line& line : lines) {
    std::size_t column = 0;
    const forms::Cell* before = nullptr;
    for (const forms::Cell& cell : line) {
      const auto behind = column + static_cast<std::size_t>(cell.Columns());
      wide.resize(std::max(wide.size(), behind));
      if (cell.Columns() == 1 && IsWide(cell, before)) wide[column] = true;
      column = behind;
      before = &cell;
    }
  }
  return wide;
}

/// Spare room goes to the columns that can use it, or behind the last one.
void StretchColumns(QGridLayout& grid, const std::vector<forms::Line>& lines) {
  const std::vector<bool> wide = WideColumns(lines);
  int column = 0;
  for (const bool isWide : wide) grid.setColumnStretch(column++, isWide ? 1 : 0);
  if (std::find(wide.begin(), wide.end(), true) == wide.end()) grid.setColumnStretch(column, 1);
}

void StretchRows(QGridLayout& grid, const std::vector<forms::Line>& lines) {
  bool anyTall = false;
  int row = 0;
  for (const forms::Line& line : lines) {
    const bool tall = std::any_of(line.begin(), line.end(), IsTall);
    grid.setRowStretch(row++, tall ? 1 : 0);
    anyTall = anyTall || tall;
  }
  if (!anyTall) grid.setRowStretch(row, 1);
}

/// A fixed caption; a click on it goes to its field.
class CaptionText : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void mouseReleaseEvent(QMouseEvent*) override { FocusBuddy(*this); }
};

bool TakesRoom(const forms::Block& block) {
  return block.stretch > 0 || block.kind == forms::Block::Kind::kSpace;
}

}  // namespace

QWidget* LayoutBuilder::BuildForm(const forms::Block& block) {
  QWidget* const form = new QWidget;
  form->setObjectName(QStringLiteral("formContent"));
  auto* const layout = new QVBoxLayout(form);
  Space(*layout, kFormMargin, kBetweenBlocks);
  layout->addWidget(Build(block), 1);
  return form;
}

QWidget* LayoutBuilder::Build(const forms::Block& block) {
  switch (block.kind) {
    case forms::Block::Kind::kTable:
      return BuildTable(block);
    case forms::Block::Kind::kRow:
      return BuildRow(block);
    case forms::Block::Kind::kColumn:
      return BuildColumn(block, Rest::kBelow);
    case forms::Block::Kind::kGroup:
    case forms::Block::Kind::kResults:
      return BuildGroup(block);
    case forms::Block::Kind::kButtons:
      return BuildButtons(block);
    case forms::Block::Kind::kSpace:
      break;
  }
  return Box();
}

void LayoutBuilder::Space(QBoxLayout& layout, double margin, double spacing) {
  OnResize([&layout, margin, spacing](const Scale& scale) {
    const int room = scale.Em(margin);
    layout.setContentsMargins(room, room, room, room);
    layout.setSpacing(scale.Em(spacing));
  });
}

QWidget* LayoutBuilder::BuildTable(const forms::Block& block) {
  QWidget* const table = Box();
  auto* const grid = new QGridLayout(table);
  grid->setContentsMargins(0, 0, 0, 0);
  OnResize([grid](const Scale& scale) {
    grid->setHorizontalSpacing(scale.Em(kBetweenColumns));
    grid->setVerticalSpacing(scale.Em(kBetweenLines));
  });
  for (std::size_t line = 0; line < block.lines.size(); ++line) AddLine(*grid, line, block.lines);
  StretchColumns(*grid, block.lines);
  StretchRows(*grid, block.lines);
  return table;
}

void LayoutBuilder::AddLine(QGridLayout& grid, std::size_t line,
                            const std::vector<forms::Line>& lines) {
  int column = 0;
  for (const forms::Cell& cell : lines[line]) {
    if (QWidget* const widget = BuildCell(cell)) {
      grid.addWidget(widget, static_cast<int>(line), column, 1, cell.Columns());
      auto* const text = qobject_cast<QLabel*>(widget);
      if (text != nullptr && IsCaption(cell)) {
        text->setAlignment(Qt::AlignVCenter | AlignmentOf(lines, line, column));
      }
    }
    column += cell.Columns();
  }
}

QWidget* LayoutBuilder::BuildCell(const forms::Cell& cell) {
  switch (cell.What()) {
    case forms::Cell::Kind::kEmpty:
      return nullptr;
    case forms::Cell::Kind::kControl:
      return PlaceControl(*cell.Controls().front(), cell.Characters());
    case forms::Cell::Kind::kOneOf:
      return BuildOneOf(cell);
    case forms::Cell::Kind::kSide:
      return BuildSide(cell);
    case forms::Cell::Kind::kText:
      break;
  }
  auto* const text = new CaptionText;
  text->setTextFormat(Qt::PlainText);
  text->setText(CaptionOf(cell.Text()));
  SetLook(*text, "caption");
  captions_.emplace_back(&cell, text);
  return text;
}

QWidget* LayoutBuilder::PlaceControl(forms::Control& control, int characters) {
  QWidget* const widget = place_(control, characters);
  // A hidden control keeps its place, so that nothing jumps when it comes back.
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

QWidget* LayoutBuilder::BuildOneOf(const forms::Cell& cell) {
  QWidget* const place = Box();
  auto* const layout = new QGridLayout(place);
  layout->setContentsMargins(0, 0, 0, 0);
  for (forms::Control* control : cell.Controls()) {
    layout->addWidget(PlaceControl(*control, cell.Characters()), 0, 0);
  }
  return place;
}

QWidget* LayoutBuilder::BuildSide(const forms::Cell& cell) {
  QWidget* const side = Box();
  auto* const layout = new QHBoxLayout(side);
  Space(*layout, 0, kBetweenColumns);
  for (forms::Control* control : cell.Controls()) {
    const bool grows = Is<forms::TextBox>(control) || IsResult(control) ||
                       Is<forms::ListBox>(control) || Is<forms::Grid>(control);
    layout->addWidget(PlaceControl(*control, cell.Characters()), grows ? 1 : 0);
  }
  layout->addStretch(0);
  return side;
}

QWidget* LayoutBuilder::BuildRow(const forms::Block& block) {
  QWidget* const row = Box();
  auto* const layout = new QHBoxLayout(row);
  Space(*layout, 0, kBetweenBlocks);
  for (const forms::Block& inner : block.blocks) {
    const bool column = inner.kind == forms::Block::Kind::kColumn;
    layout->addWidget(column ? BuildColumn(inner, Rest::kToLast) : Build(inner), inner.stretch);
  }
  return row;
}

QWidget* LayoutBuilder::BuildColumn(const forms::Block& block, Rest rest) {
  QWidget* const column = Box();
  auto* const layout = new QVBoxLayout(column);
  Space(*layout, 0, kBetweenBlocks);
  for (const forms::Block& inner : block.blocks) layout->addWidget(Build(inner), inner.stretch);
  const bool roomTaken = std::any_of(block.blocks.begin(), block.blocks.end(), TakesRoom);
  if (roomTaken || block.blocks.empty()) return column;
  if (rest == Rest::kBelow) {
    layout->addStretch(1);
  } else {
    layout->setStretch(layout->count() - 1, 1);
  }
  return column;
}

QWidget* LayoutBuilder::BuildGroup(const forms::Block& block) {
  QWidget* const card = block.frame != nullptr ? place_(*block.frame, 0) : new QFrame;
  SetLook(*card, block.kind == forms::Block::Kind::kResults ? "results" : "group");
  auto* const layout = new QVBoxLayout(card);
  Space(*layout, kCardMargin, kWithinCard);
  auto* const title = new QLabel(QString::fromStdString(block.title));
  title->setTextFormat(Qt::PlainText);
  SetLook(*title, "title");
  layout->addWidget(title);
  title->setHidden(block.title.empty());
  for (const forms::Block& inner : block.blocks) layout->addWidget(Build(inner), 1);
  return card;
}

QWidget* LayoutBuilder::BuildButtons(const forms::Block& block) {
  QWidget* const bar = Box();
  auto* const layout = new QHBoxLayout(bar);
  Space(*layout, 0, kBetweenColumns);
  for (const forms::Line& line : block.lines) {
    for (const forms::Cell& cell : line) {
      QWidget* const widget = BuildCell(cell);
      if (widget == nullptr) {
        layout->addStretch(1);
        continue;
      }
      layout->addWidget(widget);
      if (auto* const button = qobject_cast<QPushButton*>(widget)) {
        OnResize([button](const Scale& scale) { button->setMinimumWidth(scale.Em(kButtonWidth)); });
      }
    }
  }
  return bar;
}

}  // namespace desktop
