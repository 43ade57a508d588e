// The user's guide against the program: what its pages say is what the sheets show.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

#include "common/file.h"
#include "forms/controls.h"
#include "headless/driver.h"
#include "shell/sheet_registry.h"
#include "tests/support/fake_platform.h"
#include "tests/support/recording_presenter.h"
#include "tests/support/temporary_folder.h"

namespace headless {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const std::string& folder, const std::string& extension) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == extension) files.push_back(entry.path());
  }
  return files;
}

std::vector<std::string> Split(const std::string& text, const std::string& mark) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(mark, at), text.size());
    parts.push_back(text.substr(at, end - at));
    at = end + mark.size();
  }
  return parts;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? std::string()
                                    : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Everything that a form shows: the texts of its controls, its titles and captions.
void CollectTexts(const forms::Block& block, std::set<std::string>& texts) {
  texts.insert(block.title);
  for (const forms::Line& line : block.lines) {
    for (const forms::Cell& cell : line) texts.insert(cell.Text());
  }
  for (const forms::Block& inner : block.blocks) CollectTexts(inner, texts);
}

std::set<std::string> TextsOn(shell::FormManager& forms) {
  std::set<std::string> texts = {""};
  for (const forms::Form* form : forms.Open()) {
    texts.insert(form->Caption());
    CollectTexts(form->Layout(), texts);
    for (const forms::Control* control : form->Controls()) {
      texts.insert(control->Text());
      const auto* const grid = dynamic_cast<const forms::Grid*>(control);
      if (grid == nullptr) continue;
      for (const forms::Grid::Column& column : grid->Columns()) texts.insert(column.title);
    }
  }
  return texts;
}

/// A line of an example: what the driver does, what then stands on the sheet, and the texts that
/// the page gives as those of the sheet. The cell of a grid is asked for with the whole grid.
struct Step {
  std::string command;
  std::string expected;
  std::size_t row = 0, column = 0;
  bool ofGrid = false;
  std::vector<std::string> captions;
};

Step Parsed(const std::string& line) {
  std::vector<std::string> parts = Split(line, "|");
  Step step;
  step.command = Trimmed(parts[0]);
  for (std::size_t i = 1; i < parts.size(); ++i) step.captions.push_back(Trimmed(parts[i]));
  std::istringstream words(step.command);
  std::string verb;
  std::string control;
  words >> verb >> control;
  step.ofGrid = verb == "cell";
  if (step.ofGrid) words >> step.row >> step.column;
  if (verb != "get" && !step.ofGrid) return step;
  std::getline(words >> std::ws, step.expected);
  step.command = "get " + control;
  return step;
}

/// Runs one worked example as a user would, and compares.
void RunExample(const std::string& page, const std::string& block) {
  shell::MemorySettings settings;
  Driver driver(ZEPHA_BUILD_DIR, settings);
  driver.Start();
  shell::FormManager& forms = driver.Bench().Forms();
  for (const std::string& line : Split(block, "\n")) {
    if (line.empty() || line.front() == '#') continue;
    const Step step = Parsed(line);
    // The captions before the step: it may close the form that they stand on.
    std::set<std::string> shown = TextsOn(forms);
    const Json answer = driver.Execute(step.command);
    ASSERT_TRUE(answer["ok"]) << page << ": " << answer;
    EXPECT_FALSE(answer.contains("messages")) << page << ": " << answer;
    shown.merge(TextsOn(forms));
    for (const std::string& caption : step.captions) {
      EXPECT_TRUE(shown.contains(caption))
          << "Page " << page << " names \"" << caption << "\", which stands nowhere on the sheet.";
    }
    if (step.expected.empty()) continue;
    const std::string text =
        Trimmed(step.ofGrid ? answer["items"].at(step.row).at(step.column) : answer["text"]);
    EXPECT_EQ(text, step.expected) << "Page " << page << " says \"" << step.expected << "\" in "
                                   << line << ", the sheet \"" << text << "\".";
  }
}

class Guide : public testing::Test {
 protected:
  const std::string sources = ZEPHA_SOURCE_DIR "/docs/guide";
  const std::string pages = ZEPHA_BUILD_DIR "/guide";
};

TEST_F(Guide, WorkedExamplesComeOutAsThePagesSay) {
  int examples = 0;
  for (const fs::path& file : FilesOf(sources, ".md")) {
    const std::vector<std::string> parts = Split(common::ReadFile(file), "\n```example ");
    for (std::size_t i = 1; i < parts.size(); ++i) {
      const auto begin = parts[i].find('\n') + 1;
      RunExample(file.stem(), parts[i].substr(begin, parts[i].find("\n```") - begin));
      ++examples;
    }
  }
  EXPECT_GE(examples, 12);
}

