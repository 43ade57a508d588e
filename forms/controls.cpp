#include "forms/controls.h"

#include <algorithm>

#include "common/real.h"
#include "common/text.h"
#include "forms/form.h"

namespace forms {

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) {
  form_.Register(*this);
}

Control::~Control() = default;

void Control::Fire(const std::function<void()>& handler) {
  if (handler && !form_.IsQuiet()) form_.RunEvent(this, handler);
}

void Control::TellChanged() {
  if (form_.Shown() != nullptr) form_.Shown()->ControlChanged(*this);
}

void Control::SetText(std::string text) { ReplaceText(std::move(text)); }

Label::Label(Form& form, std::string name, std::string text, LabelStyle style)
    : Control(form, std::move(name)), style_(style) {
  ReplaceText(std::move(text));
}

TextBox::TextBox(Form& form, std::string name, KeyFilter acceptsKey, int byteLimit)
    : Control(form, std::move(name)), acceptsKey_(acceptsKey), byteLimit_(byteLimit) {}

void TextBox::SetText(std::string text) {
  if (!ReplaceText(std::move(text))) return;
  undoText_.reset();
  Fire(onChange);
}

void TextBox::Type(std::string text) {
  if (byteLimit_ > 0) text = common::TruncateToBytes(text, byteLimit_);
  std::string before = Text();
  if (!ReplaceText(std::move(text))) {
    TellChanged();  // the view may hold more than the limit lets through
    return;
  }
  undoText_ = std::move(before);
  Fire(onChange);
}

bool TextBox::PressKey(char32_t key) {
  constexpr char32_t kEnter = U'\r';
  constexpr char32_t kBackspace = U'\b';
  if (key == kEnter) {
    if (onEnter) {
      Fire(onEnter);
    } else {
      Owner().FocusNext(*this);
    }
    return false;
  }
  if (key == kBackspace) return true;
  if (key == U'\t') return false;  // walks on by the window's own means; never a character
  if (!acceptsKey_(key)) {
    Owner().Beep();
    return false;
  }
  if (byteLimit_ > 0 && common::Cp932Length(Text()) >= byteLimit_) {
    Type(Text());
    return false;
  }
  return true;
}

bool TextBox::PressArrow(Arrow arrow) {
  if (!onArrow) return false;
  bool used = false;
  Fire([&] { used = onArrow(arrow); });
  return used;
}

void TextBox::Undo() {
  if (!undoText_) return;
  Type(*undoText_);
}

ListControl::ListControl(Form& form, std::string name, std::vector<std::string> items)
    : Control(form, std::move(name)), items_(std::move(items)) {}

void ListControl::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  index_ = -1;
  ReplaceText({});
  TellChanged();
}

void ListControl::SetItem(int index, std::string text) {
  common::At(items_, index) = std::move(text);
  if (index == index_) ReplaceText(items_[static_cast<std::size_t>(index)]);
  TellChanged();
}

void ListControl::Select(int index) {
  if (index < -1 || index >= Count()) common::RaiseFault(common::Fault::kIndexOutOfRange);
  const bool moved = index_ != index;
  index_ = index;
  if (!ReplaceText(index < 0 ? std::string() : items_[static_cast<std::size_t>(index)]) && moved) {
    TellChanged();
  }
}

void ListControl::SetIndex(int index) {
  if (index == index_) return;
  Select(index);
  Fire(onClick);
}

void ListControl::Pick(int index) {
  Select(index);
  Fire(onClick);
}

