#pragma once

#include "shell/platform.h"

namespace desktop {

class QtPresenter;

/// The desktop that Qt knows: files open with the user's programs, programs start on their own,
/// pages go to the system's printers.
class QtPlatform : public shell::Platform {
 public:
  /// presenter: in front of whose windows the dialogues stand.
  explicit QtPlatform(QtPresenter& presenter) : presenter_(presenter) {}

  bool OpenWithDesktop(const std::string& path) override;
  bool StartProgram(const std::string& program, const std::vector<std::string>& arguments) override;
  std::unique_ptr<shell::PrintJob> AskForPrinter() override;
  std::unique_ptr<shell::PrintJob> StartPdf(const std::string& path) override;
  void PrintImage(forms::Form& form) override;

 private:
  QtPresenter& presenter_;
};

}  // namespace desktop
