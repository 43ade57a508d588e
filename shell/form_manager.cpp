#include "shell/form_manager.h"

#include <algorithm>
#include <stdexcept>

namespace shell {

namespace {

void Activate(forms::Form& form) {
  form.RunEvent(nullptr, [&form] { form.Activate(); });
}

}  // namespace

FormManager::~FormManager() = default;

void FormManager::Provide(const std::string& name, Factory factory) {
  factories_[name] = std::move(factory);
}

std::vector<std::string> FormManager::KnownNames() const {
  std::vector<std::string> names;
  for (const auto& [name, factory] : factories_) names.push_back(name);
  return names;
}

FormManager::Forms::iterator FormManager::PlaceOf(const forms::Form& form) {
  return std::find_if(open_.begin(), open_.end(),
                      [&](const auto& other) { return other.get() == &form; });
}

forms::Form* FormManager::Find(const std::string& name) const {
  const auto found = std::find_if(open_.begin(), open_.end(),
                                  [&](const auto& form) { return form->Name() == name; });
  return found == open_.end() ? nullptr : found->get();
}

std::unique_ptr<forms::Form> FormManager::Create(const std::string& name) const {
  const auto factory = factories_.find(name);
  if (factory == factories_.end()) throw std::logic_error("no form " + name);
  return factory->second();
}

forms::Form& FormManager::Show(const std::string& name) {
  forms::Form* form = Find(name);
  if (form == nullptr) {
    open_.push_back(Create(name));
    form = open_.back().get();
    form->SetPresenter(presenter_);
    form->RunEvent(nullptr, [&] { form->Load(); });
    presenter_->ShowForm(*form);
    Activate(*form);
  } else {
    // One that is in front already is shown anew all the same: what it lists may have changed.
    if (form == Active()) Activate(*form);
    MakeActive(*form);
    presenter_->RaiseForm(*form);
  }
  return *form;
}

void FormManager::MakeActive(forms::Form& form) {
  const auto place = PlaceOf(form);
  if (place == open_.end() || place + 1 == open_.end()) return;
  std::rotate(place, place + 1, open_.end());
  Activate(form);
}

void FormManager::Unload(forms::Form& form) {
  if (PlaceOf(form) == open_.end()) return;
  form.RunEvent(nullptr, [&] { form.Unload(); });
  const bool wasInFront = Active() == &form;
  // Unload may have closed other forms, so the place is looked up again.
  const auto place = PlaceOf(form);
  if (place == open_.end()) return;
  closed_.push_back(std::move(*place));
  open_.erase(place);
  presenter_->CloseForm(form);
  form.SetPresenter(nullptr);
  if (!wasInFront || open_.empty()) return;
  // The sheet now on top takes the workspace over, even when a tool window stands before it.
  forms::Form* const sheet = ActiveSheet();
  if (form.Role() == forms::FormRole::kSheet && sheet != nullptr) Activate(*sheet);
  presenter_->RaiseForm(*open_.back());
}

void FormManager::UnloadAll() {
  while (!open_.empty()) Unload(*open_.back());
}

forms::Form* FormManager::Active() const { return open_.empty() ? nullptr : open_.back().get(); }

forms::Form* FormManager::ActiveSheet() const {
  const auto found = std::find_if(open_.rbegin(), open_.rend(), [](const auto& form) {
    return form->Role() == forms::FormRole::kSheet;
  });
  return found == open_.rend() ? nullptr : found->get();
}

std::vector<forms::Form*> FormManager::Open() const {
  std::vector<forms::Form*> result;
  for (auto form = open_.rbegin(); form != open_.rend(); ++form) result.push_back(form->get());
  return result;
}

}  // namespace shell
