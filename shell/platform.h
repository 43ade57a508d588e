#pragma once

#include <memory>
#include <string>
#include <vector>

#include "shell/print_job.h"

namespace forms {
class Form;
}

namespace shell {

/// What the program asks of the desktop that it runs on.
class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  /// Opens a file with the program that the user has for its kind; false when there is none.
  virtual bool OpenWithDesktop(const std::string& path) = 0;
  /// Starts a program, by its path or by a name on the search path, and does not wait for it; false
  /// when it cannot be started.
  virtual bool StartProgram(const std::string& program,
                            const std::vector<std::string>& arguments) = 0;

  /// Asks for a printer, which may be a PDF file; null when the user cancels or when there is
  /// nothing to print on, of which he has been told.
  virtual std::unique_ptr<PrintJob> AskForPrinter() = 0;
  /// A PDF file; null when it cannot be written.
  virtual std::unique_ptr<PrintJob> StartPdf(const std::string& path) = 0;
  /// Asks for a printer and prints the form as it looks on the screen.
  virtual void PrintImage(forms::Form& form) = 0;
};

}  // namespace shell
