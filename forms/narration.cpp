#include "forms/narration.h"

#include <algorithm>

#include "forms/controls.h"

namespace forms {

namespace {

constexpr const char* kWideBlank = "　";

bool IsLabel(const Control* control, LabelStyle style) {
  const auto* const label = dynamic_cast<const Label*>(control);
  return label != nullptr && label->Style() == style;
}

template <class Predicate>
bool All(const Cell& cell, Predicate predicate) {
  return !cell.Controls().empty() &&
         std::all_of(cell.Controls().begin(), cell.Controls().end(), predicate);
}

bool IsCaption(const Cell& cell) {
  return cell.What() == Cell::Kind::kText ||
         All(cell, [](const Control* c) { return IsLabel(c, LabelStyle::kCaption); });
}

bool IsBlank(const Cell& cell) { return cell.Controls().empty() && cell.Text().empty(); }

/// Whether a caption in front of the cell would be its own. Buttons carry theirs, and labels other
/// than results have none.
bool IsField(const Cell& cell) {
  return All(cell, [](const Control* c) {
    if (dynamic_cast<const Button*>(c) != nullptr) return false;
    return dynamic_cast<const Label*>(c) == nullptr || IsLabel(c, LabelStyle::kResult);
  });
}

/// Whether the cell can hold the unit of the field in front of it.
bool MayBeUnit(const Cell& cell) {
  return cell.What() == Cell::Kind::kText || All(cell, [](const Control* c) {
           return IsLabel(c, LabelStyle::kUnit) || dynamic_cast<const ComboBox*>(c) != nullptr;
         });
}

bool HasUnit(const Control* control) {
  return dynamic_cast<const TextBox*>(control) != nullptr || IsLabel(control, LabelStyle::kResult);
}

/// Captions are spaced out with wide blanks to stand in a column.
std::string WithoutWideBlanks(std::string text) {
  const std::string blank = kWideBlank;
  for (std::size_t at = text.find(blank); at != std::string::npos; at = text.find(blank, at)) {
    text.erase(at, blank.size());
  }
  return text;
}

void Append(std::string& name, const std::string& word) {
  if (word.empty()) return;
  if (!name.empty()) name += ' ';
  name += word;
}

}  // namespace

std::string Narration::Words::Text() const {
  return WithoutWideBlanks(label == nullptr ? fixed : label->Text());
}

/// Reads the lines of one table. A line of nothing but captions titles the columns below it.
class Narration::TableReader {
 public:
  TableReader(Narration& narration, const Block& block, const Words& group)
      : narration_(narration), block_(block), group_(group) {}

  void Read() {
    for (const Line& line : block_.lines) {
      const bool titles = std::all_of(line.begin(), line.end(), [](const Cell& cell) {
        return cell.What() == Cell::Kind::kEmpty || IsCaption(cell);
      });
      if (titles) {
        if (!afterTitles_) columns_.clear();
        ReadTitles(line);
        lines_ = 0;
      } else {
        ++lines_;
        ReadLine(line);
      }
      afterTitles_ = titles;
    }
  }

 private:
  struct Column {
    std::vector<Words> words;
    std::vector<const Cell*> cells;
  };

  static std::vector<Words> WordsOf(const Cell& cell) {
    if (cell.What() == Cell::Kind::kText) return {{nullptr, cell.Text()}};
    std::vector<Words> words;
    for (const Control* label : cell.Controls()) words.push_back({label, {}});
    return words;
  }

  void ReadTitles(const Line& line) {
    int column = 0;
    for (const Cell& cell : line) {
      if (!IsBlank(cell)) {
        Column& titled = columns_[column];
        for (Words& words : WordsOf(cell)) titled.words.push_back(std::move(words));
        titled.cells.push_back(&cell);
      }
      column += cell.Columns();
    }
  }

