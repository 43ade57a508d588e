#include "sheets/frm_cv.h"
#include "sheets/frm_cv_correction.h"
#include "sheets/frm_rating.h"
#include "shell/sheet.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

/// A valve sheet whose last sizing was corrected in any way that a test wants to see.
struct CorrectedSheet : shell::Sheet, CorrectionSource {
  explicit CorrectedSheet(shell::Workspace& workspace) : Sheet(workspace, "CV", "弁") {}
  valve::CorrectionDetail Correction() const override { return detail; }
  valve::CorrectionDetail detail;
};

class ValveDialogues : public SheetTest {
 protected:
  void OpenSheet() { sheet = &dynamic_cast<frmCV&>(bench.Forms().Show("frmCV")); }
  bool IsOpen(const char* name) { return bench.Forms().Find(name) != nullptr; }

  /// Opens the detail form on this detail and tells the result labels in order; a hidden one is
  /// "-".
  Texts Shown(const char* form, const valve::CorrectionDetail& detail) {
    bench.Forms().Provide("frmCV",
                          [this] { return std::make_unique<CorrectedSheet>(bench.Space()); });
    dynamic_cast<CorrectedSheet&>(bench.Forms().Show("frmCV")).detail = detail;
    bench.Forms().Show(form);
    Texts texts;
    for (const forms::Control* control : bench.Forms().Active()->TabOrder()) {
      const auto* const label = dynamic_cast<const forms::Label*>(control);
      if (label == nullptr || label->Style() != forms::LabelStyle::kResult) continue;
      texts.push_back(label->Visible() ? label->Text() : "-");
    }
    Click("cmdOK");
    EXPECT_FALSE(IsOpen(form));
    return texts;
  }

  frmCV* sheet = nullptr;
};

// Bores: inside diameters of ASME B16.34, table A-1; JIS 10K 4 inch is 100A.
TEST_F(ValveDialogues, RatingGivesTheBoreOfTheBody) {
  const struct {
    int size;
    const char* rating;
    const char* bore;
  } rows[] = {{8, " JPI 300#", "50.8"}, {15, " JPI 600#", "199.9"}, {12, " JIS 10K", "100"}};
  OpenSheet();
  for (const auto& row : rows) {
    sheet->cboBodySize.Pick(row.size);
    DblClick("txt弁口径");
    Pick("lstRating", Find<forms::ListBox>("lstRating").IndexOf(row.rating));
    DblClick("lstRating");
    EXPECT_FALSE(IsOpen(frmRating::kName));
    EXPECT_EQ(sheet->txt弁口径.Text(), row.bore);
    bench.Forms().CollectClosed();
  }
  DblClick("txt弁口径");
  EXPECT_EQ(Text("lstRating"), " JIS 10K");  // the last choice
  Find<forms::ListBox>("lstRating").PressEnter();
  EXPECT_FALSE(IsOpen(frmRating::kName));
  EXPECT_EQ(TakeTexts(), Texts{});
}

TEST_F(ValveDialogues, RatingRefusesWhatTheTableLacks) {
  const Texts unknownSize = {"指定の弁サイズはﾃﾞｰﾀﾍﾞｰｽに登録されていません。"};
  OpenSheet();
  DblClick("txt弁口径");
  EXPECT_EQ(TakeTexts(), unknownSize);
  EXPECT_FALSE(IsOpen(frmRating::kName));
  sheet->cboBodySize.Pick(0);  // 1/8 inch has no flange
  DblClick("txt弁口径");
  EXPECT_EQ(Find<forms::ListBox>("lstRating").Count(), 16);
  Click("cmdOK");
  EXPECT_EQ(presenter.messages.shown.back().icon, common::Icon::kWarning);
  EXPECT_EQ(TakeTexts(), Texts{"フランジ規格が選択されていません。"});
  Pick("lstRating", 2);
  Click("cmdOK");
  EXPECT_EQ(presenter.messages.shown.back().title, "調節弁口径");
  EXPECT_EQ(TakeTexts(), unknownSize);
  Click("cmdCancel");
  EXPECT_EQ(sheet->txt弁口径.Text() + sheet->FlangeRating(), "");
}

