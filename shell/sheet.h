#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "shell/sheet_registry.h"
#include "shell/workspace.h"

namespace shell {

/// Whether these data files have been read; tells the user otherwise.
bool HasData(const Workspace& workspace, const std::vector<std::string>& fileNames);

/// A form that is registered as a sheet: it takes and gives back its place on top of the workspace.
class Sheet : public forms::Form {
 public:
  Sheet(Workspace& workspace, const std::string& kind, std::string caption);

  const SheetEntry& Entry() const { return entry_; }

  /// Makes this the sheet on top for the whole program.
  void Activate() override;
  void Unload() override;

  /// Text of the sheet's tag number field, "" for a sheet without one.
  virtual std::string TagNumber() const { return {}; }
  /// Writes the sheet into a row of the tag store.
  virtual void AddTo(int row);
  /// Fills the sheet from a row of the tag store. Only for rows of this sheet's kind.
  virtual void GetFrom(int row);
  /// After GetFrom: works the results out that the tag has and its record does not hold, for a page
  /// that is printed without the user.
  virtual void RestoreResults(int row);
  /// A way to come to the results of a record.
  struct Calculation {
    /// What the sheet calls it; "" where there is one way alone.
    std::string mode;
    /// Does on the sheet that the record has filled what the user does, through its events. Whether
    /// all results came.
    std::function<bool()> press;
  };
  /// After GetFrom: the ways in which this record may have been calculated, the likeliest first. A
  /// record does not tell the mode of its calculation: that which gives the stored results again is
  /// the tag's. Empty for a record without results.
  virtual std::vector<Calculation> CalculationsOf(const TagRow& record);
  /// After GetFrom: enters anew what the sheet looks up in the databases by selections that the
  /// record holds (a material, a pipe, a valve). The columns of the record that were entered; those
  /// whose selection the database does not have are left out.
  virtual std::vector<int> LookUpAnew();
  /// Prints the sheet's own part of a page, from the texts that stand on it. False for a sheet that
  /// has none.
  virtual bool PrintBody(PrintSurface& target);

 protected:
  Workspace& Space() const { return workspace_; }
  forms::Presenter& User() const { return workspace_.Shown(); }
  /// Whether the data files that a calculation needs have been read; tells the user otherwise.
  bool HasData(const std::vector<std::string>& fileNames) const {
    return shell::HasData(workspace_, fileNames);
  }

 private:
  Workspace& workspace_;
  const SheetEntry& entry_;
};

/// The sheet in front of the other sheets, or null.
Sheet* SheetOnTop(const Workspace& workspace);

}  // namespace shell
