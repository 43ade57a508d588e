#pragma once

#include "tests/sheets/sheet_test.h"

namespace sheets {

/// What the tests of the flow element sheets have in common.
class FlowSheetTest : public SheetTest {
 protected:
  /// Registers the sheet, empties it and takes the tag back. Returns the row as it was stored.
  shell::TagRow RegisterAndRecall(const char* tag) {
    Type("txtTagNo", tag);
    shell::Workspace& space = bench.Space();
    shell::RegisterTag(space);
    const int row = space.tags.currentTag;
    shell::TagRow stored = space.tags.Row(row);
    Click("cmdデータ消去");
    space.tags.SelectLine(row - 1);
    shell::RecallSelectedTag(space);
    return stored;
  }
};

}  // namespace sheets
