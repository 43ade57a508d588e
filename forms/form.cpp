#include "forms/form.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "forms/controls.h"

namespace forms {

namespace {

/// Counts while it lives.
class Inside {
 public:
  explicit Inside(int& depth) : depth_(depth) { ++depth_; }
  ~Inside() { --depth_; }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

 private:
  int& depth_;
};

}  // namespace

Form::Form(std::string name, std::string caption, FormRole role)
    : name_(std::move(name)), caption_(std::move(caption)), role_(role) {}

Form::~Form() = default;

void Form::SetCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  if (presenter_ != nullptr) presenter_->FormChanged(*this);
}

Control* Form::Find(const std::string& name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::Register(Control& control) {
  if (Find(control.Name()) != nullptr) {
    throw std::logic_error(name_ + " declares " + control.Name() + " twice");
  }
  controls_.push_back(&control);
}

void Form::SetLayout(Block layout) {
  layout_ = std::move(layout);
  tabOrder_.clear();
  layout_.Collect(tabOrder_);
  std::vector<Control*> seen = tabOrder_;
  std::sort(seen.begin(), seen.end());
  if (std::adjacent_find(seen.begin(), seen.end()) != seen.end()) {
    throw std::logic_error(name_ + " shows a control in two places");
  }
  narration_.Read(layout_);
}

void Form::SetFocus(Control& control) {
  if (&control == focused_ || !control.TakesFocus() || !control.Usable()) return;
  Control* const left = std::exchange(focused_, &control);
  if (presenter_ != nullptr) presenter_->FocusMoved(control);
  if (left != nullptr) left->LoseFocus();
  control.GainFocus();
}

void Form::FocusNext(const Control& from) {
  const auto here = std::find(tabOrder_.begin(), tabOrder_.end(), &from);
  if (here == tabOrder_.end()) return;
  std::vector<Control*> order(here + 1, tabOrder_.end());
  order.insert(order.end(), tabOrder_.begin(), here);
  const auto next = std::find_if(order.begin(), order.end(), [](const Control* control) {
    const auto* option = dynamic_cast<const OptionButton*>(control);
    return control->TakesFocus() && control->Usable() && (option == nullptr || option->Checked());
  });
  if (next != order.end()) SetFocus(**next);
}

void Form::OnFault(const Control*, const common::RuntimeFault& fault) {
  if (presenter_ != nullptr) {
    presenter_->Show(fault.Text(), {}, common::Icon::kWarning);
  }
}

void Form::RunEvent(const Control* source, const std::function<void()>& handler) {
  if (eventDepth_ > 0) {
    handler();
    return;
  }
  const Inside inside(eventDepth_);
  try {
    handler();
  } catch (const common::RuntimeFault& fault) {
    OnFault(source, fault);
  }
}

void Form::Beep() const {
  if (presenter_ != nullptr) presenter_->Beep();
}

}  // namespace forms