  void ReadLine(const Line& line) {
    captions_.clear();
    sharing_.clear();
    withoutUnit_.clear();
    int column = 0;
    const Cell* before = nullptr;
    for (std::size_t i = 0; i < line.size(); ++i) {
      const Cell& cell = line[i];
      const Cell* const next = i + 1 < line.size() ? &line[i + 1] : nullptr;
      const bool behindField =
          before != nullptr && IsField(*before) && HasUnit(before->Controls().back());
      const bool leads = cell.What() == Cell::Kind::kText && next != nullptr && IsField(*next);
      if (behindField && MayBeUnit(cell) && !leads) {
        ReadUnit(cell);
      } else if (IsCaption(cell)) {
        if (!sharing_.empty()) EndCaption();
        captions_.push_back(&cell);
      } else if (IsField(cell)) {
        ReadField(cell, column);
      }
      column += cell.Columns();
      before = &cell;
    }
    EndCaption();
  }

  void ReadField(const Cell& cell, int column) {
    const auto titled = columns_.find(column);
    std::size_t i = 0;
    for (Control* control : cell.Controls()) {
      Place& place = narration_.places_[control];
      place.group = group_;
      for (const Cell* caption : captions_) {
        std::vector<Words> words = WordsOf(*caption);
        // Of fields that share a place, each has the label that shows with it.
        const bool paired = words.size() > 1 && words.size() == cell.Controls().size();
        place.caption.push_back(words[paired ? i : 0]);
        narration_.Point(*caption, paired ? i : 0, *control);
      }
      if (titled != columns_.end()) {
        for (const Cell* title : titled->second.cells) narration_.Point(*title, 0, *control);
      }
      sharing_.emplace_back(control, column);
      if (HasUnit(control)) withoutUnit_.push_back(control);
      ++i;
    }
  }

  /// The unit of the field in front, and of those before it that have none.
  void ReadUnit(const Cell& cell) {
    for (Control* field : withoutUnit_) {
      std::vector<Words>& units = narration_.places_[field].units;
      for (Words& words : WordsOf(cell)) units.push_back(std::move(words));
    }
    if (!withoutUnit_.empty()) {
      for (const Control* selector : cell.Controls()) {
        narration_.places_[selector].unitOf = withoutUnit_.back();
      }
    }
    withoutUnit_.clear();
  }

  /// The fields behind one caption are told apart by the titles of their columns.
  void EndCaption() {
    const bool captioned = std::any_of(captions_.begin(), captions_.end(),
                                       [](const Cell* cell) { return !IsBlank(*cell); });
    for (const auto& [control, column] : sharing_) {
      Place& place = narration_.places_[control];
      if (captioned && sharing_.size() == 1) continue;
      const auto titled = columns_.find(column);
      if (titled == columns_.end()) continue;
      for (const Words& words : titled->second.words) place.caption.push_back(words);
      if (!captioned && LinesBelow() > 1) place.line = lines_;
    }
    captions_.clear();
    sharing_.clear();
  }

  /// Lines of the table that are no titles.
  std::ptrdiff_t LinesBelow() const {
    return std::count_if(block_.lines.begin(), block_.lines.end(), [](const Line& line) {
      return std::any_of(line.begin(), line.end(), IsField);
    });
  }

