#include "shell/tag_store.h"

#include <gtest/gtest.h>

#include "common/text.h"
#include "tests/support/fault_of.h"
#include "tests/support/scripted_messages.h"

namespace shell {
namespace {

using tests::FaultOf;
using tests::ScriptedMessages;
using Texts = std::vector<std::string>;

const TagStore::AddRoutine kAddNothing = [](int) {};

int Add(TagStore& store, const std::string& number, const std::string& kind = "Vortex") {
  ScriptedMessages messages;
  return store.Register(number, kind, messages,
                        [&](int row) { store.SetText(row, 1, "use of " + number); });
}

/// A store with tags "1", "2", ..., the last one selected.
void Fill(TagStore& store, int tags) {
  for (int tag = 1; tag <= tags; ++tag) Add(store, std::to_string(tag));
}

/// Tag numbers of the rows; every row must be one that Add has written, or moved as a whole.
Texts Numbers(const TagStore& store) {
  Texts numbers;
  for (int row = 1; row <= store.TagCount(); ++row) {
    numbers.push_back(store.Text(row, 0));
    EXPECT_EQ(store.Text(row, 1), "use of " + numbers.back());
  }
  return numbers;
}

Texts LinesOfRows(const TagStore& store) {
  Texts lines;
  for (int row = 1; row <= store.TagCount(); ++row) lines.push_back(store.ListLine(row));
  return lines;
}

const common::Fault kOutside = common::Fault::kIndexOutOfRange;

TEST(TagStore, RaisesOutsideItsTable) {
  TagStore store;
  store.SetText(300, 50, "last");
  EXPECT_EQ(store.Text(300, 50), "last");
  const struct { int row, column; } outside[] = {{-1, 0}, {301, 0}, {0, -1}, {0, 51}};
  for (const auto& at : outside) {
    SCOPED_TRACE(std::to_string(at.row) + ", " + std::to_string(at.column));
    EXPECT_EQ(FaultOf([&] { store.SetText(at.row, at.column, "x"); }).value().Number(), kOutside);
    EXPECT_EQ(FaultOf([&] { store.Text(at.row, at.column); }).value().Number(), kOutside);
  }
  EXPECT_EQ(FaultOf([&] { store.TakeRows(std::vector<TagRow>(302)); }).value().Number(), kOutside);
  EXPECT_EQ(FaultOf([&] { store.SelectLine(0); }).value().Number(), kOutside);
}

// The list uses a fixed-pitch font, in which a full-width character takes two columns.
TEST(TagStore, ListLinesAlignTheKind) {
  const struct {
    const char *number, *line;
  } rows[] = {
      {"FE-1", "FE-1                        Vortex"},
      {"流量計一二三四五六七八九十", "流量計一二三四五六七八九十  Vortex"},
      {"ﾘｭｳﾘｮｳ", "ﾘｭｳﾘｮｳ                      Vortex"},
      {"1234567890123456789012345678", "1234567890123456789012345678Vortex"},
      {"12345678901234567890123456789", "12345678901234567890123456789Vortex"},
  };
  for (const auto& row : rows) {
    TagStore store;
    Add(store, row.number);
    EXPECT_EQ(store.Lines(), Texts{row.line});
  }
}

TEST(TagStore, RegistersBehindTheSelectedLine) {
  const struct {
    const char* name;
    int tags, selected;
    Texts numbers;
    int row;
  } rows[] = {
      {"empty", 0, -1, {"new"}, 1},
      {"line 3 of 5", 5, 2, {"1", "2", "3", "new", "4", "5"}, 4},
      {"last line", 2, 1, {"1", "2", "new"}, 3},
      {"no line", 2, -1, {"new", "1", "2"}, 1},
  };
  for (const bool listOpen : {true, false}) {
    for (const auto& row : rows) {
      SCOPED_TRACE(row.name);
      TagStore store;
      if (listOpen) store.ListOpened();
      Fill(store, row.tags);
      store.SelectLine(row.selected);
      store.tagModified = false;
      EXPECT_EQ(Add(store, "new"), row.row);
      EXPECT_EQ(Numbers(store), row.numbers);
      EXPECT_EQ(store.Lines(), LinesOfRows(store));
      EXPECT_EQ(store.Selection(), row.row - 1);
      EXPECT_EQ(store.currentTag, row.row);
      EXPECT_EQ(store.Text(row.row, 50), "Vortex");
      EXPECT_TRUE(store.tagModified);
      EXPECT_FALSE(store.ReplaceTag());
    }
  }
}

// With the list closed the tag goes behind the current one, also when that came from a recall.
TEST(TagStore, RegistersBehindTheCurrentTagWhileTheListIsClosed) {
  TagStore store;
  store.ListOpened();
  Fill(store, 3);
  store.SelectLine(0);
  store.ListClosed();
  EXPECT_EQ(store.currentTag, 1);
  EXPECT_EQ(Add(store, "a"), 2);
  store.currentTag = 4;
  EXPECT_EQ(Add(store, "b"), 5);
  store.currentTag = 99;
  EXPECT_EQ(Add(store, "c"), 6);
  EXPECT_EQ(Numbers(store), (Texts{"1", "a", "2", "3", "b", "c"}));
}

TEST(TagStore, RegisterRefusesWithoutAWord) {
  const struct {
    const char *number, *kind;
  } rows[] = {{"", "Vortex"}, {"1", "CableDuct"}, {"1", "物性推算"}, {"1", ""}, {"1", "no sheet"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.kind);
    TagStore store;
    Fill(store, 1);
    store.tagModified = false;
    ScriptedMessages messages;
    bool called = false;
    EXPECT_EQ(store.Register(row.number, row.kind, messages, [&](int) { called = true; }), 0);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_FALSE(called);
    EXPECT_FALSE(store.tagModified);
    EXPECT_EQ(store.TagCount(), 1);
  }
}

TEST(TagStore, AsksBeforeItReplaces) {
  for (const bool yes : {true, false}) {
    SCOPED_TRACE(yes);
    TagStore store;
    Fill(store, 3);
    store.tagModified = false;
    ScriptedMessages messages{yes};
    const auto add = [&](int row) { store.SetText(row, 1, "replaced"); };
    EXPECT_EQ(store.Register("2", "CV", messages, add), yes ? 2 : 0);
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text, "すでに登録されています。\n新しいデータと置き換えますか");
    EXPECT_EQ(messages.shown[0].title, "");
    EXPECT_EQ(messages.shown[0].icon, common::Icon::kQuestion);
    EXPECT_EQ(messages.shown[0].buttons, common::Buttons::kYesNo);
    EXPECT_EQ(store.TagCount(), 3);
    EXPECT_EQ(store.currentTag, 2);
    EXPECT_EQ(store.ReplaceTag(), yes);
    EXPECT_EQ(store.tagModified, yes);
    EXPECT_EQ(store.Text(2, 1), yes ? "replaced" : "use of 2");
    EXPECT_EQ(store.Text(2, 50), yes ? "CV" : "Vortex");
    EXPECT_TRUE(store.Lines()[1].ends_with("Vortex")) << "the line stays until the next refresh";
    store.Refresh();
    EXPECT_TRUE(store.Lines()[1].ends_with(yes ? "CV" : "Vortex"));
  }
}

TEST(TagStore, ComparesTagNumbersExactlyButInTheFormOfTheFile) {
  const struct {
    const char *first, *second;
    bool same;
  } rows[] = {
      {"fe-1", "FE-1", false}, {"FE-1", "FE-1 ", false}, {"温度〜1", "温度～1", true},
      {"A−1", "A－1", true},   {"A－1", "A−1", true},    {"é", "é", true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.second);
    TagStore store;
    ScriptedMessages messages{false, false};
    const auto add = [&](int at) { store.SetText(at, 0, row.first); };
    store.Register(row.first, "CV", messages, add);
    store.Register(row.second, "CV", messages, kAddNothing);
    EXPECT_EQ(messages.shown.size(), row.same ? 1U : 0U);
  }
}

// A replacement must not turn the next registration into one after the store has been emptied.
TEST(TagStore, RegistersAfterAReplacementInAStoreThatWasEmptied) {
  TagStore store;
  Fill(store, 1);
  Add(store, "1");
  EXPECT_TRUE(store.ReplaceTag());
  ScriptedMessages messages;
  store.Delete(messages);
  EXPECT_EQ(store.TagCount(), 0);
  EXPECT_EQ(Add(store, "2"), 1);
  EXPECT_FALSE(store.ReplaceTag());
  EXPECT_EQ(Numbers(store), Texts{"2"});
  EXPECT_EQ(store.Lines().size(), 1U);
}

TEST(TagStore, HoldsThreeHundredTags) {
  TagStore store;
  Fill(store, 299);
  EXPECT_EQ(Add(store, "300"), 300);
  for (const int selected : {299, 0}) {
    SCOPED_TRACE(selected);
    store.SelectLine(selected);
    const Texts before = Numbers(store);
    const int current = store.currentTag;
    store.tagModified = false;
    ScriptedMessages messages;
    EXPECT_EQ(store.Register("301", "CV", messages, kAddNothing), 0);
    EXPECT_EQ(messages.Texts(), Texts{"最大300件です。もう追加できません。"});
    EXPECT_EQ(Numbers(store), before);
    EXPECT_EQ(store.Lines().size(), 300U);
    EXPECT_EQ(store.currentTag, current);
    EXPECT_FALSE(store.tagModified);
  }
  ScriptedMessages yes{true};
  EXPECT_EQ(store.Register("300", "CV", yes, kAddNothing), 300) << "replacing needs no room";
}

// Columns that an add routine does not write keep what stood in the row.
TEST(TagStore, KeepsStaleTextsInNewRows) {
  TagStore store;
  Fill(store, 2);
  store.SetText(2, 20, "stays in the old row and its place");
  store.SelectLine(0);
  EXPECT_EQ(Add(store, "new"), 2);
  EXPECT_EQ(store.Text(2, 20), "stays in the old row and its place");
  EXPECT_EQ(store.Text(3, 20), "stays in the old row and its place");
  store.SetText(5, 20, "beyond the tags");
  store.SelectLine(2);
  EXPECT_EQ(Add(store, "4"), 4);
  EXPECT_EQ(Add(store, "5"), 5);
  EXPECT_EQ(store.Text(5, 20), "beyond the tags");
}

TEST(TagStore, BearsTheCountOfAFileWithoutRecords) {
  for (const bool listOpen : {true, false}) {
    TagStore store;
    store.TakeRows({});
    EXPECT_EQ(store.TagCount(), -1);
    if (listOpen) store.ListOpened();
    store.ShowTagsRead();
    EXPECT_TRUE(store.Lines().empty());
    EXPECT_EQ(store.ListNumber(), 0);
    ScriptedMessages messages;
    store.Delete(messages);
    store.MoveUp();
    store.MoveDown();
    store.SortByTag();
    store.SortByKind();
    EXPECT_EQ(store.TakeSelectedForRecall(), 0);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_FALSE(store.tagModified);
    EXPECT_EQ(Add(store, "1"), 1);
    EXPECT_EQ(store.TagCount(), 1);
  }
}

TEST(TagStore, Deletes) {
  const struct {
    const char* name;
    int tags, selected;
    bool yes;
    Texts left;
    int selectedAfter;
  } rows[] = {
      {"no selection", 2, -1, true, {"1", "2"}, -1}, {"No", 2, 0, false, {"1", "2"}, 0},
      {"the only one", 1, 0, true, {}, -1},          {"first", 3, 0, true, {"2", "3"}, 0},
      {"middle", 3, 1, true, {"1", "3"}, 1},         {"last", 3, 2, true, {"1", "2"}, 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    TagStore store;
    store.ListOpened();
    Fill(store, row.tags);
    store.SelectLine(row.selected);
    store.tagModified = false;
    const bool asks = row.selected >= 0;
    const std::string line = asks ? store.ListLine(row.selected + 1) : "";
    ScriptedMessages messages{row.yes};
    store.Delete(messages);
    EXPECT_EQ(messages.Texts(), asks ? Texts{line + "\n削除しても良いですか"} : Texts{});
    EXPECT_EQ(Numbers(store), row.left);
    EXPECT_EQ(store.Lines(), LinesOfRows(store));
    EXPECT_EQ(store.Selection(), row.selectedAfter);
    EXPECT_EQ(store.ListNumber(), row.selectedAfter + 1);
    EXPECT_EQ(store.tagModified, asks && row.yes);
    if (asks && row.yes) {
      EXPECT_EQ(store.Row(row.tags), TagRow{});
    }
  }
}

TEST(TagStore, Moves) {
  const struct {
    const char* name;
    int tags, selected;
    bool up;
    Texts numbers;
    int selectedAfter;
    bool modified;
  } rows[] = {
      {"empty up", 0, -1, true, {}, -1, false},
      {"empty down", 0, -1, false, {}, -1, false},
      {"no selection down", 2, -1, false, {"1", "2"}, -1, false},
      {"no selection up", 2, -1, true, {"1", "2"}, -1, false},
      {"first up", 2, 0, true, {"1", "2"}, 0, false},
      {"last down", 2, 1, false, {"1", "2"}, 1, false},
      {"up", 3, 2, true, {"1", "3", "2"}, 1, true},
      {"down", 3, 0, false, {"2", "1", "3"}, 1, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    TagStore store;
    store.ListOpened();
    store.SetText(0, 0, "header");
    Fill(store, row.tags);
    store.SelectLine(row.selected);
    store.tagModified = false;
    row.up ? store.MoveUp() : store.MoveDown();
    EXPECT_EQ(Numbers(store), row.numbers);
    EXPECT_EQ(store.Lines(), LinesOfRows(store));
    EXPECT_EQ(store.Selection(), row.selectedAfter);
    EXPECT_EQ(store.tagModified, row.modified);
    EXPECT_EQ(store.Text(0, 0), "header");
  }
}

TEST(TagStore, SortsByBinaryTextOrderAndStably) {
  TagStore store;
  store.ListOpened();
  const struct {
    const char *number, *kind;
  } tags[] = {{"TI-9", "測温体"}, {"b", "CV"},         {"TI-10", "Integral"},
              {"圧", "圧力損失"}, {"制", "制限ｵﾘﾌｨｽ"}, {"B", "⊿P Flow"},
              {"a", "Vortex"},    {"A", "CV"},         {"ｱ", "TW"}};
  for (const auto& tag : tags) Add(store, tag.number, tag.kind);
  store.SelectLine(1);
  store.tagModified = false;
  store.SortByTag();
  // Unicode: Latin capitals, small letters, U+5236, U+5727, U+FF71. In CP932 圧 stands before 制.
  const Texts byNumber = {"A", "B", "TI-10", "TI-9", "a", "b", "制", "圧", "ｱ"};
  EXPECT_EQ(Numbers(store), byNumber);
  EXPECT_EQ(store.Selection(), 1);
  EXPECT_EQ(store.Lines(), LinesOfRows(store));
  EXPECT_TRUE(store.tagModified);
  store.SortByTag();
  EXPECT_EQ(Numbers(store), byNumber);
  store.SortByKind();
  Texts kinds;
  for (int row = 1; row <= store.TagCount(); ++row) kinds.push_back(store.Text(row, 50));
  EXPECT_EQ(kinds, (Texts{"CV", "CV", "Integral", "TW", "Vortex", "⊿P Flow", "制限ｵﾘﾌｨｽ",
                          "圧力損失", "測温体"}));
  EXPECT_EQ(store.Text(1, 0), "A");
  EXPECT_EQ(store.Text(2, 0), "b");
}

TEST(TagStore, SortingFewerThanTwoTagsChangesNothing) {
  for (const int tags : {0, 1}) {
    TagStore store;
    Fill(store, tags);
    store.tagModified = false;
    store.SortByTag();
    store.SortByKind();
    EXPECT_FALSE(store.tagModified);
  }
}

TEST(TagStore, CaptionNamesTheFileWithoutItsExtension) {
  const struct {
    const char *path, *caption;
  } rows[] = {
      {"", "Tag List ： New File"},
      {"/data/plant.zph", "Tag List ： plant"},
      {"C:\\工場\\計装.ZPH", "Tag List ： 計装"},
      {"/data/計器一二", "Tag List ： 計器一二"},
      {"/data/.zph", "Tag List ： .zph"},
      {"/data/", "Tag List ： New File"},
      {"計装データ", "Tag List ： 計"},
  };
  for (const auto& row : rows) {
    TagStore store;
    store.zephaFileName = row.path;
    EXPECT_EQ(store.ListCaption(), row.caption);
  }
}

TEST(TagStore, ListWindowSetsTheNumbers) {
  TagStore store;
  store.lastTagIndex = 2;
  store.ListOpened();  // as the start does, before the file is read
  EXPECT_EQ(store.lastTagIndex, 2);
  EXPECT_EQ(store.currentTag, 1);
  store.TakeRows(std::vector<TagRow>(4));
  store.ShowTagsRead();
  EXPECT_EQ(store.TagCount(), 3);
  EXPECT_EQ(store.currentTag, 2);
  EXPECT_EQ(store.Selection(), 1);
  store.SelectLine(2);
  EXPECT_EQ(store.TakeSelectedForRecall(), 3);
  EXPECT_EQ(store.lastTagIndex, 3);
  store.ListClosed();
  store.ListOpened();
  EXPECT_EQ(store.Selection(), 2);
  EXPECT_EQ(store.lastTagIndex, 1);
}

TEST(TagStore, CurrentTagAfterReading) {
  const struct {
    int last, current;
  } rows[] = {{0, 1}, {-3, 1}, {2, 2}, {3, 3}, {4, 1}, {99999, 1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.last);
    TagStore store;
    store.lastTagIndex = row.last;
    store.PrepareForReading();
    store.TakeRows(std::vector<TagRow>(4));
    store.ShowTagsRead();
    EXPECT_EQ(store.currentTag, row.current);
    EXPECT_EQ(store.Selection(), row.current - 1);
  }
}

}  // namespace
}  // namespace shell
