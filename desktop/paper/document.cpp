#include "desktop/paper/document.h"

#include <QBuffer>
#include <QFileInfo>
#include <QMarginsF>
#include <QPdfWriter>
#include <utility>

#include "common/fault.h"
#include "common/file.h"

namespace desktop {

namespace {

constexpr int kPdfResolution = 1200;

}  // namespace

PagedDocument::PagedDocument(std::unique_ptr<QPagedPaintDevice> device, double unitsPerTwip)
    : device_(std::move(device)), unitsPerTwip_(unitsPerTwip) {}

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

void PagedDocument::Abort() { EndDrawing(); }

bool PagedDocument::EndDrawing() {
  surface_.reset();
  if (painter_.isActive() && !painter_.end()) failed_ = true;
  return !failed_;
}

namespace {

/// A PDF file. It is made whole in memory: the writer of the toolkit goes on when its disk is full,
/// and forgets that it was.
class PdfDocument : public PagedDocument {
 public:
  /// buffer: what the writer writes to and owns.
  PdfDocument(const QBuffer& buffer, std::unique_ptr<QPdfWriter> writer, std::string path)
      : PagedDocument(std::move(writer), kPdfResolution / kTwipsPerInch),
        buffer_(buffer),
        path_(std::move(path)) {}
  ~PdfDocument() override { EndDrawing(); }

  bool Finish() override {
    if (!EndDrawing()) return false;
    try {
      common::WriteFile(path_, buffer_.data().toStdString());
    } catch (const common::RuntimeFault&) {
      return false;
    }
    return true;
  }

 private:
  const QBuffer& buffer_;
  std::string path_;
};

/// Whether a file may be written as far as can be told before all pages are drawn.
bool MayBeWritten(const QFileInfo& file) {
  if (file.exists()) return !file.isDir() && file.isWritable();
  const QFileInfo folder(file.absolutePath());
  return folder.isDir() && folder.isWritable();
}

}  // namespace

std::unique_ptr<PagedDocument> StartPdf(const std::string& path) {
  if (!MayBeWritten(QFileInfo(QString::fromStdString(path)))) return nullptr;
  auto buffer = std::make_unique<QBuffer>();
  if (!buffer->open(QIODevice::WriteOnly)) return nullptr;
  auto writer = std::make_unique<QPdfWriter>(buffer.get());
  QBuffer& output = *buffer.release();
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
