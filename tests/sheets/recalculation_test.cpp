#include "shell/recalculation.h"

#include <cmath>
#include <functional>
#include <map>
#include <set>

#include "shell/field_names.h"
#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

using shell::Recalculator;
using shell::TagRow;

class RecalculationTest : public SheetTest {
 protected:
  RecalculationTest() { LoadPlant(); }

  std::vector<TagRow> Rows() {
    std::vector<TagRow> rows;
    for (int row = 0; row <= shell::kMaxTags; ++row) rows.push_back(Tags().Row(row));
    return rows;
  }
  /// "tag column" of every change.
  static std::set<std::string> ChangesOf(const Recalculator& recalculator) {
    std::set<std::string> changes;
    for (const auto& change : recalculator.Changes()) {
      changes.insert(change.tag + " " + std::to_string(change.column));
    }
    return changes;
  }
  /// Notes but for that of the one well of the plant whose fatigue is not rated.
  static std::vector<shell::TagNote> NotesOf(const Recalculator& recalculator) {
    std::vector<shell::TagNote> notes = recalculator.Notes();
    std::erase_if(notes, [](const shell::TagNote& note) {
      return note.tag == "TW-2201" && note.text.find("Ｖr＞５") != std::string::npos;
    });
    return notes;
  }
  std::unique_ptr<Recalculator> Run() {
    auto recalculator = std::make_unique<Recalculator>(Space());
    while (recalculator->Next()) continue;
    return recalculator;
  }
};

// Recall and calculation of eight kinds give what stands in the shipped file, and nothing that the
// user sees takes notice. The open list of fluids would close over a steam sheet.
TEST_F(RecalculationTest, SamplePlantDoesNotChangeAndNobodyNotices) {
  Tags().SelectLine(RowOf("FE-1103") - 1);
  shell::RecallSelectedTag(Space());
  shell::Sheet& sheet = dynamic_cast<shell::Sheet&>(*bench.Forms().ActiveSheet());
  sheet.Find("txt密度")->DblClick();
  ASSERT_NE(bench.Forms().Find("frm流体名表示"), nullptr);
  const auto state = [&] {
    std::vector<std::string> texts;
    for (const forms::Control* control : sheet.Controls()) texts.push_back(control->Text());
    for (const forms::Form* form : bench.Forms().Open()) texts.push_back(form->Name());
    for (const auto number : {Space().process.densityFlow, Space().process.pressureAbs,
                              Space().tables.orifice.betaMax[0], common::Real(Tags().currentTag),
                              common::Real(Tags().tagModified), common::Real(Space().calcDone)}) {
      texts.push_back(std::to_string(static_cast<double>(number)));
    }
    texts.push_back(Space().activeSheetKind);
    return texts;
  };
  const std::vector<TagRow> rows = Rows();
  const Texts before = state();
  presenter.events.clear();
  presenter.changed.clear();
  const auto recalculator = Run();
  EXPECT_EQ(recalculator->Recalculated(), Tags().TagCount());
  EXPECT_EQ(ChangesOf(*recalculator), std::set<std::string>())
      << "Tags and columns. If this is meant, build/zepha-headless samples/plant.script writes the "
         "sample plant anew.";
  EXPECT_EQ(recalculator->Notes().size(), 1U);
  for (const auto& note : NotesOf(*recalculator)) ADD_FAILURE() << note.tag << ": " << note.text;
  EXPECT_EQ(state(), before);
  EXPECT_EQ(Rows(), rows);
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_EQ(presenter.events, Texts());
  EXPECT_EQ(presenter.changed, Texts());
}