TEST_F(ValveDialogues, DetailOfAMicroFlowValveBy本山) {
  valve::CorrectionDetail detail;
  detail.fp = 0.98765;
  detail.re = 12345;
  detail.fr = 0.23456;
  EXPECT_EQ(Shown(frm本山微少弁::kName, detail), (Texts{"0.9877", "12,345", "0.2346", "-"}));
  detail.fluidPhase = 2;
  detail.choked = true;
  detail.flp = 0.8;
  detail.y = 0.667;
  detail.re = detail.fr = std::nullopt;  // no viscosity
  EXPECT_EQ(Shown(frm本山微少弁::kName, detail), (Texts{"0.8000", "", "", "0.6670"}));
  detail.flp = 0;
  EXPECT_EQ(Shown(frm本山微少弁::kName, detail)[0], "");
}

TEST_F(ValveDialogues, DetailOfAMicroFlowValveBy山武) {
  const struct {
    double rv;
    const char* text;
  } rows[] = {{123456, "1.235×10＾5"},  {1000, "1.000×10＾3"},   {99999, "1.000×10＾5"},
              {0.0123, "1.230×10＾-2"}, {0.001, "1.000×10＾-3"}, {1, "1.000×10＾0"}};
  valve::CorrectionDetail detail;
  detail.fluidPhase = 1;
  detail.fp = 1;
  detail.y = 0.71239;
  detail.fm = 3.25;
  for (const auto& row : rows) {
    detail.rv = row.rv;
    EXPECT_EQ(Shown(frm山武微少弁::kName, detail), (Texts{"1.0000", row.text, "3.3", "0.712"}));
  }
}

TEST_F(ValveDialogues, DetailOfAnOrdinaryValve) {
  valve::CorrectionDetail detail;
  detail.fp = 0.95;
  detail.fr = 0.64249;
  const struct {
    double re;
    const char* text;
  } rows[] = {{586.4, "586"}, {1234567, "1,234,567"}, {99, "99"}, {98.994, "98.99"}, {0.5, "0.50"}};
  for (const auto& row : rows) {
    detail.re = row.re;
    EXPECT_EQ(Shown(frmCv計算補正::kName, detail), (Texts{"0.9500", "-", row.text, "0.6425"}));
  }
  detail.fluidPhase = 1;
  detail.y = 0.8;
  EXPECT_EQ(Shown(frmCv計算補正::kName, detail), (Texts{"0.9500", "0.8000", "-", "-"}));
}

// End points of the curve: 0.0055 at Re 0.01, no correction in turbulent flow.
TEST_F(ValveDialogues, CorrectionDataIsATableOfTheCurve) {
  bench.Forms().Show(frmCv計算補正::kName);
  DblClick("lblFrR");
  ASSERT_EQ(bench.Forms().Active()->Name(), frmCv補正データ::kName);
  const auto& rows = Find<forms::Grid>("grd補正データ").Rows();
  ASSERT_EQ(rows.size(), 25U);
  EXPECT_EQ(rows.front()[0] + " " + rows.front()[1], "0.01 0.0055");
  EXPECT_EQ(rows[15][0], "1,000");
  EXPECT_EQ(rows.back(), (Texts{"1,000,000", "1.0000", "1.000"}));
  for (std::size_t i = 1; i < rows.size(); ++i) EXPECT_GE(rows[i][1], rows[i - 1][1]);
  Click("cmdOK");
  EXPECT_EQ(bench.Forms().Active()->Name(), frmCv計算補正::kName);
}

TEST_F(ValveDialogues, OpenSheetFollowsEditsInTheCatalogue) {
  bench.Space().multiWindowMode = true;
  OpenSheet();
  sheet->cboMaker.Pick(2);
  sheet->cboValveModel.Pick(1);
  bench.Window().Run("mnuCVcatalog");
  Choose("optMaker(2)");
  Type("txtMaker", "新メーカー");
  Choose("optModel(1)");
  Type("txtModel", "新型式");
  Type("txtFL", "0.77");
  EXPECT_EQ(sheet->cboMaker.Text() + sheet->cboValveModel.Text(), "新メーカー新型式");
  sheet->cboValveModel.Pick(1);
  EXPECT_EQ(sheet->txtFL.Text(), "0.77");
  sheet->cboMaker.SetText("他社");  // as a saved tag has it
  Click("cmdDeleteMaker");
  EXPECT_EQ(sheet->cboMaker.Text(), "他社");
  EXPECT_EQ(sheet->cboMaker.Items()[2], "");
  sheet->cboMaker.SetText("");  // no maker, which is not the deleted one
  Type("txtMaker", "別メーカー");
  EXPECT_EQ(sheet->cboMaker.Text(), "");
}

}  // namespace
}  // namespace sheets
