#include "shell/page_frame.h"

#include <ctime>

#include "shell/workspace.h"

namespace shell {

namespace {

/// Year, month and day without the weekday, which would leave the date box.
std::string LongDate(std::chrono::year_month_day date) {
  return std::to_string(static_cast<int>(date.year())) + "年" +
         std::to_string(static_cast<unsigned>(date.month())) + "月" +
         std::to_string(static_cast<unsigned>(date.day())) + "日";
}

void PrintDateBox(const Workspace& workspace, const PageGeometry& page, double width,
                  PrintSurface& target) {
  const double middle = (page.top + page.headingBottom) / 2;
  target.Line(page.dateLeft, page.top, page.dateLeft, page.headingBottom, width);
  target.Line(page.dateLeft, middle, page.right, middle, width);
  target.MoveTo(170 * kTwipsPerMm, 3.2 * page.charHeight);
  target.Write("日   付");
  target.MoveTo(163 * kTwipsPerMm, 5.3 * page.charHeight);
  target.Write(LongDate(workspace.today()));
}

/// At the foot, so that it ends at the right edge whatever its characters.
void PrintIssuerName(const std::string& name, const PageGeometry& page, PrintSurface& target) {
  constexpr double kSize = 14;
  target.SetFontSize(kSize * target.PrintScale());
  target.MoveTo(page.right - target.TextWidth(name), 2 * page.charHeight + 264 * kTwipsPerMm);
  target.Write(name);
}

}  // namespace

std::chrono::year_month_day LocalDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return std::chrono::year(local.tm_year + 1900) /
         std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)) /
         std::chrono::day(static_cast<unsigned>(local.tm_mday));
}

void PrintPageFrame(const Workspace& workspace, const std::string& tagNumber,
                    PrintSurface& target) {
  const PageGeometry page;
  constexpr double kPreviewWidth = 0.4;
  double width = 1;
  if (target.PrintScale() != kPaperScale) {
    target.SetColor(forms::kWhite);
    target.FilledRectangle(0, 0, kPageWidth, kPageHeight);
    width = kPreviewWidth;
  }
  target.SetColor(forms::kBlack);
  target.Rectangle(page.left, page.top, page.right, page.bottom, width);
  target.Line(page.left, page.headingBottom, page.right, page.headingBottom, width);
  target.Line(page.left, page.footTop, page.right, page.footTop, width);
  if (!tagNumber.empty()) {
    target.MoveTo(page.right - target.TextWidth(tagNumber), page.top - page.charHeight);
    target.Write(tagNumber);
  }
  PrintDateBox(workspace, page, width, target);
  if (!workspace.issuerName.empty()) PrintIssuerName(workspace.issuerName, page, target);
  target.SetFontName(kMincho);
  target.SetBold(false);
  target.SetFontSize(kBodySize * target.PrintScale());
}

}  // namespace shell
