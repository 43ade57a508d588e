#include "checks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "common/file.h"
#include "common/text.h"
#include "forms/controls.h"
#include "shell/duct_file.h"
#include "shell/instrument_file.h"
#include "shell/page_recorder.h"

namespace monkey {

namespace {

using headless::Json;

/// What the driver says when a command cannot be carried out for good reasons.
constexpr std::array kGoodReasons = {
    std::string_view("There is no "),
    std::string_view("No form "),
    std::string_view(" has entries 0 to "),
    std::string_view(" has no entry "),
    std::string_view(" has no entries."),
    std::string_view(" has no control "),
    std::string_view(" is disabled."),
    std::string_view(" is not visible."),
    std::string_view(" is not there yet."),
    std::string_view("The main window is locked"),
    std::string_view("Nothing was printed to "),
    std::string_view("Nothing was exported to "),
    std::string_view(" cannot be written."),
    std::string_view(" could not be written whole."),
    std::string_view(" is neither an entry's number nor =TEXT."),
    std::string_view(" is none of yes, no, ok, cancel."),
    std::string_view(" is not a text box."),
    std::string_view(" is not an option button or check box."),
    std::string_view(" wants the path "),
};

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Whether a text holds "nan", "inf" or "infinity" as a word of its own.
bool HoldsNoNumber(const std::string& text) {
  constexpr std::array kWords = {std::string_view("nan"), std::string_view("inf"),
                                 std::string_view("infinity")};
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsLetter(text[i])) continue;
    std::string word;
    for (; i < text.size() && IsLetter(text[i]); ++i) {
      if (word.size() < 9) word += static_cast<char>(text[i] | 0x20);
    }
    if (std::find(kWords.begin(), kWords.end(), word) != kWords.end()) return true;
  }
  return false;
}

void CheckText(const std::string& text, const std::string& where) {
  if (HoldsNoNumber(text)) throw Finding{"no number in " + where + ": " + text};
}

void CheckValues(const Json& value, const std::string& where) {
  if (value.is_string()) {
    CheckText(value.get_ref<const std::string&>(), where);
  } else if (value.is_number_float() && !std::isfinite(value.get<double>())) {
    throw Finding{"no number in " + where};
  } else if (value.is_structured()) {
    for (const auto& [key, inner] : value.items()) {
      if (key != "do") CheckValues(inner, where);
    }
  }
}

void CheckDrawing(const shell::PageRecorder& drawing) {
  const auto check = [](std::initializer_list<double> numbers) {
    for (const double number : numbers) {
      if (!std::isfinite(number)) throw Finding{"a picture is drawn at a place that is no number"};
    }
  };
  for (const auto& item : drawing.Items()) {
    if (const auto* const text = std::get_if<shell::PageRecorder::TextItem>(&item)) {
      check({text->x, text->y, text->size});
      CheckText(text->text, "a picture");
    } else if (const auto* const line = std::get_if<shell::PageRecorder::LineItem>(&item)) {
      for (const auto& [x, y] : line->points) check({x, y, line->pen.width});
    } else if (const auto* const area = std::get_if<shell::PageRecorder::PolygonItem>(&item)) {
      for (const auto& [x, y] : area->points) check({x, y});
    } else if (const auto* const box = std::get_if<shell::PageRecorder::BoxItem>(&item)) {
      check({box->x1, box->y1, box->x2, box->y2});
    } else if (const auto* const ring = std::get_if<shell::PageRecorder::EllipseItem>(&item)) {
      check({ring->x, ring->y, ring->radiusX, ring->radiusY});
    }
  }
}

void Paint(const forms::Picture& picture) {
  if (!picture.onPaint || !picture.Visible()) return;
  shell::PageRecorder drawing;
  try {
    picture.onPaint(drawing);
  } catch (const common::RuntimeFault&) {
    // The window leaves such a picture as far as it came.
  }
  CheckDrawing(drawing);
}

void CheckContents(const forms::Control& control, const std::string& where) {
  if (const auto* const list = dynamic_cast<const forms::ListControl*>(&control)) {
    for (const std::string& item : list->Items()) CheckText(item, where);
  } else if (const auto* const grid = dynamic_cast<const forms::Grid*>(&control)) {
    for (const auto& row : grid->Rows()) {
      for (const std::string& cell : row) CheckText(cell, where);
    }
  } else if (const auto* const picture = dynamic_cast<const forms::Picture*>(&control)) {
    Paint(*picture);
  }
}

void CheckSelection(const forms::Control& control, const std::string& where) {
  const auto* const list = dynamic_cast<const forms::ListControl*>(&control);
  if (list != nullptr && (list->Index() < -1 || list->Index() >= list->Count())) {
    throw Finding{"the selection is outside the list in " + where};
  }
}

template <class Row>
void CheckRow(const Row& row, const std::string& where) {
  for (const std::string& text : row) CheckText(text, where);
}

