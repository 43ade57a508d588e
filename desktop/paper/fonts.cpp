#include "desktop/paper/fonts.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <array>

#include "shell/print_surface.h"

namespace desktop {

namespace {

QString FirstInstalled(const std::array<const char*, 5>& families) {
  for (const char* family : families) {
    if (QFontDatabase::hasFamily(QString::fromUtf8(family))) return QString::fromUtf8(family);
  }
  return QGuiApplication::font().family();
}

}  // namespace

QString UiFamily() {
  static const QString family = FirstInstalled(
      {"Noto Sans CJK JP", "Noto Sans JP", "IPAexGothic", "IPAPGothic", "IPAGothic"});
  return family;
}

QString FixedFamily() {
  static const QString family = FirstInstalled(
      {"IPAGothic", "IPA Gothic", "Noto Sans Mono CJK JP", "TakaoGothic", "IPAexGothic"});
  return family;
}

QString PaperFamily(const std::string& name) {
  static const QString mincho = FirstInstalled(
      {"IPAMincho", "IPA Mincho", "TakaoMincho", "Noto Serif CJK JP", "IPAexMincho"});
  if (name == shell::kMincho) return mincho;
  if (name.empty() || name == shell::kGothic) return FixedFamily();
  return QString::fromStdString(name);
}

QColor PaperColor(forms::Color color) {
  return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

}  // namespace desktop