  Narration& narration_;
  const Block& block_;
  const Words& group_;
  std::map<int, Column> columns_;
  bool afterTitles_ = false;
  int lines_ = 0;
  // Of the line that is being read.
  std::vector<const Cell*> captions_;
  std::vector<std::pair<Control*, int>> sharing_;
  std::vector<Control*> withoutUnit_;
};

void Narration::Read(const Block& layout) {
  Read(layout, {});
  CollectFollowers();
}

void Narration::Read(const Block& block, const Words& group) {
  Words inner = group;
  if (block.frame != nullptr) {
    inner = {block.frame, {}};
  } else if (!block.title.empty()) {
    inner = {nullptr, block.title};
  }
  TableReader(*this, block, inner).Read();
  for (const Block& each : block.blocks) Read(each, inner);
}

/// The first field behind a caption is the one that it belongs to.
void Narration::Point(const Cell& caption, std::size_t label, Control& field) {
  if (caption.What() == Cell::Kind::kText) {
    fieldOfText_.try_emplace(&caption, &field);
  } else {
    fieldOfLabel_.try_emplace(caption.Controls()[label], &field);
  }
}

Control* Narration::FieldOf(const Control& caption) const {
  const auto found = fieldOfLabel_.find(&caption);
  return found == fieldOfLabel_.end() ? nullptr : found->second;
}

Control* Narration::FieldOf(const Cell& text) const {
  const auto found = fieldOfText_.find(&text);
  return found == fieldOfText_.end() ? nullptr : found->second;
}

const Narration::Place* Narration::PlaceOf(const Control& control) const {
  const auto found = places_.find(&control);
  return found == places_.end() ? nullptr : &found->second;
}

std::string Narration::UnitOf(const Control& control) const {
  const Place* const place = PlaceOf(control);
  if (place == nullptr) return {};
  std::string unit;
  for (const Words& words : place->units) {
    if (words.label == nullptr || words.label->Visible()) Append(unit, words.Text());
  }
  return unit;
}

std::string Narration::NameOf(const Control& control) const {
  std::string name = control.AccessibleName();
  if (!name.empty()) return name;
  const auto* const label = dynamic_cast<const Label*>(&control);
  const bool pressed =
      label != nullptr && label->TabStop() && label->Style() == LabelStyle::kCaption;
  if (pressed || dynamic_cast<const Button*>(&control) != nullptr) {
    return WithoutWideBlanks(control.Text());
  }
  const Place* const place = PlaceOf(control);
  if (place == nullptr) return {};
  if (place->unitOf != nullptr) return NameOf(*place->unitOf) + "の単位";
  for (const Words& words : place->caption) Append(name, words.Text());
  if (name.empty()) name = place->group.Text();
  if (place->line > 0) Append(name, std::to_string(place->line));
  if (dynamic_cast<const CheckControl*>(&control) != nullptr) {
    Append(name, WithoutWideBlanks(control.Text()));
  }
  return name;
}

std::string Narration::SpokenNameOf(const Control& control) const {
  std::string name = NameOf(control);
  if (name.empty()) return name;
  if (IsLabel(&control, LabelStyle::kResult)) Append(name, control.Text());
  Append(name, UnitOf(control));
  return name;
}

std::string Narration::HintOf(const Control& control) const {
  const Place* const place = PlaceOf(control);
  if (control.Hint().empty() && place != nullptr && place->unitOf != nullptr) {
    return NameOf(control) + "。切り替えても入力した数値は換算しません。";
  }
  std::string hint = control.Hint();
  const std::string unit = UnitOf(control);
  const std::size_t sentence = hint.find("。");
  if (!unit.empty() && sentence != std::string::npos) hint.insert(sentence, "［" + unit + "］");
  const bool hasKey = dynamic_cast<const TextBox*>(&control) != nullptr && control.onDblClick;
  if (!hint.empty() && hasKey) hint += "（F4＝ダブルクリック）";
  return hint;
}

std::string Narration::TipOf(const Control& control) const {
  std::string tip = control.ToolTip();
  const std::string hint = HintOf(control);
  if (!tip.empty() && !hint.empty()) tip += '\n';
  tip += hint;
  if (!tip.empty()) return tip;
  const Control* const field = FieldOf(control);
  return field == nullptr ? tip : TipOf(*field);
}

/// A change of a field is one of its caption's tip and of its unit selector's name.
void Narration::CollectFollowers() {
  for (const auto& [follower, place] : places_) {
    if (place.group.label != nullptr) followers_[place.group.label].push_back(follower);
    const auto follow = [this, follower = follower](const std::vector<Words>& texts) {
      for (const Words& words : texts) {
        if (words.label != nullptr) followers_[words.label].push_back(follower);
      }
    };
    follow(place.caption);
    follow(place.units);
    if (place.unitOf == nullptr) continue;
    followers_[place.unitOf].push_back(follower);
    follow(places_.at(place.unitOf).caption);
  }
  for (const auto& [caption, field] : fieldOfLabel_) followers_[field].push_back(caption);
}

const std::vector<const Control*>& Narration::FollowersOf(const Control& control) const {
  static const std::vector<const Control*> kNone;
  const auto found = followers_.find(&control);
  return found == followers_.end() ? kNone : found->second;
}

}  // namespace forms
