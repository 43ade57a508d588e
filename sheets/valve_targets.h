#pragma once

#include <string>

#include "valve/correction_detail.h"

namespace sheets {

/// A valve sheet whose bore the flange rating dialogue can fill.
class RatingTarget {
 public:
  virtual ~RatingTarget() = default;
  /// Nominal body size as an index of the list of valve sizes, -1 for none.
  virtual int BodySizeIndex() const = 0;
  /// The rating chosen last, just as TakeRating gave it; "" for none.
  virtual std::string FlangeRating() const = 0;
  /// A rating has been chosen for the body size: the rating's line in the list and the bore in mm
  /// as the bore table has it.
  virtual void TakeRating(const std::string& rating, const std::string& bore) = 0;
};

/// A valve sheet that the table of trims can fill.
class TrimTarget {
 public:
  virtual ~TrimTarget() = default;
  /// Positions in the valve catalogue, -1 for none.
  virtual int MakerIndex() const = 0;
  virtual int ModelIndex() const = 0;
  /// The trim of this row of the model has been chosen.
  virtual void TakeTrim(int row) = 0;
};

/// A valve sheet that can tell how its last sizing was corrected.
class CorrectionSource {
 public:
  virtual ~CorrectionSource() = default;
  virtual valve::CorrectionDetail Correction() const = 0;
};

/// A form that lists makers, models or trims of the valve catalogue.
class CatalogueUser {
 public:
  virtual ~CatalogueUser() = default;
  /// The catalogue has been edited while the form is open: its lists are to be filled anew from the
  /// table. What the user has entered stays.
  virtual void CatalogueChanged() = 0;
};

}  // namespace sheets
