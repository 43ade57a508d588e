#include "sheets/frm_print_all.h"

#include <utility>

#include "shell/file_questions.h"
#include "shell/record_text.h"

namespace sheets {

frm一括印刷::frm一括印刷(shell::Workspace& workspace)
    : Form(kName, "一括印刷", forms::FormRole::kDialog), workspace_(workspace) {
  lstTag.onMark = [this] { ShowCount(); };
  cmd全選択.onClick = [this] { lstTag.MarkAll(true); };
  cmd全解除.onClick = [this] { lstTag.MarkAll(false); };
  cmdPDF.onClick = [this] { cmdPDF_Click(); };
  cmdPDF.SetToolTip("選択したタグを1件1ページで1つのPDFファイルに保存");
  cmd印刷.onClick = [this] { cmd印刷_Click(); };
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{forms::Cell(lstTag).Wide(48)}})),
      forms::Buttons({cmd全選択, cmd全解除, {}, lbl件数}),
      forms::Table({{prg進行}}),
      forms::Buttons({{}, cmdPDF, cmd印刷, cmdCancel}),
  }));
}

void frm一括印刷::Load() {
  {
    const Quiet quiet(*this);
    lstTag.SetItems(workspace_.tags.Lines());
    lstTag.MarkAll(true);
  }
  ShowCount();
  SetFocus(lstTag);
}

void frm一括印刷::Unload() {
  if (printer_) printer_->Abort();
  printer_.reset();
}

void frm一括印刷::ShowCount() {
  const int marked = lstTag.MarkedCount();
  lbl件数.SetText(std::to_string(marked) + " / " + std::to_string(lstTag.Count()) + " 件");
  cmdPDF.SetEnabled(marked > 0);
  cmd印刷.SetEnabled(marked > 0);
}

std::vector<int> frm一括印刷::MarkedRows() const {
  std::vector<int> rows;
  for (int line = 0; line < lstTag.Count(); ++line) {
    if (lstTag.Marked(line)) rows.push_back(line + 1);
  }
  return rows;
}

void frm一括印刷::cmdPDF_Click() {
  forms::FileQuestion question{true, "一括印刷", "PDF(*.pdf)|*.pdf", ".pdf"};
  if (const std::string& file = workspace_.tags.zephaFileName; !file.empty()) {
    question.name = shell::FileTitle(file) + ".pdf";
  }
  const std::optional<std::string> path = shell::AskForFile(workspace_, std::move(question));
  if (!path || workspace_.platform == nullptr) return;
  std::unique_ptr<shell::PrintJob> job = workspace_.platform->StartPdf(*path);
  if (!job) {
    workspace_.Shown().Show("ファイルに書き込めません。\n" + *path, "一括印刷",
                            common::Icon::kWarning);
    return;
  }
  Start(std::move(job));
}

void frm一括印刷::cmd印刷_Click() {
  if (workspace_.platform == nullptr) return;
  if (auto job = workspace_.platform->AskForPrinter()) Start(std::move(job));
}

void frm一括印刷::Start(std::unique_ptr<shell::PrintJob> job) {
  printer_ = std::make_unique<shell::TagPrinter>(workspace_, std::move(job), MarkedRows());
  prg進行.SetMaximum(printer_->Count());
  prg進行.SetValue(0);
  SetRunning(true);
  workspace_.Shown().RunSteps(*this, [this] { return Step(); });
}

/// While it prints, nothing but stopping can be done.
void frm一括印刷::SetRunning(bool running) {
  lstTag.SetEnabled(!running);
  for (forms::Button* button : {&cmd全選択, &cmd全解除, &cmdPDF, &cmd印刷}) {
    button->SetEnabled(!running);
  }
  cmdCancel.SetText(running ? "中止" : "閉じる");
  if (!running) ShowCount();
}

bool frm一括印刷::Step() {
  if (!printer_) return false;
  if (printer_->Next()) {
    prg進行.SetValue(printer_->Done());
    lbl件数.SetText(std::to_string(printer_->Done()) + " / " + std::to_string(printer_->Count()) +
                    " 件");
    return true;
  }
  End();
  return false;
}

void frm一括印刷::End() {
  const std::unique_ptr<shell::TagPrinter> printer = std::exchange(printer_, nullptr);
  const bool finished = printer->Finish();
  SetRunning(false);
  if (finished) {
    workspace_.Shown().Show(
        shell::PrintedText(*printer), "一括印刷",
        printer->Left().empty() ? common::Icon::kInformation : common::Icon::kWarning);
  } else {
    workspace_.Shown().Show("印刷できませんでした。プリンタまたは保存先を確認してください。",
                            "一括印刷", common::Icon::kWarning);
  }
}

void frm一括印刷::cmdCancel_Click() {
  if (!printer_) {
    workspace_.forms.Unload(*this);
    return;
  }
  const std::unique_ptr<shell::TagPrinter> printer = std::exchange(printer_, nullptr);
  printer->Abort();
  prg進行.SetValue(0);
  SetRunning(false);
  workspace_.Shown().Show("一括印刷を中止しました。", "一括印刷", common::Icon::kInformation);
}

}  // namespace sheets
