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

/// The plain style of Qt with our own lines for the window buttons of maximised sheets, which stay
/// visible on a dark menu bar, and for the signs of message boxes.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStringLiteral("Fusion")) {}

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override {
    const QIcon own = OwnIcon(which);
    return own.isNull() ? QProxyStyle::standardIcon(which, option, widget) : own;
  }

  QPixmap standardPixmap(StandardPixmap which, const QStyleOption* option,
                         const QWidget* widget) const override {
    constexpr int kSize = 16;
    const QIcon own = OwnIcon(which);
    return own.isNull() ? QProxyStyle::standardPixmap(which, option, widget) : own.pixmap(kSize);
  }

 private:
  static QIcon OwnIcon(StandardPixmap which) {
    const Theme& theme = Theme::Current();
    switch (which) {
      case SP_TitleBarMinButton:
        return IconNamed("window-minimize");
      case SP_TitleBarNormalButton:
        return IconNamed("window-restore");
      case SP_TitleBarCloseButton:
        return IconNamed("window-close");
      case SP_ToolBarHorizontalExtensionButton:
        return IconNamed("more");
      case SP_MessageBoxInformation:
        return IconNamed("message-information", theme.accent);
      case SP_MessageBoxQuestion:
        return IconNamed("message-question", theme.accent);
      case SP_MessageBoxWarning:
        return IconNamed("message-warning", theme.warning);
      case SP_MessageBoxCritical:
        return IconNamed("message-critical", theme.critical);
      default:
        return {};
    }
  }
};

}  // namespace

void PrepareApplication(QApplication& application) {
  std::setlocale(LC_NUMERIC, "C");
  const Theme& theme = Theme::Current();
  QApplication::setStyle(new Style);
  QApplication::setPalette(PaletteOf(theme));
  QApplication::setFont(UiFont(kBaseLetterPixels));
  QApplication::setApplicationName(QStringLiteral("ZEPHA"));
  QGuiApplication::setDesktopFileName(QStringLiteral("zepha"));
  QApplication::setWindowIcon(IconNamed("app"));
  auto* const words = new QTranslator(&application);
  if (words->load(QStringLiteral("qtbase_ja"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(words);
  }
}

}  // namespace desktop
