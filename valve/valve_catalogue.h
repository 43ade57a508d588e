#pragma once

#include <array>
#include <string>
#include <vector>

namespace valve {

/// Inherent flow characteristics, in the order of the index that the catalogue keeps.
inline constexpr std::array<const char*, 6> kCharacteristics = {
    "Equal Percent", "Linear", "60ﾟ Batterfly", "Modified Parabolic", "Quick Open", "その他"};

/// Index of a characteristic from its field in the catalogue; kNoCharacteristic for an empty field,
/// for one that is no number, and for a number outside the list.
int CharacteristicIndex(const std::string& field);

/// Makers, models and trims of control valves, as they stand in ValveSpec.dat. All of it is text,
/// as typed in the catalogue editor, and becomes a number in use; an unused slot is empty.
struct ValveCatalogue {
  static constexpr int kMakers = 5;
  static constexpr int kModels = 10;
  static constexpr int kTrims = 22;

  using ByModel = std::array<std::array<std::string, kModels>, kMakers>;
  using ByTrim = std::array<std::array<std::array<std::string, kTrims>, kModels>, kMakers>;

  std::array<std::string, kMakers> valveMaker;
  ByModel valveModel;  // name
  ByModel valveFL;     // pressure recovery factor
  ByModel valveFd;     // style modifier
  ByModel valveN;      // noise coefficient
  ByModel valveRange;  // rangeability
  ByModel valveChar;   // index of the characteristic; "-1" after a deletion
  ByTrim valveSize;    // trim size
  ByTrim valveCv;      // its rated Cv

  /// Whether it names no maker and no model.
  bool Empty() const;
};

/// Reads the contents of ValveSpec.dat (CP932). False when the file is short; the catalogue is then
/// empty.
bool ReadValveCatalogue(std::string bytes, ValveCatalogue& catalogue);

/// Contents of ValveSpec.dat (CP932): a record of one field per maker, then per model a record of
/// six fields and 22 of two. A character that CP932 lacks is to be refused before.
std::string WriteValveCatalogue(const ValveCatalogue& catalogue);

/// Flange ratings, the rows of the bore table. Sheets and files keep a rating by this text, blank
/// included.
inline const std::vector<std::string> kFlangeRatings = {
    " JIS 2K",   " JIS 5K",   " JIS 10K",   " JIS 16K",  " JIS 20K",  " JIS 30K",
    " JIS 40K",  " JIS 63K",  " JPI 125#",  " JPI 150#", " JPI 300#", " JPI 400#",
    " JPI 600#", " JPI 900#", " JPI 1500#", " JPI 2500#"};

/// Bores of valve bodies, as they stand in ValveDia.dat: text in mm by flange rating and nominal
/// size, empty where there is no such valve.
struct ValveDiaTable {
  static constexpr int kRatings = 16;
  static constexpr int kSizes = 27;

  std::array<std::array<std::string, kSizes>, kRatings> valveDia;

  bool Empty() const;
};

/// Reads the contents of ValveDia.dat (CP932). False when the file is short; the table is then
/// empty.
bool ReadValveDiaTable(std::string bytes, ValveDiaTable& table);

}  // namespace valve
