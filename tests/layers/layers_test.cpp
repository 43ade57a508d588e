#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

/// What each folder may include; nothing includes upward, and calculators do not know each other.
const std::map<std::string, std::set<std::string>>& Allowed() {
  static const std::set<std::string> kCalculators = {"flow", "valve", "temperature", "piping",
                                                     "ducts"};
  static const auto kAllowed = [] {
    std::map<std::string, std::set<std::string>> allowed = {
        {"common", {"common"}}, {"data", {"common", "data"}}, {"forms", {"common", "forms"}}};
    for (const std::string& name : kCalculators) allowed[name] = {"common", "data", name};
    std::set<std::string> below = {"common", "data", "forms"};
    below.insert(kCalculators.begin(), kCalculators.end());
    for (const char* name : {"shell", "sheets"}) {
      below.insert(name);
      allowed[name] = below;
    }
    for (const char* name : {"desktop", "headless"}) {
      allowed[name] = below;
      allowed[name].insert(name);
    }
    return allowed;
  }();
  return kAllowed;
}

/// The headless program shares what draws on paper, in one place, for its PDF files.
bool IsPdfOfHeadless(const std::string& folder, const std::string& at) {
  return folder == "headless" && at.starts_with("pdf.cpp:");
}

bool IsSource(const fs::path& path) {
  return path.extension() == ".h" || path.extension() == ".cpp";
}

template <class Check>
void ForEachLine(const std::string& folder, Check check) {
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(fs::path(ZEPHA_SOURCE_DIR) / folder)) {
    if (!IsSource(entry.path())) continue;
    ++files;
    std::ifstream file(entry.path());
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
      check(line, entry.path().filename().string() + ":" + std::to_string(number));
    }
  }
  EXPECT_GT(files, 0) << folder;
}

TEST(Layers, IncludeOnlyDownwards) {
  const std::regex ours("#include \"([^/\"]*)(/?)");
  for (const auto& [name, allowed] : Allowed()) {
    const std::string& folder = name;
    ForEachLine(folder, [&, &mayInclude = allowed](const std::string& line, const std::string& at) {
      std::smatch match;
      if (!std::regex_search(line, match, ours)) return;
      if (IsPdfOfHeadless(folder, at) && line.find("\"desktop/paper/") != std::string::npos) return;
      EXPECT_EQ(match[2], "/") << at << ": includes name their folder: " << line;
      EXPECT_TRUE(mayInclude.contains(match[1])) << at << ": " << line;
    });
  }
}

TEST(Layers, OnlyTheDesktopKnowsTheToolkit) {
  const std::regex toolkit("#include <(Q[A-Z]|Qt)");
  for (const auto& [name, allowed] : Allowed()) {
    const std::string& folder = name;
    if (folder == "desktop") continue;
    ForEachLine(folder, [&](const std::string& line, const std::string& at) {
      if (IsPdfOfHeadless(folder, at)) return;
      EXPECT_FALSE(std::regex_search(line, toolkit)) << at << ": " << line;
    });
  }
}

TEST(Layers, OneFileKnowsTheWriterOfWorkbooks) {
  for (const auto& [name, allowed] : Allowed()) {
    ForEachLine(name, [](const std::string& line, const std::string& at) {
      EXPECT_TRUE(!line.starts_with("#include <xlsxwriter") || at.starts_with("workbook_file.cpp:"))
          << at;
    });
  }
}

TEST(Layers, PaperNeedsNoWindows) {
  ForEachLine("desktop/paper", [](const std::string& line, const std::string& at) {
    const bool ours = line.starts_with("#include \"desktop/");
    EXPECT_TRUE(!ours || line.starts_with("#include \"desktop/paper/")) << at << ": " << line;
  });
}

// Formulas go through the checked functions, so that no infinity or NaN reaches a sheet.
TEST(Layers, CalculationsUseCheckedArithmetic) {
  const std::regex unchecked("std::(pow|sqrt|log|log10|exp|sinh|cosh|atan)\\(");
  for (const char* folder : {"data", "flow", "valve", "temperature", "piping", "ducts", "sheets"}) {
    ForEachLine(folder, [&](const std::string& line, const std::string& at) {
      EXPECT_FALSE(std::regex_search(line, unchecked)) << at << ": " << line;
    });
  }
}

}  // namespace
