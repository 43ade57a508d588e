#pragma once

#include <map>
#include <string>
#include <vector>

#include "forms/layout.h"

namespace forms {

class Control;

/// What the places in a layout say of its controls: the caption in front of a field or over its
/// column, the title of its group, the unit behind it. Who cannot see the form is told so, and the
/// pointer that rests on a field.
class Narration {
 public:
  void Read(const Block& layout);

  /// The field that a caption belongs to, or null.
  Control* FieldOf(const Control& caption) const;
  Control* FieldOf(const Cell& text) const;
  /// The unit behind the field as it is selected now; "" for none.
  std::string UnitOf(const Control& control) const;
  /// The control's own name, or else that of its place.
  std::string NameOf(const Control& control) const;
  /// What a screen reader says: the name, what a result shows, the unit.
  std::string SpokenNameOf(const Control& control) const;
  /// What the control wants, with the unit that is selected now; "" where nobody has told.
  std::string HintOf(const Control& control) const;
  /// What the pointer shows: a caution, if there is one, and below it the hint. A caption shows
  /// that of its field.
  std::string TipOf(const Control& control) const;
  /// The controls whose name, unit or tip follows the text of this one.
  const std::vector<const Control*>& FollowersOf(const Control& control) const;

 private:
  /// A text of the layout: a fixed one, or that of a label, which may change.
  struct Words {
    const Control* label = nullptr;
    std::string fixed;
    std::string Text() const;
  };
  struct Place {
    std::vector<Words> caption;
    /// Title of the group round it.
    Words group;
    std::vector<Words> units;
    /// The field whose unit it selects.
    const Control* unitOf = nullptr;
    /// Line of a table whose lines have no captions, from 1; 0 elsewhere.
    int line = 0;
  };
  class TableReader;

  void Read(const Block& block, const Words& group);
  void Point(const Cell& caption, std::size_t label, Control& field);
  void CollectFollowers();
  const Place* PlaceOf(const Control& control) const;

  std::map<const Control*, Place> places_;
  std::map<const Control*, Control*> fieldOfLabel_;
  std::map<const Cell*, Control*> fieldOfText_;
  std::map<const Control*, std::vector<const Control*>> followers_;
};

}  // namespace forms
