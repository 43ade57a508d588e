#include "desktop/theme.h"

#include <QApplication>
#include <QFile>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr double kReadableContrast = 4.5;
/// Of a ground on which white letters are read as well as black ones.
constexpr double kMiddleLuminance = 0.18;

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

/// The text of a style sheet with its "@name" marks replaced.
QString FillIn(QString sheet, const Theme& theme) {
  const std::pair<const char*, QColor> colors[] = {{"@window", theme.window},
                                                   {"@card", theme.card},
                                                   {"@fieldBorder", theme.fieldBorder},
                                                   {"@fieldOff", theme.fieldOff},
                                                   {"@field", theme.field},
                                                   {"@resultBorder", theme.resultBorder},
                                                   {"@result", theme.result},
                                                   {"@border", theme.border},
                                                   {"@text", theme.text},
                                                   {"@caption", theme.caption},
                                                   {"@faint", theme.faint},
                                                   {"@accent", theme.accent},
                                                   {"@onAccent", theme.onAccent},
                                                   {"@hover", theme.hover}};
  for (const auto& [mark, color] : colors) sheet.replace(QLatin1String(mark), color.name());
  return sheet.replace(QLatin1String("@shade"), QLatin1String(theme.dark ? "dark" : "light"));
}

QString ReadSheet(const char* path) {
  QFile file(QString::fromLatin1(path));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

const Theme& Theme::Light() {
  static const Theme theme{
      .dark = false,
      .window = "#eef1f4",
      .card = "#ffffff",
      .border = "#d5dce3",
      .field = "#ffffff",
      .fieldBorder = "#a9b5c1",
      .fieldOff = "#edf0f3",
      .text = "#18212b",
      .caption = "#41505e",
      .faint = "#5f6d7a",
      .result = "#e9f2f4",
      .resultBorder = "#bfd5da",
      .accent = "#0b6478",
      .onAccent = "#ffffff",
      .hover = "#e2edf0",
      .warning = "#a86200",
      .critical = "#b8262c",
  };
  return theme;
}

const Theme& Theme::Dark() {
  static const Theme theme{
      .dark = true,
      .window = "#1a1f24",
      .card = "#232a31",
      .border = "#39434d",
      .field = "#161b20",
      .fieldBorder = "#566472",
      .fieldOff = "#29313a",
      .text = "#e8edf1",
      .caption = "#b7c3cd",
      .faint = "#93a1ad",
      .result = "#1d333a",
      .resultBorder = "#33545d",
      .accent = "#5cc0d6",
      .onAccent = "#0d1b20",
      .hover = "#2c3a43",
      .warning = "#f0b24a",
      .critical = "#ff8178",
  };
  return theme;
}

const Theme& Theme::Of(const QPalette& palette) {
  constexpr int kMiddle = 128;
  return palette.color(QPalette::Window).lightness() < kMiddle ? Dark() : Light();
}

const Theme& Theme::Current() { return Of(QApplication::palette()); }

QPalette PaletteOf(const Theme& theme) {
  QPalette palette(theme.window);
  palette.setColor(QPalette::Window, theme.window);
  palette.setColor(QPalette::WindowText, theme.text);
  palette.setColor(QPalette::Base, theme.field);
  palette.setColor(QPalette::AlternateBase, theme.card);
  palette.setColor(QPalette::Text, theme.text);
  palette.setColor(QPalette::Button, theme.dark ? theme.hover : theme.card);
  palette.setColor(QPalette::ButtonText, theme.text);
  palette.setColor(QPalette::ToolTipBase, theme.card);
  palette.setColor(QPalette::ToolTipText, theme.text);
  palette.setColor(QPalette::PlaceholderText, theme.faint);
  palette.setColor(QPalette::Highlight, theme.accent);
  palette.setColor(QPalette::HighlightedText, theme.onAccent);
  palette.setColor(QPalette::Link, theme.accent);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, theme.faint);
  }
  return palette;
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Ink(forms::Color color, const Theme& theme, const QColor& ground) {
  if (color == forms::kBlack || color < 0) {
    if (Contrast(theme.text, ground) >= kReadableContrast) return theme.text;
    return (theme.dark ? Theme::Light() : Theme::Dark()).text;
  }
  QColor ink = PaperColor(color);
  const float step = Luminance(ground) < kMiddleLuminance ? 0.02F : -0.02F;
  while (Contrast(ink, ground) < kReadableContrast) {
    const QColor hsl = ink.toHsl();
    const float lightness = hsl.lightnessF() + step;
    if (lightness < 0.0F || lightness > 1.0F) return step > 0 ? Qt::white : Qt::black;
    ink = QColor::fromHslF(std::max(hsl.hslHueF(), 0.0F), hsl.hslSaturationF(), lightness);
  }
  return ink;
}

QColor Ground(forms::Color color, const Theme& theme) {
  if (color == forms::kWhite) return theme.field;
  if (color < 0) return theme.fieldOff;
  if (color == forms::kUnsaved) return {"#ffd98a"};
  if (color == forms::kDoubtful) return {theme.dark ? "#7a3340" : "#ffc8c8"};
  return PaperColor(color);
}

QFont UiFont(int pixels) {
  QFont font(UiFamily());
  font.setPixelSize(pixels);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QFont FixedFont(int pixels) {
  QFont font(FixedFamily());
  font.setPixelSize(pixels);
  font.setStyleHint(QFont::TypeWriter);
  // Advances rounded to whole pixels would make two half-width letters wider than a full-width one.
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

int FixedWidth(const QFont& font, int columns) {
  const QString line(columns, QLatin1Char('0'));
  return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(line)));
}

QString FormStyle(const Theme& theme, int letterPixels) {
  static const QString sheet = ReadSheet(":/style/form.qss");
  QString text = sheet;
  const std::pair<const char*, double> sizes[] = {
      {"@headingPx", 1.35},  {"@linePx", 1.36},   {"@hairPx", 0.12}, {"@rowPx", 1.7},
      {"@barPx", 0.9},       {"@titlePx", 1.0},   {"@notePx", 0.92}, {"@letterPx", 1.0},
      {"@padPx", 0.38},      {"@thinPadPx", 0.2}, {"@roundPx", 0.3}, {"@cardRoundPx", 0.5},
      {"@buttonPadPx", 1.2}, {"@dropPx", 1.5},    {"@arrowPx", 0.8}, {"@markPx", 1.08}};
  // The frame of the focus takes a pixel of the padding, so that nothing moves.
  const std::pair<const char*, double> besideFocus[] = {
      {"@focusPadPx", 0.38}, {"@focusThinPadPx", 0.2}, {"@focusButtonPadPx", 1.2}};
  const auto fill = [&](const char* mark, double share, int less) {
    const int pixels = std::max(1, static_cast<int>(std::lround(letterPixels * share))) - less;
    text.replace(QLatin1String(mark), QString::number(pixels) + QLatin1String("px"));
  };
  for (const auto& [mark, share] : besideFocus) fill(mark, share, 1);
  for (const auto& [mark, share] : sizes) fill(mark, share, 0);
  return FillIn(text, theme);
}

QString WindowStyle(const Theme& theme) {
  static const QString sheet = ReadSheet(":/style/window.qss");
  return FillIn(sheet, theme);
}

}  // namespace desktop
