#include "shell/workbook_file.h"

#include <locale.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <unordered_map>
#include <utility>
#include <vector>

#include "common/fault.h"
#include "common/file.h"
#include "common/text.h"

namespace shell {

namespace {

using workbook::CellValue;
using workbook::WorkbookColumn;

/// Most UTF-16 units that a cell takes.
constexpr std::size_t kMostUnits = 32767;

// Widths, in digits of the workbook's font.
constexpr double kMargin = 1.5;
constexpr double kFilterArrow = 2.5;
constexpr double kWidthOfHalf = 1.1;  // of a half-width character; digits are a little narrower
constexpr double kWidest = 60;

constexpr char32_t kReplacement = U'\uFFFD';

/// XML knows neither control characters nor these two.
char32_t Storable(char32_t c) {
  if (c == U'\n' || c == U'\t') return c;
  if (c < 0x20 || c == 0x7F) return U' ';
  return c == 0xFFFE || c == 0xFFFF ? kReplacement : c;
}

/// "_x0041_" in a cell would be shown as "A"; the underscore is to be written in that form itself.
bool LooksEscaped(std::u32string_view text) {
  if (text.size() < 7 || text[0] != U'_' || text[1] != U'x' || text[6] != U'_') return false;
  return std::all_of(text.begin() + 2, text.begin() + 6, [](char32_t c) {
    return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'F') || (c >= U'a' && c <= U'f');
  });
}

/// The text as a cell can hold it.
std::string CellText(const std::string& text) {
  std::u32string cell;
  std::size_t units = 0;
  const std::u32string points = common::CodePoints(text);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const char32_t c = points[i];
    if (c == U'\r' && i + 1 < points.size() && points[i + 1] == U'\n') continue;
    const std::u32string_view rest = std::u32string_view(points).substr(i);
    const std::u32string_view written = LooksEscaped(rest) ? U"_x005F_" : U"";
    units += written.empty() ? (c > 0xFFFF ? 2 : 1) : written.size();
    if (units > kMostUnits) break;
    if (written.empty()) {
      cell += Storable(c);
    } else {
      cell += written;
    }
  }
  return common::Utf8(cell);
}

/// Characters of a number in a column's format.
double NumberWidth(double value, int decimals) {
  if (decimals == workbook::kGeneral) {
    constexpr double kMostShown = 11;
    char digits[32];
    const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    return std::min(static_cast<double>(end - digits), kMostShown);
  }
  const double rounded = std::max(std::fabs(value), 1.0);
  const int whole = static_cast<int>(std::floor(std::log10(rounded) + 1e-9)) + 1;
  const int commas = (whole - 1) / 3;
  return whole + commas + (decimals > 0 ? decimals + 1 : 0) + (value < 0 ? 1 : 0) + 1;
}

const char* FormatText(int decimals) {
  switch (decimals) {
    case 0:
      return "#,##0_ ";
    case 1:
      return "#,##0.0_ ";
    case 2:
      return "#,##0.00_ ";
    case 3:
      return "#,##0.000_ ";
    default:
      return "#,##0.0000_ ";
  }
}

/// The writer prints numbers with the decimal sign of the locale; a workbook has points.
class PointAsDecimalSign {
 public:
  PointAsDecimalSign()
      : plain_(newlocale(LC_NUMERIC_MASK, "C", duplocale(LC_GLOBAL_LOCALE))),
        before_(uselocale(plain_)) {}
  ~PointAsDecimalSign() {
    uselocale(before_);
    freelocale(plain_);
  }
  PointAsDecimalSign(const PointAsDecimalSign&) = delete;
  PointAsDecimalSign& operator=(const PointAsDecimalSign&) = delete;

 private:
  locale_t plain_;
  locale_t before_;
};

/// The writer's own reasons are English and tell of its temporary files alone.
[[noreturn]] void RaiseWriterFault() {
  throw common::RuntimeFault(common::Fault::kFileAccess,
                             "ワークブックを作成できません。\n一時ファイルのフォルダ " +
                                 common::TemporaryFolder() +
                                 " の空き容量とアクセス権を確認してください。");
}