int ListControl::IndexOf(const std::string& text) const {
  const auto found = std::find(items_.begin(), items_.end(), text);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ListControl::PressEnter() {
  if (onEnter) {
    Fire(onEnter);
  } else {
    Owner().FocusNext(*this);
  }
}

ComboBox::ComboBox(Form& form, std::string name, std::vector<std::string> items, Style style)
    : ListControl(form, std::move(name), std::move(items)), style_(style) {}

void ComboBox::SetText(std::string text) {
  const int index = IndexOf(text);
  if (!Editable()) {
    SetIndex(index);
    return;
  }
  if (Text() == text) return;
  Select(text.empty() ? -1 : index);  // an empty field is no choice, even if an entry is empty
  ReplaceText(std::move(text));
  Fire(onChange);
}

ListBox::ListBox(Form& form, std::string name, int visibleLines, bool fixedPitch)
    : ListControl(form, std::move(name), {}),
      visibleLines_(visibleLines),
      fixedPitch_(fixedPitch) {}

CheckList::CheckList(Form& form, std::string name, int visibleLines)
    : ListControl(form, std::move(name), {}), visibleLines_(visibleLines) {}

bool CheckList::Marked(int index) const {
  const auto at = static_cast<std::size_t>(index);
  return at < marked_.size() && marked_[at];
}

void CheckList::SetMarked(int index, bool marked) {
  common::At(Items(), index);
  if (Marked(index) == marked) return;
  marked_.resize(Items().size());
  marked_[static_cast<std::size_t>(index)] = marked;
  TellChanged();
  Fire(onMark);
}

void CheckList::MarkAll(bool marked) {
  for (int i = 0; i < Count(); ++i) SetMarked(i, marked);
}

int CheckList::MarkedCount() const {
  int count = 0;
  for (int i = 0; i < Count(); ++i) count += Marked(i) ? 1 : 0;
  return count;
}

TabStrip::TabStrip(Form& form, std::string name, Side side)
    : ListControl(form, std::move(name), {}), side_(side) {}

CheckControl::CheckControl(Form& form, std::string name, std::string text)
    : Control(form, std::move(name)) {
  ReplaceText(std::move(text));
}

void CheckControl::SetChecked(bool checked) {
  if (Mark(checked)) Fire(onClick);
}

OptionButton::OptionButton(Form& form, std::string name, std::string text, std::string group)
    : CheckControl(form, std::move(name), std::move(text)), group_(std::move(group)) {}

void OptionButton::ClearOthers() {
  for (Control* control : Owner().Controls()) {
    auto* const other = dynamic_cast<OptionButton*>(control);
    if (other != nullptr && other != this && other->group_ == group_) other->Mark(false);
  }
}

void OptionButton::SetChecked(bool checked) {
  if (checked == Checked()) return;
  if (checked) ClearOthers();
  Mark(checked);
  if (checked) Fire(onClick);
}

void OptionButton::Choose() {
  ClearOthers();
  Mark(true);
  Fire(onClick);
}

void CheckBox::Choose() { SetChecked(!Checked()); }

Button::Button(Form& form, std::string name, std::string text, ButtonRole role)
    : Control(form, std::move(name)), role_(role) {
  ReplaceText(std::move(text));
  SetBackColor(kButtonFace);
}

Frame::Frame(Form& form, std::string name, std::string text) : Control(form, std::move(name)) {
  ReplaceText(std::move(text));
}

Picture::Picture(Form& form, std::string name, double width, double height)
    : Control(form, std::move(name)), width_(width), height_(height) {}

void Picture::SetSize(double width, double height) {
  width_ = width;
  height_ = height;
  TellChanged();
}

void Viewport::Resize(double width, double height) {
  if (width == Width() && height == Height()) return;
  SetSize(width, height);
  Fire(onResize);
}

void Viewport::Wheel(int lines) {
  if (onWheel) Fire([&] { onWheel(lines); });
}

ScrollBar::ScrollBar(Form& form, std::string name, Direction direction, int maximum)
    : Control(form, std::move(name)), direction_(direction), maximum_(maximum) {}

void ScrollBar::SetMaximum(int maximum) {
  maximum_ = std::max(maximum, 0);
  TellChanged();
  SetValue(value_);
}

void ScrollBar::SetLargeChange(int step) {
  largeChange_ = std::max(step, 1);
  TellChanged();
}

void ScrollBar::SetSmallChange(int step) {
  smallChange_ = std::max(step, 1);
  TellChanged();
}

void ScrollBar::SetValue(int value) {
  if (Change(value_, std::clamp(value, 0, maximum_))) Fire(onChange);
}

Grid::Grid(Form& form, std::string name, std::vector<Column> columns, int visibleRows)
    : Control(form, std::move(name)), columns_(std::move(columns)), visibleRows_(visibleRows) {}

void Grid::SetRows(std::vector<std::vector<std::string>> rows) {
  rows_ = std::move(rows);
  selectedRow_ = -1;
  TellChanged();
}

void Grid::Pick(int row) {
  common::At(rows_, row);
  selectedRow_ = row;
  TellChanged();
  Fire(onClick);
}

ProgressBar::ProgressBar(Form& form, std::string name) : Control(form, std::move(name)) {}

void ProgressBar::SetMaximum(int maximum) {
  maximum_ = std::max(maximum, 1);
  TellChanged();
}

void ProgressBar::SetValue(int value) {
  value_ = std::clamp(value, 0, maximum_);
  TellChanged();
}

}  // namespace forms
