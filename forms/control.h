#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/color.h"

namespace forms {

class Form;

/// One named control of a form: its state and its events, without a toolkit. Whoever shows the form
/// reads the state, is told of every change, and reports what the user does through the verbs below
/// (`Click`, `DblClick` ...), which a window and the driver call alike.
class Control {
 public:
  /// name: the system's own name of the control, which files, scripts and tests use.
  /// Registers with the form; a name declared twice is our own mistake and throws.
  Control(Form& form, std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  const std::string& Name() const { return name_; }
  Form& Owner() const { return form_; }

  /// The word that the driver uses for this kind of control.
  virtual const char* Kind() const = 0;
  /// Whether the keyboard can reach it.
  virtual bool TakesFocus() const { return false; }

  const std::string& Text() const { return text_; }
  /// Sets caption or contents.
  virtual void SetText(std::string text);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Change(enabled_, enabled); }
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Change(visible_, visible); }
  /// Whether the user can act on it now.
  bool Usable() const { return enabled_ && visible_; }
  Color ForeColor() const { return foreColor_; }
  void SetForeColor(Color color) { Change(foreColor_, color); }
  Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { Change(backColor_, color); }
  const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(std::string text) { Change(toolTip_, std::move(text)); }
  /// What the field wants: meaning, usual range, gestures. It is shown where the system's own tool
  /// tip has nothing to say, and below that. The unit is put behind its first sentence.
  const std::string& Hint() const { return hint_; }
  void SetHint(std::string text) { Change(hint_, std::move(text)); }

  /// A name of its own for a screen reader; without one it is called by its place in the layout.
  const std::string& AccessibleName() const { return accessibleName_; }
  void SetAccessibleName(std::string name) { accessibleName_ = std::move(name); }

  std::function<void()> onClick;
  std::function<void()> onDblClick;
  std::function<void()> onRightClick;
  std::function<void()> onHover;
  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;

  void Click() { Fire(onClick); }
  void DblClick() { Fire(onDblClick); }
  void RightClick() { Fire(onRightClick); }
  void Hover() { Fire(onHover); }
  void GainFocus() { Fire(onGotFocus); }
  void LoseFocus() { Fire(onLostFocus); }

 protected:
  /// Runs an event handler, unless the form is quiet at the moment.
  void Fire(const std::function<void()>& handler);
  /// Tells whoever shows the form that this control looks different now.
  void TellChanged();
  /// Gives a part of the state another value and tells it; false if it had that value already.
  template <class T>
  bool Change(T& part, T value) {
    if (part == value) return false;
    part = std::move(value);
    TellChanged();
    return true;
  }
  /// Sets the text without an event; false if it stood there already.
  bool ReplaceText(std::string text) { return Change(text_, std::move(text)); }

 private:
  Form& form_;
  std::string name_;
  std::string text_;
  std::string toolTip_;
  std::string hint_;
  std::string accessibleName_;
  Color foreColor_ = kBlack;
  Color backColor_ = kWhite;
  bool enabled_ = true;
  bool visible_ = true;
};

/// A control array: elements name(0), name(1) ... of one kind.
template <class T>
class ControlArray {
 public:
  template <class... Args>
  ControlArray(Form& form, const std::string& name, int count, const Args&... args) {
    for (int i = 0; i < count; ++i) {
      elements_.push_back(std::make_unique<T>(form, name + "(" + std::to_string(i) + ")", args...));
    }
  }
  T& operator[](int index) { return *elements_.at(static_cast<std::size_t>(index)); }
  const T& operator[](int index) const { return *elements_.at(static_cast<std::size_t>(index)); }
  int Count() const { return static_cast<int>(elements_.size()); }
  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }

 private:
  std::vector<std::unique_ptr<T>> elements_;
};

}  // namespace forms
