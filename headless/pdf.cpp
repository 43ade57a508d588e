// The one place of this program that knows the toolkit, for its fonts and its PDF writer.

#include "headless/pdf.h"

#include <QGuiApplication>

#include "desktop/paper/document.h"

namespace headless {

namespace {

void StartToolkit() {
  static int count = 1;
  static char name[] = "zepha-headless";
  static char* arguments[] = {name, nullptr};
  if (QGuiApplication::instance() != nullptr) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication toolkit(count, arguments);
}

}  // namespace

std::unique_ptr<shell::PrintJob> StartPdf(const std::string& path) {
  StartToolkit();
  return desktop::StartPdf(path);
}

}  // namespace headless
