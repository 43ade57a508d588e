#include <filesystem>

#include "shell/sheet_registry.h"
#include "tests/sheets/sheet_test.h"
#include "tests/support/temporary_folder.h"

namespace sheets {
namespace {

namespace fs = std::filesystem;

TEST(StartWithAFile, OpensTheWantedFileInsteadOfTheLastOneOfItsKind) {
  const tests::TemporaryFolder folder;
  const std::string last = folder / "前回.zph";
  const std::string other = folder / "別 (1).ZPH";
  const std::string ducts = folder / "ダクト.dct";
  const std::string lastDucts = folder / "last.dct";
  const std::string none = folder / "none.zph";
  const std::string bad = folder / "bad.zph";
  for (const std::string& copy : {last, other, ducts, lastDucts}) {
    fs::copy(ZEPHA_SOURCE_DIR "/samples/" +
                 std::string(copy.ends_with("dct") ? "ducts.dct" : "plant.zph"),
             copy);
  }
  fs::copy(ducts, bad);
  const std::string noFile = "指定されたファイルは見つからないか、ファイルではありません。\n";
  const struct {
    std::string wanted, tags, ducts, sheet, tag, recent;
    Texts told;
  } rows[] = {
      {"", last, lastDucts, "frmVortex", "FT-1602", last, {}},
      {other, other, lastDucts, "frmVortex", "", other, {}},
      {folder / "./x/../前回.zph", last, lastDucts, "frmVortex", "FT-1602", last, {}},
      {fs::relative(other).string(), other, lastDucts, "frmVortex", "", other, {}},
      {ducts, last, ducts, "frmCable", "", ducts, {}},
      {none, last, lastDucts, "frmVortex", "FT-1602", last, {noFile + none}},
      {folder.Path(), last, lastDucts, "frmVortex", "FT-1602", last, {noFile + folder.Path()}},
      {bad, "", lastDucts, "frmVortex", "", "", {"ファイルのデータが途中で終わっています。"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.wanted);
    tests::RecordingPresenter presenter;
    shell::MemorySettings settings;
    settings.Set("ExeScrn", "zephaFile", last);
    settings.Set("ExeScrn", "DuctFile", lastDucts);
    settings.Set("ExeScrn", "ZephaForm", "frmVortex");
    settings.Set("ExeScrn", "DataNo", "18");
    Workbench bench(presenter, ZEPHA_BUILD_DIR, settings);
    bench.Start(row.wanted);
    const shell::Workspace& space = bench.Space();
    EXPECT_EQ(space.tags.zephaFileName, row.tags);
    EXPECT_EQ(space.ducts.ductFileName, row.ducts);
    EXPECT_EQ(space.lastFormName, row.sheet);
    const forms::Form* const sheet = bench.Forms().Find(row.sheet);
    ASSERT_NE(sheet, nullptr);
    const forms::Control* const tag = sheet->Find("txtTagNo");
    EXPECT_EQ(tag == nullptr ? "" : tag->Text(), row.tag);
    EXPECT_EQ(bench.Forms().Find("frmDuctList") != nullptr, row.sheet == "frmCable");
    EXPECT_EQ(settings.Get("Recent", "File1"), row.recent);
    EXPECT_EQ(presenter.messages.Texts(), row.told);
  }
}

TEST(Start, SheetsOpenWithTheUnitsChosenLast) {
  tests::RecordingPresenter presenter;
  shell::MemorySettings settings;
  for (const bool keeps : {false, true}) {
    {
      Workbench bench(presenter, ZEPHA_BUILD_DIR, settings);
      bench.Load();
      bench.Space().keepsUnits = keeps;
      shell::OpenSheet(bench.Space(), "CV");
      forms::Form& sheet = *bench.Forms().ActiveSheet();
      dynamic_cast<forms::ComboBox&>(*sheet.Find("cbo圧力単位")).SetText("barG");
      dynamic_cast<forms::ComboBox&>(*sheet.Find("cbo流量単位L")).SetText("t/h");
      bench.Forms().Unload(sheet);
      // A unit that is not in the list any more is passed over.
      settings.Set("Units", "frmCV", settings.Get("Units", "frmCV") + "cbo温度単位\t度\n");
    }
    Workbench next(presenter, ZEPHA_BUILD_DIR, settings);
    next.Load();
    next.Space().keepsUnits = keeps;
    shell::OpenSheet(next.Space(), "CV");
    const forms::Form& sheet = *next.Forms().ActiveSheet();
    EXPECT_EQ(sheet.Find("cbo圧力単位")->Text() == "barG", keeps);
    EXPECT_EQ(sheet.Find("cbo流量単位L")->Text() == "t/h", keeps);
    EXPECT_EQ(sheet.Find("cbo温度単位")->Text(), "℃");
  }
}

// Whatever stands in the settings, the program starts.
TEST(Start, BearsDamagedSettings) {
  for (const char* number : {"", "abc", "99999", "-3", "1e400", "2"}) {
    SCOPED_TRACE(number);
    shell::MemorySettings settings;
    for (const char* key : {"WinTop", "WinLeft", "WinWidth", "WinHeight", "WinState", "DataNo"}) {
      settings.Set("ExeScrn", key, number);
    }
    settings.Set("ExeScrn", "ZephaForm", "frmNone");
    tests::RecordingPresenter presenter;
    Workbench bench(presenter, ZEPHA_BUILD_DIR, settings);
    bench.Start();
    EXPECT_EQ(presenter.messages.Texts(), Texts());
    EXPECT_EQ(bench.Space().activeSheetKind, "");
  }
}

}  // namespace
}  // namespace sheets
