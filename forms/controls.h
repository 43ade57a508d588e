#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/draw_surface.h"
#include "forms/keys.h"

namespace forms {

/// How a label is set: beside a field, as a result, as a unit behind a value, as a heading, as a
/// remark in running text.
enum class LabelStyle { kCaption, kResult, kUnit, kHeading, kNote };

class Label : public Control {
 public:
  Label(Form& form, std::string name, std::string text = {},
        LabelStyle style = LabelStyle::kCaption);
  const char* Kind() const override { return "label"; }
  LabelStyle Style() const { return style_; }
  /// Whether Tab comes by, because no key elsewhere does what a click on the label does. Enter
  /// still walks past it.
  bool TabStop() const { return tabStop_; }
  void SetTabStop() { tabStop_ = true; }

 private:
  LabelStyle style_;
  bool tabStop_ = false;
};

/// A result label: empty at first, on a calm ground; a number stands to the right, words to the
/// left.
class ResultLabel : public Label {
 public:
  enum class Holds { kNumber, kWords };
  ResultLabel(Form& form, std::string name, Holds holds = Holds::kNumber)
      : Label(form, std::move(name), {}, LabelStyle::kResult), holds_(holds) {}
  bool HoldsWords() const { return holds_ == Holds::kWords; }

 private:
  Holds holds_;
};

class TextBox : public Control {
 public:
  /// acceptsKey: the field's key filter. byteLimit: CP932 bytes from which on no more printable
  /// keys are taken, 0 for no limit.
  TextBox(Form& form, std::string name, KeyFilter acceptsKey = AnyKey, int byteLimit = 0);
  const char* Kind() const override { return "textbox"; }
  bool TakesFocus() const override { return true; }

  /// Sets the text from code: fires onChange once if the text differs.
  void SetText(std::string text) override;
  /// The user's edit has led to this text. Fires onChange as SetText does and can be undone.
  void Type(std::string text);
  /// A printable key, Enter ('\r') or Backspace ('\b') pressed in the field: false when it is
  /// swallowed. Enter walks on, Tab does nothing here, a key that the filter refuses beeps.
  bool PressKey(char32_t key);
  /// An arrow key: true if the form used it.
  bool PressArrow(Arrow arrow);
  /// Takes the last edit back; once more brings it again. Texts set from code cannot be undone.
  void Undo();

  /// Whether the field holds a number, which stands to the right.
  bool IsNumeric() const { return acceptsKey_ != AnyKey; }

  std::function<void()> onChange;
  /// Enter pressed; without a handler the focus walks to the next field.
  std::function<void()> onEnter;
  std::function<bool(Arrow)> onArrow;

 private:
  KeyFilter acceptsKey_;
  int byteLimit_;
  std::optional<std::string> undoText_;
};

/// A control that holds a list of texts and a selection.
class ListControl : public Control {
 public:
  ListControl(Form& form, std::string name, std::vector<std::string> items);
  bool TakesFocus() const override { return true; }

  const std::vector<std::string>& Items() const { return items_; }
  int Count() const { return static_cast<int>(items_.size()); }
  /// Replaces the list; the selection goes, without an event.
  void SetItems(std::vector<std::string> items);
  /// Replaces one entry in place.
  void SetItem(int index, std::string text);

  /// Selected entry from 0, -1 for none.
  int Index() const { return index_; }
  /// Selects from code: fires onClick once if the selection differs. An index outside the list
  /// raises kIndexOutOfRange.
  void SetIndex(int index);
  /// The user picks an entry: fires onClick, also for the one that is selected already.
  void Pick(int index);
  /// Entry with just this text, -1 for none.
  int IndexOf(const std::string& text) const;
  /// Enter pressed in the list.
  void PressEnter();

  std::function<void()> onEnter;

 protected:
  /// Takes the selection without an event.
  void Select(int index);

 private:
  std::vector<std::string> items_;
  int index_ = -1;
};

class ComboBox : public ListControl {
 public:
  enum class Style { kList, kEditable };
  ComboBox(Form& form, std::string name, std::vector<std::string> items = {},
           Style style = Style::kList);
  const char* Kind() const override { return "combo"; }
  bool Editable() const { return style_ == Style::kEditable; }
  /// Text of an editable combo box; selects the entry that has it, if any. Fires onChange once if
  /// the text differs. Otherwise it selects the entry with that text, or none.
  void SetText(std::string text) override;

  /// The text of an editable box changed other than by a pick.
  std::function<void()> onChange;

 private:
  Style style_;
};

/// Selects the unit of a field.
class UnitBox : public ComboBox {
 public:
  UnitBox(Form& form, std::string name) : ComboBox(form, std::move(name)) {}
};

class ListBox : public ListControl {
 public:
  /// fixedPitch: lines are columns padded with blanks.
  ListBox(Form& form, std::string name, int visibleLines = 8, bool fixedPitch = false);
  const char* Kind() const override { return "list"; }
  int VisibleLines() const { return visibleLines_; }
  bool FixedPitch() const { return fixedPitch_; }

 private:
  int visibleLines_;
  bool fixedPitch_;
};

/// A list whose lines carry marks of their own, beside the selection.
class CheckList : public ListControl {
 public:
  CheckList(Form& form, std::string name, int visibleLines = 12);
  const char* Kind() const override { return "checklist"; }
  int VisibleLines() const { return visibleLines_; }
  /// Whether the line of that index is marked; lines are not, at first.
  bool Marked(int index) const;
  /// Marks a line or takes its mark, by code or by the user: fires onMark if that changed it.
  void SetMarked(int index, bool marked);
  void MarkAll(bool marked);
  int MarkedCount() const;

