#pragma once

#include "forms/controls.h"
#include "shell/page_recorder.h"
#include "shell/workspace.h"

namespace sheets {

/// The page of the sheet on top as the paper will be, with scroll bars.
class frmPreview : public forms::Form {
 public:
  static constexpr const char* kName = "frmPreview";

  forms::Viewport picPage{*this, "picPage", kPreferredWidth, kPreferredHeight};
  forms::ScrollBar VScroll1{*this, "VScroll1", forms::ScrollBar::Direction::kVertical, 0};
  forms::ScrollBar HScroll1{*this, "HScroll1", forms::ScrollBar::Direction::kHorizontal, 0};
  forms::Button cmdPrint{*this, "cmdPrint", "印刷"};
  forms::Button cmdClose{*this, "cmdClose", "閉じる", forms::ButtonRole::kCancel};

  explicit frmPreview(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;

 private:
  /// The width of the paper, and as much of its height as fits on a small screen.
  static constexpr double kPreferredWidth = shell::kPageWidth;
  static constexpr double kPreferredHeight = 9000;

  void picPage_Resize();
  void PaintPage(forms::DrawSurface& surface);

  shell::Workspace& workspace_;
  shell::PageRecorder page_;
  /// Letters and lines of the page were asked for so much smaller than on paper.
  float printScale_ = shell::kPreviewScale;
};

}  // namespace sheets
