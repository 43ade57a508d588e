#include "shell/field_names.h"

#include <algorithm>
#include <map>
#include <utility>

#include "forms/color.h"
#include "shell/workbook_columns.h"

namespace shell {

namespace {

struct Name {
  const char* text;
  bool isColour = false;
};
using Names = std::map<int, Name>;

/// Columns that the workbook does not show, or under a title that needs its neighbours.
const Names& OwnNames(const std::string& kind) {
  static const std::map<std::string, Names> kNames = {
      {"⊿P Flow", {{44, {"標準状態密度"}}, {45, {"適用規格の版"}}}},
      {"Integral",
       {{24, {"差圧一覧1(mmH2O)"}},
        {25, {"差圧一覧2(mmH2O)"}},
        {26, {"差圧一覧3(mmH2O)"}},
        {27, {"差圧一覧4(mmH2O)"}},
        {28, {"差圧一覧5(mmH2O)"}},
        {29, {"差圧一覧6(mmH2O)"}},
        {30, {"差圧一覧7(mmH2O)"}},
        {42, {"差圧（丸め前）"}},
        {43, {"永久圧損（丸め前）"}}}},
      {"Vortex", {{19, {"測定下限;上限;圧力損失;周波数;備考"}}}},
      {"TW",
       {{16, {"保護管材質の番号"}},
        {35, {"1次固有振動数の表示色", true}},
        {39, {"同期振動判定の表示色", true}},
        {40, {"同期振動判定"}},
        {42, {"定常抗力判定の表示色", true}},
        {43, {"定常抗力判定"}},
        {45, {"ランダム励振力判定の表示色", true}},
        {46, {"ランダム励振力判定"}},
        {49, {"データの版"}}}},
      {"CV",
       {{7, {"差圧/下流圧の区分"}},
        {36, {"弁特性の番号"}},
        {43, {"配管材質の番号"}},
        {49, {"下流流速の表示色", true}}}},
      {"圧力損失", {{49, {"全圧力損失の単位"}}}},
      {"制限ｵﾘﾌｨｽ",
       {{37, {"最大応力の表示色", true}},
        {39, {"変形量の表示色", true}},
        {41, {"必要板厚の表示色", true}},
        {42, {"必要板厚(mm)"}}}}};
  static const Names kNone;
  const auto found = kNames.find(kind);
  return found == kNames.end() ? kNone : found->second;
}

/// Titles that say nothing without the one before them.
bool NeedsTitleBefore(const std::string& title) { return title == "単位" || title == "出力"; }

/// Title of the workbook's column that shows a column of the record, or "".
std::string WorkbookTitle(const std::string& kind, int column) {
  const auto& sheets = workbook::Worksheets();
  const auto sheet =
      std::find_if(sheets.begin(), sheets.end(), [&](const auto& one) { return one.kind == kind; });
  if (sheet == sheets.end()) return {};
  std::string before;
  for (const workbook::WorkbookColumn& cell : sheet->columns) {
    if (cell.value.column == column) {
      return NeedsTitleBefore(cell.title) ? before + "の" + cell.title : cell.title;
    }
    if (!NeedsTitleBefore(cell.title)) before = cell.title;
  }
  return {};
}

}  // namespace

std::string FieldName(const std::string& kind, int column) {
  const Names& names = OwnNames(kind);
  const auto own = names.find(column);
  if (own != names.end()) return own->second.text;
  const std::string title = WorkbookTitle(kind, column);
  return title.empty() ? "第" + std::to_string(column) + "欄" : title;
}

std::string ShownField(const std::string& kind, int column, const std::string& text) {
  if (text.find_first_not_of(' ') == std::string::npos) return "（空白）";
  const Names& names = OwnNames(kind);
  const auto own = names.find(column);
  if (own == names.end() || !own->second.isColour) return text;
  for (const auto& [colour, word] : {std::pair(forms::kBlack, "黒"), std::pair(forms::kRed, "赤"),
                                     std::pair(forms::kMagenta, "赤紫")}) {
    if (text == std::to_string(colour)) return word;
  }
  return text;
}

}  // namespace shell
