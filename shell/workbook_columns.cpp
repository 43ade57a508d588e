#include "shell/workbook_columns.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "common/parse.h"
#include "data/process_state.h"
#include "forms/color.h"
#include "shell/record_text.h"

namespace shell::workbook {

namespace {

constexpr std::string_view kDigits = "0123456789";

const std::string& At(const TagRow& record, int column) {
  return record.at(static_cast<std::size_t>(column));
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

/// Takes the thousands commas out of a whole part ("1,234,567"). False where they stand elsewhere.
bool TakeCommas(std::string& text) {
  if (text.find(',') == std::string::npos) return true;
  const std::size_t end = text.find_first_of(".eE");
  const std::size_t begin = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  std::string whole = text.substr(begin, end == std::string::npos ? end : end - begin);
  std::size_t comma = whole.find(',');
  if (comma == std::string::npos || comma == 0 || comma > 3) return false;
  while (comma < whole.size()) {
    if (whole[comma] != ',') return false;
    whole.erase(comma, 1);
    comma += 3;
  }
  if (comma != whole.size()) return false;
  text.replace(begin, end == std::string::npos ? end : end - begin, whole);
  return true;
}

/// The number that a whole text is; nothing else counts as one, neither "1/2" nor "inf".
std::optional<double> NumberOf(std::string_view stored) {
  const std::string_view trimmed = Trimmed(stored);
  if (trimmed.find_first_not_of("0123456789+-.,eE") != std::string_view::npos) return std::nullopt;
  if (trimmed.find_first_of(kDigits) == std::string_view::npos) return std::nullopt;
  std::string plain(trimmed);
  if (!TakeCommas(plain)) return std::nullopt;
  std::string_view text = plain;
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  return common::ParseNumber<double>(text);
}

/// Whether a text shows nothing: blanks, full-width ones too, and control characters.
bool ShowsNothing(std::string_view text) {
  constexpr std::string_view kFullWidthBlank = "　";
  while (!text.empty()) {
    const bool wide = text.starts_with(kFullWidthBlank);
    if (!wide && static_cast<unsigned char>(text.front()) > ' ') return false;
    text.remove_prefix(wide ? kFullWidthBlank.size() : 1);
  }
  return true;
}

CellValue TextOf(std::string_view text) {
  if (ShowsNothing(text)) return {};
  return std::string(text);
}

CellValue NumberOrText(std::string_view text) {
  if (const std::optional<double> number = NumberOf(text)) return *number;
  return TextOf(text);
}

CellValue ItemOf(const std::string& stored, const data::TextList& list,
                 const std::string& suffix = {}) {
  const int position = ListPosition(stored);
  if (position == kNoPosition) return TextOf(stored);
  if (position < 0 || static_cast<std::size_t>(position) >= list.size()) return {};
  const std::string& item = list[static_cast<std::size_t>(position)];
  if (Trimmed(item).empty()) return {};
  return item + suffix;
}

/// The source for the stored phase.
CellSource ByPhase(int phaseColumn, std::array<CellSource, 3> sources) {
  const int column = sources.front().column;
  return {[phaseColumn, sources = std::move(sources)](const TagRow& record,
                                                      const Tables& tables) -> CellValue {
            const int phase = ListPosition(At(record, phaseColumn));
            if (phase < data::kLiquid || phase > data::kSteam) return {};
            return sources[static_cast<std::size_t>(phase)](record, tables);
          },
          column};
}

std::string_view Part(std::string_view text, int n) {
  for (; n > 0; --n) {
    const std::size_t end = text.find(';');
    if (end == std::string_view::npos) return {};
    text.remove_prefix(end + 1);
  }
  return text.substr(0, text.find(';'));
}

}  // namespace

int ListPosition(const std::string& text) {
  const std::string_view trimmed = Trimmed(text);
  if (trimmed.empty()) return -1;
  const std::optional<int> position = common::ParseNumber<int>(trimmed);
  return position ? std::max(*position, -1) : kNoPosition;
}

CellSource Text(int column) {
  return {[=](const TagRow& record, const Tables&) { return TextOf(At(record, column)); }, column};
}

CellSource Number(int column) {
  return {[=](const TagRow& record, const Tables&) { return NumberOrText(At(record, column)); },
          column};
}

CellSource Item(int column, ListMember list, const std::string& suffix) {
  return {[=](const TagRow& record, const Tables& tables) {
            return ItemOf(At(record, column), tables.lists.*list, suffix);
          },
          column};
}

CellSource Item(int column, data::TextList list) {
  return {[column, list = std::move(list)](const TagRow& record, const Tables&) {
            return ItemOf(At(record, column), list);
          },
          column};
}

CellSource FlowUnit(int phaseColumn, int unitColumn) {
  return ByPhase(phaseColumn,
                 {Item(unitColumn, &Lists::liquidFlowUnits), Item(unitColumn, &Lists::gasFlowUnits),
                  Item(unitColumn, &Lists::reportSteamFlowUnits)});
}

CellSource DensityUnit(int phaseColumn, int unitColumn) {
  return ByPhase(phaseColumn, {Item(unitColumn, data::kLiquidDensityUnits),
                               Item(unitColumn, &Lists::gasDensityUnits),
                               Item(unitColumn, &Lists::reportSteamDensityUnits)});
}

CellSource WetOrDry(int column) {
  return {[=](const TagRow& record, const Tables&) -> CellValue {
            const std::string& flag = At(record, column);
            if (Trimmed(flag).empty()) return {};
            return std::string(IsSet(flag) ? "WetBase" : "DryBase");
          },
          column};
}

CellSource Judgement(int colourColumn, int captionColumn) {
  return {[=](const TagRow& record, const Tables&) -> CellValue {
            const std::optional<double> colour = NumberOf(At(record, colourColumn));
            const bool judged = colour && !Trimmed(At(record, captionColumn)).empty();
            if (!judged || *colour == forms::kMagenta) return std::string("判定出来ず");
            return std::string(*colour == forms::kRed ? "　×" : "　○");
          },
          captionColumn};
}

CellSource NumberPart(int column, int n) {
  return {[=](const TagRow& record, const Tables&) {
            return NumberOrText(Part(At(record, column), n));
          },
          column};
}

CellSource TextPart(int column, int n) {
  return {[=](const TagRow& record, const Tables&) { return TextOf(Part(At(record, column), n)); },
          column};
}

CellSource Constant(const std::string& text) {
  return {[=](const TagRow&, const Tables&) -> CellValue { return text; }};
}

CellSource Blank() {
  return {[](const TagRow&, const Tables&) -> CellValue { return {}; }};
}

CellSource If(bool (*condition)(const TagRow&), CellSource then, CellSource otherwise) {
  const int column = otherwise.column;
  return {[condition, then = std::move(then), otherwise = std::move(otherwise)](
              const TagRow& record, const Tables& tables) {
            return condition(record) ? then(record, tables) : otherwise(record, tables);
          },
          column};
}

const std::vector<Worksheet>& Worksheets() {
  static const std::vector<Worksheet> kWorksheets = {
      {"⊿P Flow", DifferentialPressureColumns()},
      {"Integral", IntegralColumns()},
      {"Vortex", VortexColumns()},
      {"TW", ThermowellColumns()},
      {"測温体", SensorColumns()},
      {"CV", ValveColumns()},
      {"圧力損失", PressureLossColumns()},
      {"制限ｵﾘﾌｨｽ", RestrictionColumns()},
  };
  return kWorksheets;
}

}  // namespace shell::workbook
