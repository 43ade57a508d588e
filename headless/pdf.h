#pragma once

#include <memory>
#include <string>

#include "shell/print_job.h"

namespace headless {

/// A PDF file; null when it cannot be written. The toolkit's fonts and its PDF writer are started
/// for the first one and end with the program; no display is needed.
std::unique_ptr<shell::PrintJob> StartPdf(const std::string& path);

}  // namespace headless
