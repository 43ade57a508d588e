#include "desktop/application.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QProxyStyle>
#include <QTranslator>
#include <clocale>

#include "desktop/icons.h"
#include "desktop/theme.h"

namespace desktop {

namespace {

/// The plain style of Qt with the window buttons of maximised sheets in our own lines, which stay
/// visible on a dark menu bar.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStringLiteral("Fusion")) {}

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override {
    const char* const name = OwnName(which);
    return name != nullptr ? IconNamed(name) : QProxyStyle::standardIcon(which, option, widget);
  }

  QPixmap standardPixmap(StandardPixmap which, const QStyleOption* option,
                         const QWidget* widget) const override {
    constexpr int kSize = 16;
    const char* const name = OwnName(which);
    return name != nullptr ? IconNamed(name).pixmap(kSize)
                           : QProxyStyle::standardPixmap(which, option, widget);
  }

 private:
  static const char* OwnName(StandardPixmap which) {
    switch (which) {
      case SP_TitleBarMinButton:
        return "window-minimize";
      case SP_TitleBarNormalButton:
        return "window-restore";
      case SP_TitleBarCloseButton:
        return "window-close";
      default:
        return nullptr;
    }
  }
};

}  // namespace

void PrepareApplication(QApplication& application) {
  std::setlocale(LC_NUMERIC, "C");
  const Theme& theme = Theme::Current();
  // The application owns its style, which the analyzer cannot see.
  QApplication::setStyle(new Style);
  QApplication::setPalette(PaletteOf(theme));  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
  QApplication::setFont(UiFont(kBaseLetterPixels));
  QApplication::setApplicationName(QStringLiteral("ZEPHA"));
  QApplication::setWindowIcon(IconNamed("app"));
  auto* const words = new QTranslator(&application);
  if (words->load(QStringLiteral("qtbase_ja"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(words);
  }
}

}  // namespace desktop
