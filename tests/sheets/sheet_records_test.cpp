#include <map>

#include "shell/sheet.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class SheetRecords : public SheetTest {
 protected:
  static constexpr int kCopy = shell::kMaxTags;

  SheetRecords() { LoadPlant(); }

  shell::Sheet& Recall(int row) {
    Tags().SelectLine(row - 1);
    shell::RecallSelectedTag(bench.Space());
    return dynamic_cast<shell::Sheet&>(*bench.Forms().ActiveSheet());
  }
  /// Columns in which the sheet, registered once more, differs from the tag.
  std::string Differences(shell::Sheet& sheet, int row) {
    sheet.AddTo(kCopy);
    std::string columns;
    for (int column = 0; column < shell::kTagColumns; ++column) {
      const std::string& stored = Tags().Text(row, column);
      const std::string& found = Tags().Text(kCopy, column);
      if (stored != found) columns += std::to_string(column) + ": " + stored + "/" + found + "\n";
      Tags().SetText(kCopy, column, "");
    }
    return columns;
  }
  /// Texts, colours and hints of the results that stand on a sheet.
  static std::map<std::string, std::string> Results(const shell::Sheet& sheet) {
    std::map<std::string, std::string> results;
    for (const forms::Control* control : sheet.Controls()) {
      const auto* const label = dynamic_cast<const forms::Label*>(control);
      if (label == nullptr || label->Style() != forms::LabelStyle::kResult) continue;
      if (label->Text().empty()) continue;
      results[label->Name()] =
          label->Text() + " " + std::to_string(label->ForeColor()) + label->ToolTip();
    }
    return results;
  }
};

// Every column comes onto the sheet and goes from there into its place again, behind any other tag,
// and what a recall shows is what a calculation shows.
TEST_F(SheetRecords, ComeBackAsTheyWereStored) {
  for (int row = 1; row <= Tags().TagCount(); ++row) {
    SCOPED_TRACE(Tags().Text(row, shell::kTagNumberColumn));
    shell::Sheet& sheet = Recall(row);
    const std::string& kind = sheet.Entry().kind;
    EXPECT_EQ(bench.Space().calcDone, kind != "Vortex" && kind != "Integral");
    const auto recalled = Results(sheet);
    for (const auto& calculation : sheet.CalculationsOf(Tags().Row(row))) {
      Recall(row);
      calculation.press();
      if (Differences(sheet, row).empty()) break;
    }
    auto calculated = Results(sheet);
    std::erase_if(calculated, [&](const auto& result) { return !recalled.contains(result.first); });
    EXPECT_EQ(calculated, recalled);
    Recall(row);
    EXPECT_EQ(kind == "Vortex" ? "" : Differences(sheet, row), "");
  }
}

TEST_F(SheetRecords, AnyEntryTakesTheResultsAway) {
  for (const char* tag :
       {"FE-1101", "FE-1204", "FT-1601", "FE-1704", "RO-1804", "FCV-1105", "TW-2104", "PL-1501"}) {
    SCOPED_TRACE(tag);
    const int row = RowOf(tag);
    for (forms::Control* control : Recall(row).Controls()) {
      auto* const box = dynamic_cast<forms::TextBox*>(control);
      auto* const list = dynamic_cast<forms::ComboBox*>(control);
      if (!control->Usable() || (box == nullptr && list == nullptr)) continue;
      if (control->Name() == "txtTagNo" || control->Name() == "txt用途") continue;
      SCOPED_TRACE(control->Name());
      shell::Sheet& sheet = Recall(row);
      for (const auto& calculation : sheet.CalculationsOf(Tags().Row(row))) calculation.press();
      const std::size_t before = Results(sheet).size();
      if (box != nullptr) box->Type(box->Text() + "1");
      if (list != nullptr) list->Pick(list->Count() - 1);
      EXPECT_LT(Results(sheet).size(), before);
      TakeTexts();
    }
  }
}

}  // namespace
}  // namespace sheets
