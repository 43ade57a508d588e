#include "sheets/calculation_page.h"

#include <algorithm>
#include <sstream>

#include "common/text.h"
#include "shell/page_frame.h"

namespace sheets {

namespace {

constexpr int kSectionColumn = 13;
constexpr int kLineColumn = 18;
constexpr int kLabelBytes = 18;
constexpr int kValueBytes = 38;
constexpr const char* kSeparator = "：";
constexpr const char* kBeforeUnit = "    ";
/// Gap between two lines, points.
constexpr double kLineGap = 6;
constexpr double kRowGap = 3;

/// The text without blanks at its ends.
std::string WithoutBlanks(const std::string& text) {
  const auto begin = text.find_first_not_of(' ');
  if (begin == std::string::npos) return {};
  return text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

}  // namespace

void CalculationPage::Title(const std::string& text) {
  target_.SetBold(true);
  target_.Print(text);
  target_.SetBold(false);
  const shell::PageGeometry page;
  target_.MoveTo(0, page.headingBottom + page.charHeight);
}

void CalculationPage::Section(const std::string& text) {
  target_.Tab(kSectionColumn);
  target_.Print(text);
  shell::PrintLineFeed(target_, kLineGap);
}

void CalculationPage::Line(const std::string& label, const std::string& value,
                           const std::string& unit) {
  const std::string shown = WithoutBlanks(value);
  // Units come with blanks of their own or without; all stand in one column.
  const std::string bareUnit = shown.empty() ? "" : WithoutBlanks(unit);
  const int room = kValueBytes - std::max(common::Cp932Length(label) - kLabelBytes, 0);
  PrintInFrame(common::PadToBytes(label, kLabelBytes) + kSeparator +
               common::PadLeftToBytes(shown, room) +
               (bareUnit.empty() ? "" : kBeforeUnit + bareUnit));
}

void CalculationPage::Continued(const std::string& value) {
  const int before = kLabelBytes + common::Cp932Length(kSeparator);
  PrintInFrame(common::PadToBytes({}, before) + common::PadLeftToBytes(value, kValueBytes));
}

void CalculationPage::Text(const std::string& text) { PrintInFrame(text); }

void CalculationPage::Row(const std::string& text) { PrintAt(kSectionColumn, kRowGap, text); }

void CalculationPage::Remarks(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) Text("※ " + line);
}

void CalculationPage::PrintInFrame(const std::string& text) {
  PrintAt(kLineColumn, kLineGap, text);
}

void CalculationPage::PrintAt(int column, double gap, const std::string& text) {
  const shell::PageGeometry page;
  target_.Tab(column);
  const double room = page.right - page.charHeight - target_.X();
  const double needed = target_.TextWidth(text);
  if (needed > room) {
    const double scale = static_cast<double>(target_.PrintScale());
    target_.SetFontSize(shell::kBodySize * scale * room / needed);
    const double y = target_.Y();
    target_.Print(text);
    target_.SetFontSize(shell::kBodySize * scale);
    target_.MoveTo(0, y + page.charHeight);
  } else {
    target_.Print(text);
  }
  shell::PrintLineFeed(target_, gap);
}

void CalculationPage::Gap() { shell::PrintLineFeed(target_, kLineGap); }

void CalculationPage::Picture(const forms::Picture& picture, double width) {
  const shell::PageGeometry page;
  target_.Draw(picture, (page.left + page.right - width) / 2, target_.Y(), width);
  target_.MoveTo(0, target_.Y() + picture.Height() * width / picture.Width());
}

double CalculationPage::Room() const {
  const shell::PageGeometry page;
  return page.footTop - target_.Y();
}

}  // namespace sheets
