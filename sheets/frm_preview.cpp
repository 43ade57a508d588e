#include "sheets/frm_preview.h"

#include <algorithm>
#include <cmath>

#include "forms/placed_surface.h"
#include "shell/report.h"

namespace sheets {

namespace {

/// Fits a scroll bar to a page of which so much can be seen.
void Fit(forms::ScrollBar& bar, double page, double visible) {
  const int maximum = static_cast<int>(std::lround(std::max(0.0, page - visible)));
  bar.SetMaximum(maximum);
  bar.SetLargeChange(maximum / 5);
  bar.SetSmallChange(maximum / 5);
  bar.SetEnabled(maximum > 0);
}

}  // namespace

frmPreview::frmPreview(shell::Workspace& workspace)
    : Form(kName, "プレビュー", forms::FormRole::kDialog), workspace_(workspace) {
  picPage.onPaint = [this](forms::DrawSurface& surface) { PaintPage(surface); };
  picPage.onResize = [this] { picPage_Resize(); };
  picPage.onWheel = [this](int lines) {
    constexpr int kTwipsPerLine = 340;
    VScroll1.SetValue(VScroll1.Value() + lines * kTwipsPerLine);
  };
  VScroll1.onChange = [this] { picPage.Redraw(); };
  HScroll1.onChange = [this] { picPage.Redraw(); };
  cmdPrint.onClick = [this] { shell::PrintOnPrinter(workspace_); };
  cmdClose.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{picPage, VScroll1}, {HScroll1}})),
      forms::Buttons({{}, cmdPrint, cmdClose}),
  }));
}

void frmPreview::Load() {
  workspace_.printScale = shell::kPreviewScale;
  printScale_ = workspace_.printScale;
  shell::PrintSheet(workspace_, page_);
  picPage_Resize();
  SetFocus(VScroll1);
}

void frmPreview::Unload() { shell::PreviewClosed(workspace_); }

void frmPreview::picPage_Resize() {
  Fit(HScroll1, shell::kPageWidth, picPage.Width());
  Fit(VScroll1, shell::kPageHeight, picPage.Height());
  picPage.Redraw();
}

/// The page's letters are brought back to their size on paper, so that they stand in their columns
/// as they will there.
void frmPreview::PaintPage(forms::DrawSurface& surface) {
  const double spare = std::max(0.0, picPage.Width() - shell::kPageWidth);
  forms::PlacedSurface placed(surface, spare / 2 - HScroll1.Value(), -VScroll1.Value(), 1,
                              1 / static_cast<double>(printScale_));
  page_.Replay(placed);
}

}  // namespace sheets