// A message that the program no longer has is no longer looked for by anybody who meets another.
TEST_F(Guide, MessagesStandInTheProgram) {
  std::string program;
  for (const char* layer : {"common", "data", "flow", "valve", "temperature", "piping", "ducts",
                            "forms", "shell", "sheets", "desktop"}) {
    for (const char* extension : {".cpp", ".h"}) {
      for (const fs::path& file : FilesOf(std::string(ZEPHA_SOURCE_DIR "/") + layer, extension)) {
        program += common::ReadFile(file);
      }
    }
  }
  program = std::regex_replace(program, std::regex("\"\\s*\n\\s*\""), "");
  program = std::regex_replace(program, std::regex("\\\\\""), "\"");
  int messages = 0;
  for (const fs::path& file : FilesOf(sources, ".md")) {
    bool inTable = false;
    for (const std::string& line : Split(common::ReadFile(file), "\n")) {
      if (line.starts_with("| 表示 |")) inTable = true;
      if (!line.starts_with("|")) inTable = false;
      if (!inTable || line.starts_with("| 表示 |") || line.starts_with("|--")) continue;
      ++messages;
      // An ellipsis stands for a number or a name, a line break of the page for one of the box;
      // <wbr> stands where the program puts parts together.
      const std::string message =
          std::regex_replace(Trimmed(Split(line, "|")[1]), std::regex("<wbr>"), "…");
      for (const std::string& lineOfBox : Split(message, "<br>")) {
        for (const std::string& part : Split(lineOfBox, "…")) {
          EXPECT_NE(program.find(part), std::string::npos)
              << "Page " << file.stem() << " explains \"" << part
              << "\", which the program never says.";
        }
      }
    }
  }
  EXPECT_GT(messages, 50);
}

// The page of every sheet that there is, the index without one, a help file of the house before
// both; and what is missing is named.
TEST_F(Guide, HelpOpensThePageOfTheSheetOnTop) {
  const tests::TemporaryFolder folder;
  tests::RecordingPresenter presenter;
  tests::FakePlatform platform;
  shell::MemorySettings settings;
  sheets::Workbench bench(presenter, folder.Path(), settings, &platform);
  bench.Space().guideDir = pages;
  const auto help = [&] {
    bench.Window().Run("mnuZEPHAHelp");
    return platform.opened.back();
  };
  EXPECT_EQ(help(), pages + "/index.html");
  for (const shell::SheetEntry& sheet : shell::SheetRegistry()) {
    shell::OpenSheet(bench.Space(), sheet.kind);
    EXPECT_EQ(help(), pages + "/" + sheet.guidePage + ".html");
    EXPECT_TRUE(fs::exists(help())) << sheet.kind;
  }
  common::WriteFile(folder / "Zepha.chm", "of the house");
  EXPECT_EQ(help(), folder / "Zepha.chm");

  Driver driver(folder.Path(), settings);  // has no program to open anything
  driver.Bench().Space().guideDir = "/none";
  EXPECT_EQ(driver.Execute("menu mnuZEPHAHelp")["messages"][0]["text"],
            "ヘルプを開けません。\n" + (folder / "Zepha.chm"));
  fs::remove(folder / "Zepha.chm");
  EXPECT_EQ(driver.Execute("menu mnuZEPHAHelp")["messages"][0]["text"],
            "ヘルプを開けません。\n/none/index.html");
}

TEST_F(Guide, PagesAreReachedFromTheIndexAndTheirLinksLeadSomewhere) {
  std::set<std::string> reached;
  std::vector<std::string> open = {"index.html"};
  const std::regex link("(?:href|src)=\"([^\"#]+)(#[^\"]*)?\"");
  while (!open.empty()) {
    const std::string name = open.back();
    open.pop_back();
    if (!reached.insert(name).second) continue;
    ASSERT_TRUE(fs::exists(pages + "/" + name)) << name;
    if (!name.ends_with(".html")) continue;
    const std::string text = common::ReadFile(pages + "/" + name);
    for (std::sregex_iterator at(text.begin(), text.end(), link), end; at != end; ++at) {
      EXPECT_EQ(at->str(1).find("//"), std::string::npos) << name << " leads to the network";
      open.push_back(at->str(1));
    }
  }
  for (const fs::path& file : FilesOf(sources, ".md")) {
    EXPECT_TRUE(reached.contains(file.stem().string() + ".html")) << file;
  }
}

}  // namespace
}  // namespace headless
