#include <algorithm>
#include <map>

#include "shell/page_recorder.h"
#include "shell/print_surface.h"
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
  /// The record of the sheet as it stands.
  shell::TagRow Registered(shell::Sheet& sheet) {
    for (int column = 0; column < shell::kTagColumns; ++column) Tags().SetText(kCopy, column, "");
    sheet.AddTo(kCopy);
    return Tags().Row(kCopy);
  }
  /// Columns in which the sheet, registered once more, differs from the tag.
  std::string Differences(shell::Sheet& sheet, int row) {
    const shell::TagRow found = Registered(sheet);
    std::string columns;
    for (std::size_t column = 0; column < found.size(); ++column) {
      const std::string& stored = Tags().Row(row)[column];
      if (stored == found[column]) continue;
      columns.append(std::to_string(column)).append(": ").append(stored);
      columns.append("/").append(found[column]).append("\n");
    }
    return columns;
  }
  /// Whether one of the columns that the sheet registers holds a text.
  bool Registers(shell::Sheet& sheet, const std::string& text) {
    const shell::TagRow record = Registered(sheet);
    return std::any_of(record.begin(), record.end(), [&](const std::string& column) {
      return column.find(text) != std::string::npos;
    });
  }
  /// Whether a text stands on the page of the sheet.
  static bool Prints(shell::Sheet& sheet, const std::string& text) {
    shell::PageRecorder page;
    shell::PrintSurface target(page, shell::kPaperScale);
    sheet.PrintBody(target);
    return std::any_of(page.Items().begin(), page.Items().end(), [&](const auto& item) {
      const auto* const line = std::get_if<shell::PageRecorder::TextItem>(&item);
      return line != nullptr && line->text.find(text) != std::string::npos;
    });
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
  /// The results that differ, a line each.
  static std::string Apart(const std::map<std::string, std::string>& calculated,
                           const std::map<std::string, std::string>& recalled) {
    std::map<std::string, std::pair<std::string, std::string>> both;
    for (const auto& [name, told] : calculated) both[name].first = told;
    for (const auto& [name, told] : recalled) both[name].second = told;
    std::string apart;
    for (const auto& [name, told] : both) {
      if (told.first == told.second) continue;
      apart += name + ": calculated \"" + told.first + "\", recalled \"" + told.second + "\"\n";
    }
    return apart;
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
    for (const auto& [name, told] : recalled) {
      // The page of an integral orifice does without its permanent loss.
      if (kind == "Integral" && name.starts_with("lbl永久圧損")) continue;
      const std::string& text = sheet.Find(name)->Text();
      EXPECT_TRUE(Prints(sheet, text.substr(0, text.find_last_not_of(' ') + 1)))
          << "The result " << name << " stands nowhere on the printed page: PrintBody.";
    }
    for (const auto& calculation : sheet.CalculationsOf(Tags().Row(row))) {
      Recall(row);
      calculation.press();
      if (Differences(sheet, row).empty()) break;
    }
    auto calculated = Results(sheet);
    // The record of a vortex meter holds the recommended size alone.
    std::erase_if(calculated, [&](const auto& result) {
      return kind == "Vortex" && !recalled.contains(result.first);
    });
    const std::string apart = Apart(calculated, recalled);
    EXPECT_TRUE(apart.empty())
        << apart
        << "A result stands in a column of the record, or a recall works it out from others.";
    Recall(row);
    EXPECT_EQ(kind == "Vortex" ? "" : Differences(sheet, row), "");
  }
}

// What an engineer enters is registered, printed and makes the results obsolete, but for those that
// the entry does not concern: the valve's the required Cv, all the list of orifices.
TEST_F(SheetRecords, EveryEntryIsKeptAndTakesTheResultsAway) {
  constexpr const char* kEntry = "1.2357";  // in no tag
  const std::pair<const char*, const char*> rows[] = {
      {"FE-1101", nullptr}, {"FE-1204", nullptr},   {"FT-1601", nullptr}, {"FE-1704", "lblOrifice"},
      {"RO-1804", nullptr}, {"FCV-1105", "計算Cv"}, {"TW-2104", nullptr}, {"PL-1501", nullptr}};
  for (const auto& [tag, untouched] : rows) {
    const int row = RowOf(tag);
    for (forms::Control* control : Recall(row).Controls()) {
      auto* const box = dynamic_cast<forms::TextBox*>(control);
      auto* const list = dynamic_cast<forms::ComboBox*>(control);
      if (!control->Usable() || (box == nullptr && list == nullptr)) continue;
      if (control->Name() == "txtTagNo" || control->Name() == "txt用途") continue;
      SCOPED_TRACE(std::string(tag) + " " + control->Name());
      shell::Sheet& sheet = Recall(row);
      for (const auto& calculation : sheet.CalculationsOf(Tags().Row(row))) calculation.press();
      const std::size_t before = Results(sheet).size();
      if (box != nullptr) {
        box->Type(kEntry);
        EXPECT_TRUE(Registers(sheet, kEntry))
            << "It stands in no column of the record: RecordColumns.";
        EXPECT_TRUE(Prints(sheet, kEntry)) << "It stands nowhere on the printed page: PrintBody.";
      }
      if (list != nullptr) list->Pick(list->Count() - 1);
      EXPECT_LT(Results(sheet).size(), before) << "The results stay when it is changed: Watch.";
      for (const auto& [name, told] : Results(sheet)) {
        const bool may = untouched != nullptr && name.find(untouched) != std::string::npos;
        EXPECT_TRUE(may) << name << " stays when the entry is changed: ClearResults.";
      }
      if (box != nullptr) {
        Recall(row).GetFrom(kCopy);
        EXPECT_EQ(box->Text(), kEntry) << "A recall does not bring it back: RecordColumns.";
      }
      TakeTexts();
    }
  }
}

}  // namespace
}  // namespace sheets
