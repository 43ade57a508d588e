#pragma once

#include <initializer_list>
#include <utility>

#include "common/number.h"
#include "sheets/list_texts.h"
#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {

/// What the tests of the flow element sheets have in common.
class FlowSheetTest : public SheetTest {
 protected:
  static constexpr int kLiquid = 0, kGas = 1, kSteam = 2;

  void TypeAll(std::initializer_list<std::pair<const char*, const char*>> entries) {
    for (const auto& [name, text] : entries) Type(name, text);
  }
  double Number(const std::string& name) { return GroupedNumber(Text(name)); }
  /// Name of an element of a control array.
  static std::string Element(std::string name, int i) {
    name += '(';
    name += std::to_string(i);
    name += ')';
    return name;
  }
  forms::Color Color(const std::string& name) { return Find(name).ForeColor(); }

  /// Registers the sheet, empties it and takes the tag back. Returns the row as it was stored.
  shell::TagRow RegisterAndRecall(const char* tag) {
    Type("txtTagNo", tag);
    shell::Workspace& space = bench.Space();
    shell::RegisterTag(space);
    const int row = space.tags.currentTag;
    const shell::TagRow stored = space.tags.Row(row);
    Click("cmdデータ消去");
    space.tags.SelectLine(row - 1);
    shell::RecallSelectedTag(space);
    return stored;
  }
};

}  // namespace sheets