/// The writer makes its file under a name. It is made here, where no one else can look into it,
/// before the user's file is touched.
class ScratchFile {
 public:
  ScratchFile() : path_(common::JoinPath(common::TemporaryFolder(), "zepha-XXXXXX")) {
    const int file = mkstemp(path_.data());
    if (file < 0) RaiseWriterFault();
    close(file);
  }
  ~ScratchFile() { unlink(path_.c_str()); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace

class WorkbookFile::Impl {
 public:
  Impl() : workbook_(workbook_new(scratch_.Path().c_str())) {
    if (workbook_ == nullptr) RaiseWriterFault();
    title_ = workbook_add_format(workbook_);
    format_set_bold(title_);
    format_set_bg_color(title_, 0xDDE6F0);
    format_set_bottom(title_, LXW_BORDER_THIN);
    for (int decimals = 0; decimals < kFormats; ++decimals) {
      formats_[decimals] = workbook_add_format(workbook_);
      format_set_num_format(formats_[decimals], FormatText(decimals));
    }
  }
  ~Impl() {
    if (workbook_ != nullptr) lxw_workbook_free(workbook_);
  }
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  void AddWorksheet(const workbook::Worksheet& layout) {
    Sheet& sheet = sheets_.emplace_back();
    sheet.columns = &layout.columns;
    sheet.widths.resize(layout.columns.size());
    sheet.target = workbook_add_worksheet(workbook_, layout.kind.c_str());
    if (sheet.target == nullptr) RaiseWriterFault();
    for (std::size_t column = 0; column < layout.columns.size(); ++column) {
      const std::string& title = layout.columns[column].title;
      Check(worksheet_write_string(sheet.target, 0, Column(column), title.c_str(), title_));
      sheet.widths[column] = WidthOf(title) + kFilterArrow;
    }
    worksheet_freeze_panes(sheet.target, 1, 1);
  }

  void Write(std::size_t index, int row, std::size_t column, const CellValue& value) {
    Sheet& sheet = sheets_.at(index);
    double width = 0;
    if (const double* const number = std::get_if<double>(&value)) {
      Check(worksheet_write_number(sheet.target, Row(row), Column(column), *number, nullptr));
      width = NumberWidth(*number, sheet.columns->at(column).decimals);
    } else if (const std::string* const text = std::get_if<std::string>(&value)) {
      const Prepared& cell = Prepare(*text);
      Check(worksheet_write_string(sheet.target, Row(row), Column(column), cell.text.c_str(),
                                   nullptr));
      width = cell.width;
    }
    sheet.widths[column] = std::max(sheet.widths[column], width);
    sheet.rows = std::max(sheet.rows, row);
  }

  std::string Finish() {
    for (const Sheet& sheet : sheets_) FinishSheet(sheet);
    const PointAsDecimalSign plain;
    const lxw_error error = workbook_close(std::exchange(workbook_, nullptr));
    Check(error);
    return common::ReadFile(scratch_.Path());
  }

 private:
  static constexpr int kFormats = 5;

  struct Sheet {
    lxw_worksheet* target = nullptr;
    const std::vector<WorkbookColumn>* columns = nullptr;
    std::vector<double> widths;
    int rows = 0;
  };

  struct Prepared {
    std::string text;
    double width = 0;
  };

  /// Most texts are units, materials and the like, which come again and again.
  const Prepared& Prepare(const std::string& text) {
    const auto [found, isNew] = prepared_.try_emplace(text);
    if (isNew) {
      found->second.text = CellText(text);
      found->second.width = WidthOf(found->second.text);
    }
    return found->second;
  }

  static lxw_row_t Row(int row) { return static_cast<lxw_row_t>(row); }
  static lxw_col_t Column(std::size_t column) { return static_cast<lxw_col_t>(column); }
  static double WidthOf(const std::string& text) { return common::Cp932Length(text); }
  static void Check(lxw_error error) {
    if (error != LXW_NO_ERROR) RaiseWriterFault();
  }

  /// Width and format are set in one call: a later one for the width alone would drop the format.
  void FinishSheet(const Sheet& sheet) {
    for (std::size_t column = 0; column < sheet.widths.size(); ++column) {
      const double width = std::min(sheet.widths[column] * kWidthOfHalf + kMargin, kWidest);
      const int decimals = sheet.columns->at(column).decimals;
      lxw_format* const format =
          decimals == workbook::kGeneral ? nullptr : formats_[static_cast<std::size_t>(decimals)];
      Check(worksheet_set_column(sheet.target, Column(column), Column(column), width, format));
    }
    Check(
        worksheet_autofilter(sheet.target, 0, 0, Row(sheet.rows), Column(sheet.widths.size() - 1)));
  }

  ScratchFile scratch_;
  lxw_workbook* workbook_;
  lxw_format* title_ = nullptr;
  lxw_format* formats_[kFormats] = {};
  std::vector<Sheet> sheets_;
  std::unordered_map<std::string, Prepared> prepared_;
};

WorkbookFile::WorkbookFile() : impl_(std::make_unique<Impl>()) {}
WorkbookFile::~WorkbookFile() = default;

void WorkbookFile::AddWorksheet(const workbook::Worksheet& sheet) { impl_->AddWorksheet(sheet); }

void WorkbookFile::Write(int worksheet, int row, int column, const CellValue& value) {
  impl_->Write(static_cast<std::size_t>(worksheet), row, static_cast<std::size_t>(column), value);
}

std::string WorkbookFile::Finish() { return impl_->Finish(); }

}  // namespace shell