  std::function<void()> onMark;

 private:
  int visibleLines_;
  std::vector<bool> marked_;
};

class TabStrip : public ListControl {
 public:
  /// Where the tabs stand; at the left they are lines below each other, for more than fit in a row.
  enum class Side { kTop, kLeft };
  TabStrip(Form& form, std::string name, Side side = Side::kTop);
  const char* Kind() const override { return "tabstrip"; }
  Side Where() const { return side_; }

 private:
  Side side_;
};

/// Option button or check box.
class CheckControl : public Control {
 public:
  CheckControl(Form& form, std::string name, std::string text);
  bool TakesFocus() const override { return true; }
  bool Checked() const { return checked_; }
  /// Sets the mark from code: fires onClick once if it changed.
  virtual void SetChecked(bool checked);
  /// The user clicks it.
  virtual void Choose() = 0;

 protected:
  /// Sets the mark without an event; false if it stood there already.
  bool Mark(bool checked) { return Change(checked_, checked); }

 private:
  bool checked_ = false;
};

class OptionButton : public CheckControl {
 public:
  /// group: options of one form that share a group exclude each other.
  OptionButton(Form& form, std::string name, std::string text, std::string group = {});
  const char* Kind() const override { return "option"; }
  const std::string& Group() const { return group_; }
  void SetChecked(bool checked) override;
  void Choose() override;

 private:
  void ClearOthers();

  std::string group_;
};

class CheckBox : public CheckControl {
 public:
  using CheckControl::CheckControl;
  const char* Kind() const override { return "check"; }
  void Choose() override;
};

/// What a button is for, which decides its look.
enum class ButtonRole { kPlain, kDefault, kCancel };

class Button : public Control {
 public:
  Button(Form& form, std::string name, std::string text, ButtonRole role = ButtonRole::kPlain);
  const char* Kind() const override { return "button"; }
  bool TakesFocus() const override { return true; }
  ButtonRole Role() const { return role_; }

 private:
  ButtonRole role_;
};

/// A titled frame round a group of the layout; hiding or disabling it does so to its contents.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string text = {});
  const char* Kind() const override { return "frame"; }
};

/// A picture that the form draws itself, on the surface that screen and paper share.
class Picture : public Control {
 public:
  /// width, height: the size it is drawn for, twips.
  Picture(Form& form, std::string name, double width, double height);
  const char* Kind() const override { return "picture"; }
  double Width() const { return width_; }
  double Height() const { return height_; }
  /// Something that the picture shows has changed.
  void Redraw() { TellChanged(); }

  /// Draws the picture on a surface of Width() by Height().
  std::function<void(DrawSurface&)> onPaint;

 protected:
  void SetSize(double width, double height);

 private:
  double width_;
  double height_;
};

/// A window onto something larger on paper: it is drawn in its true size and in the colours of
/// paper, takes the room that there is, and is told how much that is.
class Viewport : public Picture {
 public:
  /// width, height: the size that it would like to have, twips.
  using Picture::Picture;
  const char* Kind() const override { return "viewport"; }
  /// Whoever shows it has this room for it: fires onResize if that is new.
  void Resize(double width, double height);
  /// The mouse wheel was turned over it, in lines, downwards positive.
  void Wheel(int lines);

  std::function<void()> onResize;
  std::function<void(int lines)> onWheel;
};

class ScrollBar : public Control {
 public:
  enum class Direction { kHorizontal, kVertical };
  ScrollBar(Form& form, std::string name, Direction direction, int maximum);
  const char* Kind() const override { return "scrollbar"; }
  bool TakesFocus() const override { return true; }
  Direction Orientation() const { return direction_; }
  int Maximum() const { return maximum_; }
  void SetMaximum(int maximum);
  int LargeChange() const { return largeChange_; }
  void SetLargeChange(int step);
  int SmallChange() const { return smallChange_; }
  void SetSmallChange(int step);
  int Value() const { return value_; }
  /// Moves the bar, by code or by the user; kept within 0 and Maximum. Fires onChange if it moved.
  void SetValue(int value);

  std::function<void()> onChange;

 private:
  Direction direction_;
  int maximum_;
  int largeChange_ = 1;
  int smallChange_ = 1;
  int value_ = 0;
};

/// A read-only table of texts with titled columns.
class Grid : public Control {
 public:
  struct Column {
    std::string title;
    int width = 1000;  // twips
    bool rightAligned = true;
  };
  /// visibleRows: rows that show at least.
  Grid(Form& form, std::string name, std::vector<Column> columns, int visibleRows = 5);
  const char* Kind() const override { return "grid"; }
  bool TakesFocus() const override { return true; }
  const std::vector<Column>& Columns() const { return columns_; }
  int VisibleRows() const { return visibleRows_; }
  const std::vector<std::vector<std::string>>& Rows() const { return rows_; }
  void SetRows(std::vector<std::vector<std::string>> rows);
  int SelectedRow() const { return selectedRow_; }
  /// The user selects a row: fires onClick.
  void Pick(int row);

 private:
  std::vector<Column> columns_;
  int visibleRows_;
  std::vector<std::vector<std::string>> rows_;
  int selectedRow_ = -1;
};

class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, std::string name);
  const char* Kind() const override { return "progress"; }
  int Maximum() const { return maximum_; }
  int Value() const { return value_; }
  void SetMaximum(int maximum);
  void SetValue(int value);

 private:
  int maximum_ = 100;
  int value_ = 0;
};

}  // namespace forms
