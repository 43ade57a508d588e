#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"

namespace shell {

/// Creates the forms by name, keeps the open ones and tells the presenter of their coming and
/// going. A form that is unloaded during one of its own events is destroyed after it, by
/// CollectClosed.
class FormManager {
 public:
  using Factory = std::function<std::unique_ptr<forms::Form>()>;

  explicit FormManager(forms::Presenter& presenter) : presenter_(&presenter) {}
  FormManager(const FormManager&) = delete;
  FormManager& operator=(const FormManager&) = delete;
  ~FormManager();

  /// Makes a form known under its name.
  void Provide(const std::string& name, Factory factory);
  bool Knows(const std::string& name) const { return factories_.contains(name); }
  std::vector<std::string> KnownNames() const;

  /// A form of that name that nobody shows and that is not among the open ones. An unknown name is
  /// our own mistake and throws.
  std::unique_ptr<forms::Form> Create(const std::string& name) const;
  /// Opens the form, or brings the open one to the front, and activates it. An unknown name is our
  /// own mistake and throws.
  forms::Form& Show(const std::string& name);
  /// The form if it is open, or null.
  forms::Form* Find(const std::string& name) const;
  /// Closes an open form: its Unload runs, it disappears, and the form below comes to the front.
  void Unload(forms::Form& form);
  void UnloadAll();

  /// The user or the program has brought this open form to the front.
  void MakeActive(forms::Form& form);
  /// The form in front, or null.
  forms::Form* Active() const;
  /// The sheet in front of the other sheets, or null.
  forms::Form* ActiveSheet() const;
  /// Open forms, the one in front first.
  std::vector<forms::Form*> Open() const;

  /// Destroys what has been unloaded. To be called between events.
  void CollectClosed() { closed_.clear(); }

  forms::Presenter& Shown() const { return *presenter_; }

  /// While one lives, another presenter hears what forms tell: for work that nobody shall see.
  class Diverted {
   public:
    Diverted(FormManager& forms, forms::Presenter& hearer)
        : forms_(forms), presenter_(std::exchange(forms.presenter_, &hearer)) {}
    ~Diverted() { forms_.presenter_ = presenter_; }
    Diverted(const Diverted&) = delete;
    Diverted& operator=(const Diverted&) = delete;

   private:
    FormManager& forms_;
    forms::Presenter* presenter_;
  };

 private:
  using Forms = std::vector<std::unique_ptr<forms::Form>>;

  /// Its place among the open forms, or their end.
  Forms::iterator PlaceOf(const forms::Form& form);

  forms::Presenter* presenter_;
  std::map<std::string, Factory> factories_;
  /// The last one is in front.
  Forms open_;
  Forms closed_;
};

}  // namespace shell
