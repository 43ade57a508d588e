#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/fault.h"
#include "forms/layout.h"
#include "forms/narration.h"
#include "forms/presenter.h"

namespace forms {

class Control;

/// How a form stands on the desk: a sheet is a child of the main window, a tool stays beside it, a
/// dialogue locks the others while it is open.
enum class FormRole { kSheet, kTool, kDialog };

/// Where a tool or dialogue would like to stand: its top left corner off that of the main window,
/// and its size, all in twips.
struct PlaceWish {
  int fromLeft = 0;
  int fromTop = 0;
  int width = 0;
  int height = 0;
};

/// A form: named controls, handlers, a declared layout and a focus, without a toolkit.
class Form {
 public:
  Form(std::string name, std::string caption, FormRole role);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  const std::string& Name() const { return name_; }
  FormRole Role() const { return role_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  /// The place that the form wishes for each time it is opened; without a wish whoever shows it
  /// finds one.
  const std::optional<PlaceWish>& WantedPlace() const { return wantedPlace_; }

  /// All controls in the order of their declaration.
  const std::vector<Control*>& Controls() const { return controls_; }
  /// Control of that name, or null.
  Control* Find(const std::string& name) const;
  /// The controls that the layout shows, in reading order.
  const std::vector<Control*>& TabOrder() const { return tabOrder_; }

  const Block& Layout() const { return layout_; }
  /// Names, units and tips of the controls as the layout tells them.
  const Narration& Told() const { return narration_; }

  /// The control with the focus, or null.
  Control* Focused() const { return focused_; }
  /// Moves the focus, by code or by the user, and fires the focus events of both controls. A
  /// control that cannot take the focus now leaves it where it is.
  void SetFocus(Control& control);
  /// Moves the focus to the next control in reading order that can take it.
  void FocusNext(const Control& from);

  /// The form has been created and is about to be shown; fills lists and selections.
  virtual void Load() {}
  /// The form has come to the front.
  virtual void Activate() {}
  /// The form is about to go.
  virtual void Unload() {}
  /// An event ended in a fault: tells the user. Sheets with words of their own override it.
  virtual void OnFault(const Control* source, const common::RuntimeFault& fault);

  /// Runs a handler as an event of this form: a fault that leaves the outermost one ends in
  /// OnFault.
  void RunEvent(const Control* source, const std::function<void()>& handler);

  /// While one lives, the form's controls change without firing their events: a sheet holds it
  /// while it writes its own results.
  class Quiet {
   public:
    explicit Quiet(Form& form) : form_(form) { ++form_.quiet_; }
    ~Quiet() { --form_.quiet_; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    Form& form_;
  };
  bool IsQuiet() const { return quiet_ > 0; }

  /// Whoever shows the form; without one, changes are not told to anybody.
  void SetPresenter(Presenter* presenter) { presenter_ = presenter; }
  Presenter* Shown() const { return presenter_; }
  void Beep() const;

 protected:
  /// Declares the layout, once, at the end of the constructor.
  void SetLayout(Block layout);
  /// Declares the place, in the constructor.
  void WishPlace(const PlaceWish& wish) { wantedPlace_ = wish; }

 private:
  friend class Control;
  void Register(Control& control);

  std::string name_;
  std::string caption_;
  FormRole role_;
  std::vector<Control*> controls_;
  std::vector<Control*> tabOrder_;
  Block layout_;
  Narration narration_;
  std::optional<PlaceWish> wantedPlace_;
  Control* focused_ = nullptr;
  Presenter* presenter_ = nullptr;
  int quiet_ = 0;
  int eventDepth_ = 0;
};

}  // namespace forms
