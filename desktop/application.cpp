#include "desktop/application.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <clocale>

#include "desktop/icons.h"
#include "desktop/theme.h"

namespace desktop {

void PrepareApplication(QApplication& application) {
  std::setlocale(LC_NUMERIC, "C");
  const Theme& theme = Theme::Current();
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setPalette(PaletteOf(theme));
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