/// A text as it comes back from a file, in which a quote ends it.
std::string FromFile(const std::string& text) {
  return common::FromCp932(common::ToCp932(text.substr(0, text.find('"'))));
}

template <class Row>
void CompareRows(const Row& kept, const Row& read, const std::string& where) {
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (FromFile(kept[i]) != read[i]) {
      throw Finding{"the saved file differs in " + where + ", column " + std::to_string(i) +
                    ": \"" + kept[i] + "\" came back as \"" + read[i] + "\""};
    }
  }
}

}  // namespace

void CheckAnswer(const Json& answer) {
  try {
    answer.dump();
  } catch (const Json::exception&) {
    throw Finding{"the answer is not UTF-8"};
  }
  CheckValues(answer, "an answer");
  if (answer.at("ok").get<bool>()) return;
  const std::string error = answer.value("error", "");
  if (std::none_of(kGoodReasons.begin(), kGoodReasons.end(), [&](std::string_view reason) {
        return error.find(reason) != std::string::npos;
      })) {
    throw Finding{"a fault outside of any event: " + error};
  }
}

void CheckForms(sheets::Workbench& bench, bool thoroughly) {
  CheckText(bench.Window().Title(), "the title");
  for (const forms::Form* form : bench.Forms().Open()) {
    CheckText(form->Caption(), form->Name());
    for (const forms::Control* control : form->Controls()) {
      const std::string& text = control->Text();
      if (HoldsNoNumber(text)) CheckText(text, form->Name() + "!" + control->Name());
      if (!thoroughly) continue;
      const std::string where = form->Name() + "!" + control->Name();
      CheckText(control->ToolTip(), where);
      CheckSelection(*control, where);
      CheckContents(*control, where);
    }
  }
}

void CheckStores(const shell::Workspace& space) {
  const shell::TagStore& tags = space.tags;
  const int count = std::max(tags.TagCount(), 0);
  const int lines = static_cast<int>(tags.Lines().size());
  // A new file leaves the current row where it was; the list's selection is what counts.
  if (tags.currentTag < 0 || tags.currentTag > shell::kMaxTags || count > shell::kMaxTags) {
    throw Finding{"CurrentTag is " + std::to_string(tags.currentTag) + " of " +
                  std::to_string(count)};
  }
  if (lines != count || tags.Selection() < -1 || tags.Selection() >= lines) {
    throw Finding{"line " + std::to_string(tags.Selection()) + " of " + std::to_string(lines) +
                  " is selected for " + std::to_string(count) + " tags"};
  }
  const shell::DuctStore& ducts = space.ducts;
  if (ducts.Selection() < -1 || ducts.Selection() >= ducts.DuctCount()) {
    throw Finding{"duct " + std::to_string(ducts.Selection()) + " is selected of " +
                  std::to_string(ducts.DuctCount())};
  }
  CheckRow(tags.Row(tags.currentTag), "row " + std::to_string(tags.currentTag));
  if (ducts.Selection() >= 0) CheckRow(ducts.Row(ducts.Selection()), "a duct");
}

void CheckRecords(const shell::Workspace& space) {
  for (int row = 0; row <= shell::kMaxTags; ++row) {
    CheckRow(space.tags.Row(row), "row " + std::to_string(row));
  }
  for (int row = 0; row < space.ducts.DuctCount(); ++row) {
    CheckRow(space.ducts.Row(row), "duct " + std::to_string(row));
  }
}

void CheckSavedTags(const shell::Workspace& space) {
  const std::vector<shell::TagRow> read = shell::ParseInstrumentFile(
      common::ReadFile(space.tags.zephaFileName), space.tables.pipes, space.tables.lists);
  const int count = static_cast<int>(read.size()) - 1;
  if (count != space.tags.TagCount()) {
    throw Finding{"the saved file has " + std::to_string(count) + " tags of " +
                  std::to_string(space.tags.TagCount())};
  }
  for (int row = 1; row <= count; ++row) {
    const std::string where = "tag " + std::to_string(row);
    CheckRow(space.tags.Row(row), where);
    CompareRows(space.tags.Row(row), read[static_cast<std::size_t>(row)], where);
  }
}

void CheckSavedDucts(const shell::Workspace& space) {
  const shell::DuctFileContents read =
      shell::ParseDuctFile(common::ReadFile(space.ducts.ductFileName));
  if (read.fault || static_cast<int>(read.rows.size()) != space.ducts.DuctCount()) {
    throw Finding{"the saved duct file cannot be read back"};
  }
  for (int row = 0; row < space.ducts.DuctCount(); ++row) {
    const std::string where = "duct " + std::to_string(row);
    CheckRow(space.ducts.Row(row), where);
    CompareRows(space.ducts.Row(row), read.rows[static_cast<std::size_t>(row)], where);
  }
}

}  // namespace monkey
