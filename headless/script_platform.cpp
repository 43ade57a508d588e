#include "headless/script_platform.h"

#include "headless/pdf.h"

namespace headless {

std::unique_ptr<shell::PrintJob> ScriptPlatform::AskForPrinter() {
  const std::optional<std::string> path =
      presenter_.AskFile({true, "印刷", "PDF(*.pdf)|*.pdf", ".pdf"});
  if (!path) return nullptr;
  std::unique_ptr<shell::PrintJob> job = StartPdf(*path);
  if (!job) {
    presenter_.Show("ファイルに書き込めません。\n" + *path, "印刷", common::Icon::kWarning);
  }
  return job;
}

std::unique_ptr<shell::PrintJob> ScriptPlatform::StartPdf(const std::string& path) {
  return headless::StartPdf(path);
}

void ScriptPlatform::PrintImage(forms::Form&) {
  presenter_.Show("画面がないため、ハードコピーはできません。", "印刷", common::Icon::kWarning);
}

}  // namespace headless
