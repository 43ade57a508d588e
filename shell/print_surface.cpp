#include "shell/print_surface.h"

#include <utility>

#include "common/text.h"
#include "forms/placed_surface.h"

namespace shell {

namespace {

constexpr double kTwipsPerPoint = 20;
/// Letters of a picture that asks for none, points of its own size.
constexpr double kPictureSize = 9;

}  // namespace

double FixedTextWidth(const std::string& text, double size) {
  return common::Cp932Length(text) * size * kTwipsPerPoint / 2;
}

double FixedTextHeight(double size) { return size * kTwipsPerPoint; }

PrintSurface::PrintSurface(forms::DrawSurface& target, double printScale)
    : target_(target), printScale_(printScale), fontSize_(kBodySize * printScale) {
  TellFont();
}

void PrintSurface::TellFont() { target_.SetFont(fontName_, fontSize_, bold_); }

void PrintSurface::SetFontName(std::string name) {
  fontName_ = std::move(name);
  TellFont();
}

void PrintSurface::SetFontSize(double size) {
  fontSize_ = size;
  TellFont();
}

void PrintSurface::SetBold(bool bold) {
  bold_ = bold;
  TellFont();
}

void PrintSurface::SetColor(forms::Color color) { target_.SetColor(color); }

void PrintSurface::MoveTo(double x, double y) {
  x_ = x;
  y_ = y;
}

void PrintSurface::Tab(int column) { x_ = (column - 1) * FixedTextWidth("A", kBodySize); }

double PrintSurface::TextWidth(const std::string& text) const {
  return FixedTextWidth(text, PaperSize());
}

void PrintSurface::Print(const std::string& text) {
  Write(text);
  MoveTo(0, y_ + FixedTextHeight(PaperSize()));
}

void PrintSurface::Write(const std::string& text) {
  if (!text.empty()) target_.Text(x_, y_, text);
  x_ += TextWidth(text);
}

void PrintSurface::Line(double x1, double y1, double x2, double y2, double width) {
  target_.SetLineWidth(width);
  target_.Line(x1, y1, x2, y2);
}

void PrintSurface::Rectangle(double x1, double y1, double x2, double y2, double width) {
  target_.SetLineWidth(width);
  target_.Rectangle(x1, y1, x2, y2);
}

void PrintSurface::FilledRectangle(double x1, double y1, double x2, double y2) {
  target_.FilledRectangle(x1, y1, x2, y2);
}

void PrintSurface::Draw(const forms::Picture& picture, double x, double y, double width) {
  if (!picture.onPaint || picture.Width() <= 0) return;
  forms::PlacedSurface placed(target_, x, y, width / picture.Width(), printScale_);
  placed.SetFont(kGothic, kPictureSize, false);
  picture.onPaint(placed);
  TellFont();
  SetColor(forms::kBlack);
}

void PrintLineFeed(PrintSurface& target, double n) {
  target.SetFontSize(n * target.PrintScale());
  target.Print({});
  target.SetFontSize(kBodySize * target.PrintScale());
}

}  // namespace shell
