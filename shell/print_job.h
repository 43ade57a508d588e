#pragma once

#include <memory>
#include <string>

#include "forms/draw_surface.h"

namespace shell {

/// A document on its way to a printer or into a PDF file, A4 upright. It ends when it is destroyed.
class PrintJob {
 public:
  PrintJob() = default;
  PrintJob(const PrintJob&) = delete;
  PrintJob& operator=(const PrintJob&) = delete;
  virtual ~PrintJob() = default;

  /// Begins a page, in twips from the corner of the paper; the surface lives until the next one.
  virtual forms::DrawSurface& NewPage() = 0;
  /// Ends the document: false when it could not be printed or written whole.
  virtual bool Finish() = 0;
  /// Gives the document up; what has been sent or written of it goes, where that is possible.
  virtual void Abort() = 0;
};

}  // namespace shell
