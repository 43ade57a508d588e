#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <memory>
#include <optional>
#include <string>

#include "desktop/paper/draw_surface.h"
#include "shell/print_job.h"

namespace desktop {

/// A document on any paged device of the toolkit.
class PagedDocument : public shell::PrintJob {
 public:
  /// unitsPerTwip: resolution / kTwipsPerInch.
  PagedDocument(std::unique_ptr<QPagedPaintDevice> device, double unitsPerTwip);
  ~PagedDocument() override;

  /// Whether the device takes drawings at all.
  bool Begin();
  forms::DrawSurface& NewPage() override;
  bool Finish() override;
  void Abort() override;
  /// For a page that is no sheet's.
  QPainter& Painter() { return painter_; }

 protected:
  QPagedPaintDevice& Device() const { return *device_; }
  /// False when a page could not be drawn.
  bool EndDrawing();

 private:
  std::unique_ptr<QPagedPaintDevice> device_;
  double unitsPerTwip_;
  QPainter painter_;
  std::optional<QtDrawSurface> surface_;
  bool failed_ = false;
};

/// A PDF file of A4 pages; null when it cannot be written. An existing file is replaced at the end.
std::unique_ptr<PagedDocument> StartPdf(const std::string& path);

}  // namespace desktop
