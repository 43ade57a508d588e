#include "sheets/hints.h"

#include <map>
#include <stdexcept>
#include <string>

#include "forms/controls.h"

namespace sheets {

namespace {

/// What has one meaning on all forms; a form's own row comes first.
const std::vector<FieldHint>& CommonHints() {
  static const std::vector<FieldHint> kHints = {
      {"txtTagNo",
       "計器のタグ番号。半角 26 字（全角 13 字）まで。タグリストにこの名前で登録します。"},
      {"txt用途", "計器の用途や設置場所。計算書に印刷されます。"},
      {"cbo流体", "流体の相。相によって使える単位と入力欄が変わります。"},
      {"txt圧力", "上流側の運転圧力。通常 0～20 MPaG。\n単位の末尾 G はゲージ圧、A は絶対圧です。"},
      {"txt温度", "流体の運転温度。通常 -200～600 ℃。"},
      {"txt密度",
       "流体の密度。通常 液体 500～1500 kg/m3、気体 0.09～5 kg/Nm3。\n"
       "気体は、単位を分子量や比重（空気＝1）にしても入力できます。"},
      {"txt粘性係数",
       "運転状態の粘性係数。通常 液体 0.2～100 mPa･s、気体 0.01～0.04 mPa･s。\n"
       "単位 cSt（動粘性係数）では密度も要ります。"},
      {"txt偏差係数",
       "気体の偏差係数（運転状態と標準状態の圧縮係数の比）。\n通常 0.8～1.1、空欄は 1 とします。"},
      {"txt比熱比", "気体・蒸気の比熱比 Cp/Cv。通常 1.1～1.67、空欄は 1.4 とします。"},
      {"txt相対湿度", "気体の相対湿度。0～100 %。乾燥した気体は空欄にします。"},
      {"optWetBase", "流量は水蒸気を含む湿り気体の量とします。"},
      {"optDryBase", "流量は水蒸気を除いた乾き気体の量とします。", "計算基準 乾燥基準（Dry Base）"},
      {"txt飽和水蒸気圧",
       "運転温度での水の飽和蒸気圧（絶対圧）。\n20 ℃で 2.34 kPa、100 ℃で 101 kPa。"},
      {"txt飽和蒸気圧",
       "運転温度での液体の飽和蒸気圧（絶対圧）。\nキャビテーションの判定に使います。"},
      {"txt臨界圧力", "液体の臨界圧力（絶対圧）。通常 2～22 MPa（水は 22.06 MPa）。"},
      {"cbo配管呼称径", "配管の呼び径（インチ）。選ぶと規格から配管内径を入力します。"},
      {"cboSchedule", "配管のスケジュール。選ぶと規格から配管内径を入力します。"},
      {"cmd計算", "入力値を読んで計算し、結果を表示します。"},
      {"cmdデータ消去", "このシートの入力値と結果をすべて消します。"},
      {"cmdInitialize", "このシートの入力値と結果をすべて消します。"},
      {"cmdCancel", "何も変えずに閉じます（Esc キー）。"},
      {"cmdClose", "この画面を閉じます（Esc キー）。"},
      {"cmdOK", "この画面を閉じます。"},
  };
  return kHints;
}

struct Element {
  forms::Control* control;
  /// Its number in its array from 1, "" outside of arrays.
  std::string number;
};

/// The controls by their names, and those of arrays by the names of these, too.
using Elements = std::multimap<std::string, Element>;

Elements ElementsOf(const forms::Form& form) {
  Elements elements;
  for (forms::Control* control : form.Controls()) {
    const std::string& name = control->Name();
    const std::size_t bracket = name.find('(');
    elements.emplace(name, Element{control, {}});
    if (bracket == std::string::npos) continue;
    const int number = std::stoi(name.substr(bracket + 1)) + 1;
    elements.emplace(name.substr(0, bracket), Element{control, std::to_string(number)});
  }
  return elements;
}

void Give(const Element& element, const FieldHint& row) {
  forms::Control& control = *element.control;
  if (control.Hint().empty()) control.SetHint(row.hint);
  if (row.name == nullptr || !control.AccessibleName().empty()) return;
  std::string name = row.name;
  if (const std::size_t mark = name.find('#'); mark != std::string::npos) {
    name.replace(mark, 1, element.number);
  }
  control.SetAccessibleName(name);
}

/// Whether any control has the row's name.
bool GiveRow(const Elements& elements, const FieldHint& row) {
  const auto [first, last] = elements.equal_range(row.control);
  for (auto element = first; element != last; ++element) Give(element->second, row);
  return first != last;
}

}  // namespace

void GiveHints(forms::Form& form) {
  const Elements elements = ElementsOf(form);
  for (const auto* tables : {&SheetHints(), &ToolHints()}) {
    for (const FormHints& table : *tables) {
      if (table.form != form.Name()) continue;
      for (const FieldHint& row : table.fields) {
        if (!GiveRow(elements, row)) throw std::logic_error(form.Name() + " has no " + row.control);
      }
    }
  }
  for (const FieldHint& row : CommonHints()) GiveRow(elements, row);
}

}  // namespace sheets
