#pragma once

#include "forms/presenter.h"
#include "shell/platform.h"

namespace headless {

/// What stands for the desktop in a script: no programs, and for a printer the PDF file that the
/// script has queued.
class ScriptPlatform : public shell::Platform {
 public:
  explicit ScriptPlatform(forms::Presenter& presenter) : presenter_(presenter) {}

  bool OpenWithDesktop(const std::string&) override { return false; }
  bool StartProgram(const std::string&, const std::vector<std::string>&) override { return false; }
  std::unique_ptr<shell::PrintJob> AskForPrinter() override;
  std::unique_ptr<shell::PrintJob> StartPdf(const std::string& path) override;
  void PrintImage(forms::Form& form) override;

 private:
  forms::Presenter& presenter_;
};

}  // namespace headless
