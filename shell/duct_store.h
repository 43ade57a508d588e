#pragma once

#include <array>
#include <string>
#include <vector>

#include "common/messages.h"

namespace shell {

inline constexpr int kDuctFields = 153;
inline constexpr int kMaxDucts = 20;
inline constexpr int kDuctCables = 20;

/// Fields of a duct. Between kDuctSpan and kDuctSumArea stand seven for each cable, see CableField.
enum DuctField {
  kDuctName = 0,
  kDuctSpan = 1,
  kDuctSumArea = 142,
  kDuctWorkers = 143,
  kDuctWidth = 144,
  kDuctHeight = 145,
  kDuctFoldIn = 146,
  kDuctThickness = 147,
  kDuctArea = 148,
  kDuctFill = 149,
  kDuctWeight = 150,
  kDuctSagColor = 151,
  kDuctSag = 152,
};

/// The seven fields of a cable.
enum DuctCableField {
  kCableName,
  kCableCores,
  kCableSize,
  kCableDia,
  kCableUnitWeight,
  kCableQuantity,
  kCableTotalArea,
};

/// Place of a field of cable 0 to 19.
constexpr int CableField(int cable, DuctCableField field) { return 2 + 7 * cable + field; }

/// A duct as texts, as they stand on its sheet.
using DuctRow = std::array<std::string, kDuctFields>;

/// The ducts of one duct file in list order, with the list's selection and caption, which live here
/// whether its window is open or not.
class DuctStore {
 public:
  /// The ducts differ from the file.
  bool ductModified = false;
  /// Path of the open file, "" when new.
  std::string ductFileName;

  int DuctCount() const { return static_cast<int>(rows_.size()); }
  /// Row 0 to 19; those behind the last duct are empty. Raises kIndexOutOfRange outside.
  const DuctRow& Row(int row) const;
  /// Names of the ducts.
  std::vector<std::string> Lines() const;
  /// What stands above the list: "New File", or the name without its extension of the file that was
  /// open when the list was last captioned.
  const std::string& ListCaption() const { return listCaption_; }
  /// colon: the menu command that shows the list has one of its own.
  void CaptionList(const std::string& colon = "：");

  /// Selected row, -1 for none.
  int Selection() const { return selection_; }
  /// Raises kIndexOutOfRange when there is no such row.
  void Select(int row);

  /// Puts a duct behind the selected one and selects it, or in the place of the one of the same
  /// name, if the user says so. False when he does not, and for the 21st duct. The name is brought
  /// to the form that CP932 gives it, so that it is found again after a reload.
  bool Add(DuctRow row, common::Messages& messages);
  /// Removes the selected duct and selects the one before it.
  void Delete();
  /// The selected duct changes places with its neighbour.
  void MoveUp() { Exchange(selection_ - 1); }
  void MoveDown() { Exchange(selection_ + 1); }

  /// A new list: no name, no ducts.
  void StartNewFile();
  /// The ducts of a file, at most 20, else kIndexOutOfRange; the first one is selected.
  void TakeRows(std::vector<DuctRow> rows);

 private:
  int RowOf(const std::string& name) const;
  void Exchange(int neighbour);

  std::vector<DuctRow> rows_;
  int selection_ = -1;
  std::string listCaption_ = "Duct List：New File";
};

}  // namespace shell
