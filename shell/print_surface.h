#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/draw_surface.h"

namespace shell {

/// Twips of a millimetre, as all positions on a page are computed.
inline constexpr double kTwipsPerMm = 56.7;
/// A4 in twips.
inline constexpr double kPageWidth = 11907;
inline constexpr double kPageHeight = 16840;
/// Letters of a calculation sheet, points.
inline constexpr double kBodySize = 11;
/// The fixed-pitch families that sheets are set in.
inline constexpr const char* kMincho = "ＭＳ 明朝";
inline constexpr const char* kGothic = "ＭＳ ゴシック";

/// How much smaller letters and lines are asked for on the preview than on paper.
inline constexpr float kPaperScale = 1.0F;
inline constexpr float kPreviewScale = 0.8F;

/// Width of a text in a fixed-pitch font, twips: half a letter height for a half-width character, a
/// whole one for a full-width one. size: points.
double FixedTextWidth(const std::string& text, double size);
/// Height of its line.
double FixedTextHeight(double size);

/// What a sheet is printed on: a surface with a current font and a current position, which walks
/// down the page line by line. Letter sizes and line widths are those of the target, so PrintScale
/// times those on paper; positions and line pitch are those of paper on every target, so that the
/// preview breaks where the paper does.
class PrintSurface {
 public:
  /// Starts with the letters of the body.
  PrintSurface(forms::DrawSurface& target, double printScale);

  double PrintScale() const { return printScale_; }

  void SetFontName(std::string name);
  /// points, PrintScale times the size on paper.
  void SetFontSize(double size);
  void SetBold(bool bold);
  void SetColor(forms::Color color);

  double X() const { return x_; }
  double Y() const { return y_; }
  void MoveTo(double x, double y);
  /// Moves to a column (from 1) of the body's letters, counted from the left edge of the page.
  void Tab(int column);

  /// Width of a text in the current font on paper, twips.
  double TextWidth(const std::string& text) const;

  /// Prints a text at the position and goes on to the beginning of the next line.
  void Print(const std::string& text);
  /// The same, but stays behind the text.
  void Write(const std::string& text);
  /// width: in device pixels of 15 twips, PrintScale times that on paper.
  void Line(double x1, double y1, double x2, double y2, double width);
  void Rectangle(double x1, double y1, double x2, double y2, double width);
  void FilledRectangle(double x1, double y1, double x2, double y2);

  /// Draws a picture of a sheet with its top left corner at (x, y), that wide; its height follows.
  void Draw(const forms::Picture& picture, double x, double y, double width);

 private:
  double PaperSize() const { return fontSize_ / printScale_; }
  void TellFont();

  forms::DrawSurface& target_;
  double printScale_;
  std::string fontName_ = kMincho;
  double fontSize_;
  bool bold_ = false;
  double x_ = 0;
  double y_ = 0;
};

/// Leaves a gap of a line of n points, and goes on with the body's letter size.
void PrintLineFeed(PrintSurface& target, double n);

}  // namespace shell
