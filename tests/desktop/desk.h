#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <string>
#include <vector>

#include "desktop/form_view.h"
#include "desktop/main_window.h"
#include "desktop/presenter.h"
#include "sheets/frm_orifice.h"
#include "sheets/workbench.h"

namespace desktop {

/// The presenter of the tests: real windows, but messages and files are answered at once and the
/// messages recorded.
class RecordingPresenter : public QtPresenter {
 public:
  common::Answer Present(const common::Message& message) override {
    messages.push_back(message.text);
    return common::Answer::kOk;
  }
  void Beep() override { ++beeps; }
  std::optional<std::string> AskFile(const forms::FileQuestion&) override { return file; }

  std::vector<std::string> messages;
  std::string file;
  int beeps = 0;
};

/// One control of each kind that the sheet of the tests lacks.
struct DemoDialog : forms::Form {
  DemoDialog() : Form("frmDemoDialog", "種々のコントロール", forms::FormRole::kDialog) {
    tab種類.SetItems({"液体", "気体 & 蒸気"});
    tab種類.SetIndex(0);
    lst流体.SetItems({" 水", " メタノール", " ベンゼン"});
    grd一覧.SetRows({{"25", "0.31", "標準"}, {"40", "0.85", ""}, {"50", "1.32", "要確認"}});
    SetLayout(forms::Column(
        {forms::Table({{tab種類}}),
         forms::Group(fra条件, forms::Row({forms::Table({{lst流体}}),
                                           forms::Stretched(forms::Table({{grd一覧}}))})),
         forms::Table(
             {{"名称", cbo名称}, {"倍率", hsb倍率}, {"進行", prg進行}, {chkドレン, lbl結果}}),
         forms::Buttons({forms::Cell(), cmdOK, cmdCancel})}));
  }

  forms::TabStrip tab種類{*this, "tab種類"};
  forms::ListBox lst流体{*this, "lst流体", 6};
  forms::Grid grd一覧{*this, "grd一覧", {{"呼称径", 1200}, {"下限", 1500}, {"備考", 2400, false}}};
  forms::ScrollBar hsb倍率{*this, "hsb倍率", forms::ScrollBar::Direction::kHorizontal, 100};
  forms::ProgressBar prg進行{*this, "prg進行"};
  forms::Frame fra条件{*this, "fra条件", "条件"};
  forms::ComboBox cbo名称{*this, "cbo名称", {"水", "空気"}, forms::ComboBox::Style::kEditable};
  forms::CheckBox chkドレン{*this, "chkドレン", "ドレン孔を設ける"};
  forms::ResultLabel lbl結果{*this, "lbl結果"};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};
};

/// Turns the mouse wheel by a notch, downwards, over the middle of a widget.
inline void Wheel(QWidget& widget) {
  const QPointF middle = widget.rect().center();
  QWheelEvent event(middle, widget.mapToGlobal(middle), {0, 0}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

/// The workbench in its main window, as the program has it.
class Desk : public testing::Test {
 protected:
  Desk() {
    presenter_.Attach(*window_, forms_);
    forms_.Provide("frmDemoDialog", [] { return std::make_unique<DemoDialog>(); });
    bench_.Start();
    window_->show();
  }
  ~Desk() override { presenter_.CloseAll(); }

  sheets::frmOrifice& ShowSheet() {
    auto& sheet = dynamic_cast<sheets::frmOrifice&>(forms_.Show("frmOrifice"));
    QApplication::setActiveWindow(window_.get());
    QApplication::processEvents();
    return sheet;
  }

  DemoDialog& ShowDialog() {
    auto& dialog = dynamic_cast<DemoDialog&>(forms_.Show("frmDemoDialog"));
    QApplication::processEvents();
    return dialog;
  }

  /// The widget of that object name, the control's own, in an open form.
  template <class Widget>
  Widget& Find(const forms::Form& form, const char* name) {
    auto* const widget = presenter_.ViewOf(form)->findChild<Widget*>(QString::fromUtf8(name));
    if (widget == nullptr) throw std::logic_error(name);
    return *widget;
  }

  RecordingPresenter presenter_;
  shell::MemorySettings settings_;
  sheets::Workbench bench_{presenter_, ZEPHA_BUILD_DIR, settings_};
  shell::FormManager& forms_ = bench_.Forms();
  shell::MainWindow& commands_ = bench_.Window();
  std::unique_ptr<MainWindow> window_ = std::make_unique<MainWindow>(commands_);
};

}  // namespace desktop
