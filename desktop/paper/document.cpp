#include "desktop/paper/document.h"

#include <QFile>
#include <QMarginsF>
#include <QPdfWriter>
#include <utility>

namespace desktop {

namespace {

constexpr int kPdfResolution = 1200;
constexpr double kTwipsPerInch = 1440;

}  // namespace

PagedDocument::PagedDocument(std::unique_ptr<QPagedPaintDevice> device, double unitsPerTwip,
                             std::string path)
    : device_(std::move(device)), unitsPerTwip_(unitsPerTwip), path_(std::move(path)) {}

PagedDocument::~PagedDocument() { EndDrawing(); }

bool PagedDocument::Begin() {
  failed_ = !painter_.begin(device_.get());
  return !failed_;
}

forms::DrawSurface& PagedDocument::NewPage() {
  const bool first = !surface_;
  surface_.reset();
  if (!first && !device_->newPage()) failed_ = true;
  return surface_.emplace(painter_, unitsPerTwip_);
}

bool PagedDocument::Finish() { return EndDrawing(); }

bool PagedDocument::EndDrawing() {
  surface_.reset();
  if (painter_.isActive() && !painter_.end()) failed_ = true;
  return !failed_;
}

void PagedDocument::Abort() {
  Finish();
  if (!path_.empty()) QFile::remove(QString::fromStdString(path_));
}

namespace {

/// A PDF file, whose disk may fill up while it is written.
class PdfDocument : public PagedDocument {
 public:
  /// file: what the writer writes to and owns.
  PdfDocument(QFile& file, std::unique_ptr<QPdfWriter> writer, const std::string& path)
      : PagedDocument(std::move(writer), kPdfResolution / kTwipsPerInch, path), file_(file) {}
  ~PdfDocument() override { EndDrawing(); }

  bool Finish() override {
    const bool drawn = EndDrawing();
    const bool flushed = !file_.isOpen() || file_.flush();
    const bool written = drawn && flushed && file_.error() == QFileDevice::NoError;
    file_.close();
    return written && file_.error() == QFileDevice::NoError;
  }

 private:
  QFile& file_;
};

}  // namespace

std::unique_ptr<shell::PrintJob> StartPdf(const std::string& path) {
  auto file = std::make_unique<QFile>(QString::fromStdString(path));
  if (!file->open(QIODevice::WriteOnly)) return nullptr;
  auto writer = std::make_unique<QPdfWriter>(file.get());
  QFile& output = *file.release();
  output.setParent(writer.get());
  writer->setPageSize(QPageSize(QPageSize::A4));
  writer->setPageOrientation(QPageLayout::Portrait);
  writer->setPageMargins(QMarginsF());
  writer->setResolution(kPdfResolution);
  writer->setCreator(QStringLiteral("ZEPHA"));
  auto document = std::make_unique<PdfDocument>(output, std::move(writer), path);
  if (!document->Begin()) return nullptr;
  return document;
}

}  // namespace desktop
