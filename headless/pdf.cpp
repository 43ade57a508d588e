// The one place of this program that knows the toolkit, for its fonts and its PDF writer.

#include "headless/pdf.h"

#include <QGuiApplication>
#include <cstdio>

#include "desktop/paper/document.h"

namespace headless {

namespace {

/// What the toolkit has to say about a desktop that is not there is no concern of a script.
void TellFailuresOnly(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) {
    std::fprintf(stderr, "zepha-headless: %s\n", qPrintable(text));
  }
}

void StartToolkit() {
  static int count = 1;
  static char name[] = "zepha-headless";
  static char* arguments[] = {name, nullptr};
  if (QGuiApplication::instance() != nullptr) return;
  qInstallMessageHandler(TellFailuresOnly);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication toolkit(count, arguments);
}

}  // namespace

std::unique_ptr<shell::PrintJob> StartPdf(const std::string& path) {
  StartToolkit();
  return desktop::StartPdf(path);
}

}  // namespace headless
