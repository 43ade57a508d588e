#include "desktop/platform.h"

#include <unistd.h>

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "desktop/form_view.h"
#include "desktop/paper/document.h"
#include "desktop/presenter.h"
#include "forms/form.h"

namespace desktop {

namespace {

void UseWholeA4(QPrinter& printer) {
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(QPageLayout::Portrait);
  printer.setFullPage(true);
}

/// A printer that the user has chosen, which may be a file; null when he cancelled.
std::unique_ptr<QPrinter> ChoosePrinter(QtPresenter& presenter) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setCreator(QStringLiteral("ZEPHA"));
  UseWholeA4(*printer);
  QPrintDialog dialog(printer.get(), QApplication::activeWindow());
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (presenter.Wait(dialog) != QDialog::Accepted) return nullptr;
  // The pages are made for A4, whatever the dialogue says.
  UseWholeA4(*printer);
  return printer;
}

/// A document that the system's printing takes.
class PrinterDocument : public PagedDocument {
 public:
  PrinterDocument(std::unique_ptr<QPrinter> printer, double unitsPerTwip)
      : PagedDocument(std::move(printer), unitsPerTwip) {}

  bool Finish() override {
    const bool finished = EndDrawing();
    return finished && Printer().printerState() != QPrinter::Error;
  }
  void Abort() override {
    Printer().abort();
    PagedDocument::Abort();
  }

 private:
  QPrinter& Printer() const { return static_cast<QPrinter&>(Device()); }
};

/// The document of a chosen printer or file, begun; null when it cannot be, which the user has been
/// told, or when there is no printer.
std::unique_ptr<PagedDocument> StartDocument(std::unique_ptr<QPrinter> printer,
                                             QtPresenter& presenter) {
  if (!printer) return nullptr;
  if (const QString path = printer->outputFileName(); !path.isEmpty()) {
    if (std::unique_ptr<PagedDocument> file = StartPdf(path.toStdString())) return file;
  } else {
    const double unitsPerTwip = printer->resolution() / kTwipsPerInch;
    auto document = std::make_unique<PrinterDocument>(std::move(printer), unitsPerTwip);
    if (document->Begin()) return document;
  }
  presenter.Show("印刷を開始できません。プリンタまたは保存先を確認してください。", "印刷",
                 common::Icon::kWarning);
  return nullptr;
}

/// Whether the opener of the desktop has a program for a file. Its exit status tells; the toolkit
/// would start it and take that for success. One that is still at it has found one.
bool OpenedBy(const QString& opener, const QString& path) {
  constexpr int kPatience = 2000;  // ms
  // It may outlive this program, so nobody owns it who would end it.
  auto* const process = new QProcess;
  QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->setChildProcessModifier([] { setsid(); });
  process->start(opener, {path});
  if (!process->waitForStarted()) {
    delete process;
    return false;
  }
  if (!process->waitForFinished(kPatience)) return true;
  return process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
}

}  // namespace

bool QtPlatform::OpenWithDesktop(const std::string& path) {
  const QFileInfo file(QString::fromStdString(path));
  // Without this look the user's program would be started and complain in words of its own.
  if (path.empty() || !file.exists()) return false;
  const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
  if (!opener.isEmpty()) return OpenedBy(opener, file.absoluteFilePath());
  return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

bool QtPlatform::StartProgram(const std::string& program,
                              const std::vector<std::string>& arguments) {
  if (program.empty()) return false;
  QStringList words;
  for (const std::string& argument : arguments) words.append(QString::fromStdString(argument));
  return QProcess::startDetached(QString::fromStdString(program), words);
}

std::unique_ptr<shell::PrintJob> QtPlatform::AskForPrinter() {
  return StartDocument(ChoosePrinter(presenter_), presenter_);
}

std::unique_ptr<shell::PrintJob> QtPlatform::StartPdf(const std::string& path) {
  return desktop::StartPdf(path);
}

/// The form's window, as wide as the paper, at its top.
void QtPlatform::PrintImage(forms::Form& form) {
  FormView* const view = presenter_.ViewOf(form);
  if (view == nullptr) return;
  // Before the dialogue hides a part of it.
  const QPixmap image = view->grab();
  const std::unique_ptr<PagedDocument> document =
      StartDocument(ChoosePrinter(presenter_), presenter_);
  if (!document) return;
  QPainter& painter = document->Painter();
  const double width = painter.device()->width();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(QRectF(0, 0, width, width * image.height() / image.width()), image,
                     image.rect());
  if (document->Finish()) return;
  presenter_.Show("印刷できませんでした。プリンタまたは保存先を確認してください。", "印刷",
                  common::Icon::kWarning);
}

}  // namespace desktop
