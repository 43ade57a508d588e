#pragma once

#include <vector>

#include "forms/form.h"

namespace sheets {

/// What a field wants, in the words of its form.
struct FieldHint {
  /// Name of the control; that of an array means all its elements.
  const char* control;
  /// Meaning, usual range in a unit of its own, gestures. The selected unit is put behind the first
  /// sentence when it is shown.
  const char* hint;
  /// Its name for a screen reader where its place in the layout does not give a telling one; "#"
  /// stands for the number of an element, from 1.
  const char* name = nullptr;
};

struct FormHints {
  const char* form;
  std::vector<FieldHint> fields;
};

/// The hints of the calculation sheets with their dialogues, and those of the other forms.
const std::vector<FormHints>& SheetHints();
const std::vector<FormHints>& ToolHints();

/// Gives a form the hints of its controls. A row that names no control of its form is our own
/// mistake and throws.
void GiveHints(forms::Form& form);

}  // namespace sheets
