#include "sheets/frm_recalculate.h"

#include <algorithm>

#include "shell/field_names.h"

namespace sheets {

namespace {

constexpr const char* kTitle = "全タグ再計算";

std::string OneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

}  // namespace

frm全タグ再計算::frm全タグ再計算(shell::Workspace& workspace)
    : Form(kName, kTitle, forms::FormRole::kDialog), workspace_(workspace) {
  lbl説明.SetText(
      "各タグを登録されている入力値からそのシートで計算し直し、登録されている結果と比べます。"
      "書き込むまで何も変わりません。");
  lstTag.onMark = [this] { ShowButtons(); };
  cmd全選択.onClick = [this] { lstTag.MarkAll(true); };
  cmd全解除.onClick = [this] { lstTag.MarkAll(false); };
  cmd再計算.onClick = [this] { Start(); };
  cmd書込.onClick = [this] { cmd書込_Click(); };
  cmd書込.SetToolTip(
      "選択したタグの新しい結果をタグリストに書き込みます（ファイルには保存しません）。");
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
  SetLayout(forms::Column({
      forms::Table({{lbl説明}, {prg進行}, {lbl結果}}),
      forms::Stretched(
          forms::Row({
              forms::Stretched(
                  forms::Group("書き込むタグ",
                               forms::Column({
                                   forms::Stretched(forms::Table({{forms::Cell(lstTag).Wide(22)}})),
                                   forms::Buttons({cmd全選択, cmd全解除, {}}),
                               })),
                  3),
              forms::Stretched(forms::Group("変わった結果", forms::Table({{grd変更}})), 8),
          }),
          2),
      forms::Stretched(forms::Group("メッセージ", forms::Table({{grdメッセージ}})), 1),
      forms::Buttons({cmd再計算, {}, cmd書込, cmdCancel}),
  }));
}

void frm全タグ再計算::Load() {
  ShowButtons();
  SetFocus(cmdCancel);
}

void frm全タグ再計算::Activate() {
  if (recalculator_ == nullptr) Start();
}

void frm全タグ再計算::Start() {
  recalculator_ = std::make_unique<shell::Recalculator>(workspace_);
  finished_ = false;
  rows_.clear();
  lstTag.SetItems({});
  grd変更.SetRows({});
  grdメッセージ.SetRows({});
  lbl結果.SetText("");
  prg進行.SetMaximum(std::max(recalculator_->Count(), 1));
  prg進行.SetValue(0);
  ShowButtons();
  workspace_.Shown().RunSteps(*this, [this] { return Step(); });
}

bool frm全タグ再計算::Step() {
  if (!Running()) return false;
  if (recalculator_->Next()) {
    prg進行.SetValue(recalculator_->Done());
    lbl結果.SetText(std::to_string(recalculator_->Done()) + " / " +
                    std::to_string(recalculator_->Count()) + " タグ");
    return true;
  }
  finished_ = true;
  ShowResults();
  lbl結果.SetText(shell::RecalculatedText(*recalculator_));
  return false;
}

void frm全タグ再計算::ShowResults() {
  std::vector<std::string> tags;
  std::vector<std::vector<std::string>> lines;
  rows_ = recalculator_->ChangedRows();
  for (const int row : rows_) tags.push_back(workspace_.tags.Text(row, shell::kTagNumberColumn));
  for (const shell::TagChange& change : recalculator_->Changes()) {
    const auto shown = [&](const std::string& text) {
      return shell::ShownField(workspace_.tags.Text(change.row, shell::kKindColumn), change.column,
                               text);
    };
    lines.push_back({change.tag, change.field, shown(change.before), shown(change.after)});
  }
  grd変更.SetRows(std::move(lines));
  lines.clear();
  for (const shell::TagNote& note : recalculator_->Notes()) {
    lines.push_back({note.tag, OneLine(note.text)});
  }
  grdメッセージ.SetRows(std::move(lines));
  {
    const Quiet quiet(*this);
    lstTag.SetItems(std::move(tags));
    lstTag.MarkAll(true);
  }
  ShowButtons();
}

void frm全タグ再計算::ShowButtons() {
  const bool running = Running();
  lstTag.SetEnabled(!running);
  for (forms::Button* button : {&cmd全選択, &cmd全解除}) {
    button->SetEnabled(!running && lstTag.Count() > 0);
  }
  cmd再計算.SetEnabled(!running);
  cmd書込.SetEnabled(!running && lstTag.MarkedCount() > 0);
  cmdCancel.SetText(running ? "中止" : "閉じる");
}

std::vector<int> frm全タグ再計算::MarkedRows() const {
  std::vector<int> rows;
  for (int line = 0; line < lstTag.Count(); ++line) {
    if (lstTag.Marked(line)) rows.push_back(common::At(rows_, line));
  }
  return rows;
}

void frm全タグ再計算::cmd書込_Click() {
  const std::vector<int> rows = MarkedRows();
  const std::string count = std::to_string(rows.size());
  if (!workspace_.Shown().Ask(count + " タグの結果を新しい結果に置き換えます。\n書き込みますか？",
                              kTitle)) {
    return;
  }
  if (!recalculator_->Write(rows)) {
    workspace_.Shown().Show(
        "再計算の後にタグが変更されたため、書き込めません。\nもう一度再計算してください。", kTitle,
        common::Icon::kWarning);
    return;
  }
  ShowResults();
  lbl結果.SetText(count +
                  " タグの結果を書き込みました。ファイルには上書き保存するまで残りません。");
}

void frm全タグ再計算::cmdCancel_Click() {
  if (!Running()) {
    workspace_.forms.Unload(*this);
    return;
  }
  finished_ = true;
  ShowButtons();
  lbl結果.SetText("再計算を中止しました。何も書き込んでいません。");
}

}  // namespace sheets