// Who is concerned can be read from the records: fittings, meters and pipes by their columns.
TEST_F(RecalculationTest, AnEditedDatabaseConcernsItsTagsAlone) {
  constexpr int kElbows = 1;  // 90 degrees; column 23 of a pressure loss
  const std::set<std::string> elbowTags = {"PL-1101", "PL-1201", "PL-1301", "PL-1401", "PL-1501"};
  const struct {
    const char* edited;
    std::function<void(shell::Tables&)> edit;
    std::set<std::string> changed;  // tags
    std::set<std::string> told;     // tag and field of entries that differ
  } rows[] = {
      {"fitting",
       [](auto& tables) { tables.pressLoss.fittingTable[kElbows].zeta = 0.8F; },
       elbowTags,
       {}},
      {"bore of an 80 mm meter",
       [](auto& tables) { tables.vortex.meterBore[2][4] = 72; },
       {"FT-1603"},
       {}},
      {"rated Cv",
       [](auto& tables) {
         for (auto& cv : tables.valves.valveCv[0][0]) {
           if (cv == "99") cv = "101";
         }
       },
       {},
       {"FCV-1101 弁Ｃv"}},
      {"FL of a model",
       [](auto& tables) { tables.valves.valveFL[0][0] = "0.85"; },
       {},
       {"FCV-1101 ＦＬ", "PCV-1202 ＦＬ", "PCV-1203 ＦＬ"}},
      {"wall of 26 in",
       [](auto& tables) {
         for (auto& row : tables.pipes.rows) {
           if (std::lround(row[0]) == 660) row[0] += 1;
         }
       },
       {},
       {"FE-1403 配管内径"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.edited);
    const shell::Tables shipped = Space().tables;
    row.edit(Space().tables);
    const auto recalculator = Run();
    std::set<std::string> changed;
    for (const auto& change : recalculator->Changes()) changed.insert(change.tag);
    std::set<std::string> told;
    for (const auto& note : NotesOf(*recalculator)) {
      const auto from = note.text.find("「") + std::string("「").size();
      told.insert(note.tag + " " + note.text.substr(from, note.text.find("」") - from));
    }
    EXPECT_EQ(changed, row.changed);
    EXPECT_EQ(told, row.told);
    EXPECT_EQ(recalculator->Recalculated(), Tags().TagCount());
    Space().tables = shipped;
  }
}

// FE-1501 was calculated from its bore, 62.5 mm, the others from their differential. A result that
// is none of the tag's shows in which direction it is compared.
TEST_F(RecalculationTest, TheModeIsThatWhichGivesTheStoredResults) {
  const struct {
    const char* tag;
    const char* mode;
  } rows[] = {{"FE-1501", "絞り径→差圧"}, {"FE-1103", "差圧→絞り径"}};
  for (const auto& row : rows) Tags().SetText(RowOf(row.tag), 32, "1,000");
  const auto recalculator = Run();
  EXPECT_EQ(ChangesOf(*recalculator), (std::set<std::string>{"FE-1501 32", "FE-1103 32"}));
  const auto notes = NotesOf(*recalculator);
  ASSERT_EQ(notes.size(), 2U);
  for (const auto& row : rows) {
    const auto& note = notes[0].tag == row.tag ? notes[0] : notes[1];
    EXPECT_NE(note.text.find(row.mode), std::string::npos) << note.text;
  }
  // Equal decimals: only the calculation tells.
  const int row = RowOf("FE-1501");
  Tags().SetText(row, 32, recalculator->Changes()[1].after);
  Tags().SetText(row, 30, Tags().Text(row, 30) + "00");
  const auto again = Run();
  for (const auto& change : again->Changes()) EXPECT_NE(change.tag, "FE-1501") << change.field;
}

TEST_F(RecalculationTest, WhatCannotBeCalculatedIsToldAndKept) {
  const struct {
    const char* tag;
    int column;
    const char* text;
    std::vector<const char*> told;
  } rows[] = {
      {"FE-1101", 32, "", {"計算結果が登録されていない"}},
      {"FCV-1101", 24, "", {"計算結果が登録されていない"}},
      {"FE-1102", shell::kKindColumn, "Turbine", {"「Turbine」のシートがない"}},
      {"FE-1203", 2, "99", {"呼び出せない"}},
      {"PL-1201", 21, "900000", {"圧力損失が流体圧力を超える", "結果を残します"}},
      {"RO-1801", 28, "0", {"0 で除算しました。", "結果を残します", "「配管内径(mm)」"}},
      {"LCV-1106", 17, "90000", {"飽和蒸気圧力が流体圧力より高い", "結果を残します"}},
  };
  for (const auto& row : rows) Tags().SetText(RowOf(row.tag), row.column, row.text);
  const std::vector<TagRow> before = Rows();
  const auto recalculator = Run();
  EXPECT_EQ(recalculator->Left(), static_cast<int>(std::size(rows)));
  EXPECT_EQ(ChangesOf(*recalculator), std::set<std::string>());
  for (const auto& row : rows) {
    std::string told;
    for (const auto& note : recalculator->Notes()) {
      if (note.row == RowOf(row.tag)) told += note.text;
    }
    for (const char* words : row.told) EXPECT_NE(told.find(words), std::string::npos) << told;
  }
  std::vector<int> all;
  for (int row = 1; row <= Tags().TagCount(); ++row) all.push_back(row);
  EXPECT_TRUE(recalculator->Write(all));
  EXPECT_EQ(Rows(), before);
  EXPECT_FALSE(Tags().tagModified);
}

TEST_F(RecalculationTest, AStoreThatHasMovedOnIsNotWritten) {
  const std::pair<const char*, std::function<void()>> moves[] = {
      {"a tag edited", [this] { Tags().SetText(40, 1, "other"); }},
      {"the order", [this] { Tags().MoveDown(); }},
      {"a tag deleted",
       [this] {
         Answer(true);
         Tags().SelectLine(0);
         Tags().Delete(presenter);
       }},
      {"another file",
       [this] {
         Answer(false);  // to the question for saving
         shell::NewFile(Space());
       }},
  };
  for (const auto& [what, move] : moves) {
    SCOPED_TRACE(what);
    LoadPlant();
    Tags().SetText(RowOf("FE-1103"), 32, "1,000");
    const auto recalculator = Run();
    EXPECT_FALSE(recalculator->IsStale());
    move();
    EXPECT_TRUE(recalculator->IsStale());
    const std::vector<TagRow> before = Rows();
    EXPECT_FALSE(recalculator->Write(recalculator->ChangedRows()));
    EXPECT_EQ(Rows(), before);
  }
}

TEST_F(RecalculationTest, TheWindowWritesTheMarkedTagsAfterAQuestion) {
  for (const char* tag : {"FE-1103", "PL-1201"}) Tags().SetText(RowOf(tag), 41, "7");
  const std::vector<TagRow> before = Rows();
  Space().window.Run("mnuRecalculate");
  EXPECT_EQ(Text("lbl結果"), "61 タグを再計算しました。2 タグで 2 項目が変わりました。");
  auto& list = Find<forms::CheckList>("lstTag");
  EXPECT_EQ(list.Items(), Texts({"FE-1103", "PL-1201"}));
  EXPECT_EQ(Find<forms::Grid>("grd変更").Rows()[0], Texts({"FE-1103", "使用下限(%FS)", "7", "1"}));
  Click("cmd全解除");
  EXPECT_FALSE(Find("cmd書込").Enabled());
  list.SetMarked(1, true);
  Answer(false);
  Click("cmd書込");
  EXPECT_EQ(Rows(), before);
  Answer(true);
  Click("cmd書込");
  EXPECT_EQ(TakeTexts().size(), 2U);
  EXPECT_TRUE(Tags().tagModified);
  EXPECT_EQ(Tags().Text(RowOf("FE-1103"), 41), "7");
  EXPECT_NE(Tags().Text(RowOf("PL-1201"), 41), "7");
  EXPECT_EQ(list.Items(), Texts({"FE-1103"}));
  Tags().SetText(1, 1, "other");
  Answer(true);
  Click("cmd書込");
  EXPECT_EQ(TakeTexts().back(),
            "再計算の後にタグが変更されたため、書き込めません。\nもう一度再計算してください。");
  EXPECT_EQ(Tags().Text(RowOf("FE-1103"), 41), "7");
  Click("cmdCancel");
  EXPECT_EQ(bench.Forms().Find("frm全タグ再計算"), nullptr);
  Answer(false);
  shell::NewFile(Space());
  EXPECT_FALSE(Space().window.Find("mnuRecalculate")->enabled);
}

// Two fields of one name could not be told apart, a number alone tells nobody anything.
TEST_F(RecalculationTest, EveryStoredFieldHasANameOfItsOwn) {
  std::map<std::string, std::map<std::string, int>> names;
  for (int row = 1; row <= Tags().TagCount(); ++row) {
    const std::string& kind = Tags().Text(row, shell::kKindColumn);
    for (int column = 0; column < shell::kKindColumn; ++column) {
      if (Tags().Text(row, column).empty()) continue;
      const std::string name = shell::FieldName(kind, column);
      EXPECT_EQ(name.find("第"), std::string::npos)
          << kind << column << " has a name neither in the workbook nor in shell/field_names.cpp.";
      EXPECT_EQ(names[kind].try_emplace(name, column).first->second, column) << kind << name;
    }
  }
  EXPECT_EQ(shell::ShownField("CV", 49, "255"), "赤");
  EXPECT_EQ(shell::ShownField("CV", 48, "255"), "255");
}

}  // namespace
}  // namespace sheets
