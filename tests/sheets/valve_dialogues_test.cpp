#include "sheets/frm_cv_correction.h"
#include "sheets/frm_rating.h"
#include "shell/sheet.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

/// As much of a valve sheet as the dialogues see.
class ValveSheet : public shell::Sheet,
                   public RatingTarget,
                   public CorrectionSource,
                   public CatalogueUser {
 public:
  explicit ValveSheet(shell::Workspace& workspace) : Sheet(workspace, "CV", "弁") {}

  int BodySizeIndex() const override { return bodySize; }
  std::string FlangeRating() const override { return rating; }
  void TakeRating(const std::string& chosen, const std::string& taken) override {
    rating = chosen;
    bore = taken;
  }
  valve::CorrectionDetail Correction() const override { return detail; }
  void CatalogueChanged() override { ++catalogueChanges; }

  int bodySize = -1;
  std::string rating;
  std::string bore;
  valve::CorrectionDetail detail;
  int catalogueChanges = 0;
};

class ValveDialogues : public SheetTest {
 protected:
  ValveDialogues() {
    bench.Forms().Provide("frmCV", [this] { return std::make_unique<ValveSheet>(bench.Space()); });
    sheet = dynamic_cast<ValveSheet*>(&bench.Forms().Show("frmCV"));
  }

  bool IsOpen(const char* name) { return bench.Forms().Find(name) != nullptr; }
  /// Opens the detail form on this detail and tells the result labels in order; a hidden one is
  /// "-".
  Texts Shown(const char* form, const valve::CorrectionDetail& detail) {
    sheet->detail = detail;
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

  ValveSheet* sheet = nullptr;
};

// Bores: inside diameters of ASME B16.34, table A-1; JIS 10K 4 inch is 100A.
TEST_F(ValveDialogues, RatingGivesTheBoreOfTheBody) {
  const struct {
    int size;
    const char* rating;
    const char* bore;
  } rows[] = {{8, " JPI 300#", "50.8"}, {15, " JPI 600#", "199.9"}, {12, " JIS 10K", "100"}};
  for (const auto& row : rows) {
    sheet->bodySize = row.size;
    bench.Forms().Show(frmRating::kName);
    Pick("lstRating", Find<forms::ListBox>("lstRating").IndexOf(row.rating));
    DblClick("lstRating");
    EXPECT_FALSE(IsOpen(frmRating::kName));
    EXPECT_EQ(sheet->bore, row.bore);
    EXPECT_EQ(sheet->rating, row.rating);
  }
  bench.Forms().Show(frmRating::kName);
  EXPECT_EQ(Text("lstRating"), " JIS 10K");  // the last choice
  Find<forms::ListBox>("lstRating").PressEnter();
  EXPECT_FALSE(IsOpen(frmRating::kName));
  EXPECT_EQ(TakeTexts(), Texts{});
}

TEST_F(ValveDialogues, RatingRefusesWhatTheTableLacks) {
  bench.Forms().Show(frmRating::kName);
  EXPECT_EQ(Find<forms::ListBox>("lstRating").Count(), 16);
  Click("cmdOK");
  EXPECT_EQ(presenter.messages.shown.back().icon, common::Icon::kWarning);
  EXPECT_EQ(TakeTexts(), Texts{"フランジ規格が選択されていません。"});
  Pick("lstRating", 2);
  for (const int size : {-1, 0, 27}) {  // none, 1/8 inch, beyond the table
    sheet->bodySize = size;
    Click("cmdOK");
    EXPECT_EQ(TakeTexts().size(), 1U) << size;
    EXPECT_TRUE(IsOpen(frmRating::kName));
  }
  sheet->bodySize = 0;
  Click("cmdOK");
  EXPECT_EQ(presenter.messages.shown.back().title, "調節弁口径");
  EXPECT_EQ(TakeTexts(), Texts{"指定の弁サイズはﾃﾞｰﾀﾍﾞｰｽに登録されていません。"});
  Click("cmdCancel");
  EXPECT_EQ(sheet->bore + sheet->rating, "");
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

TEST_F(ValveDialogues, OpenSheetsHearOfEditsInTheCatalogue) {
  bench.Space().multiWindowMode = true;
  bench.Window().Run("mnuCVcatalog");
  Choose("optMaker(2)");
  EXPECT_EQ(sheet->catalogueChanges, 0);
  Type("txtModel", "新しい型式");
  EXPECT_EQ(sheet->catalogueChanges, 1);
  Click("cmdDeleteMaker");
  EXPECT_EQ(sheet->catalogueChanges, 2);
}

}  // namespace
}  // namespace sheets
