// What the fields of the editors, lists and tool windows want.

#include "sheets/hints.h"

namespace sheets {

namespace {

std::vector<FormHints> Editors() {
  constexpr const char* kCoefficients =
      "左から式の適用温度の下限・上限 ℃と係数 c0～c3。式は下に示します。";
  return {{"frmEditCVspec",
           {{"optMaker", "編集するメーカーを選びます。"},
            {"optModel", "編集する型式を選びます。"},
            {"txtMaker", "メーカー名。シートのメーカーの一覧に表示されます。"},
            {"txtModel", "弁の型式名。"},
            {"txtFL", "圧力回復係数。通常 0.5～0.98。"},
            {"txt弁Fd", "弁形式修正係数。通常 0.3～1.5。"},
            {"txtOrificeFactor", "騒音計算の N 係数。通常 1～2.2。"},
            {"txtRangeability", "調節できる最大と最小の Cv の比。通常 10～100。"},
            {"cboCharact", "弁の固有流量特性。"},
            {"txt内弁Size", "内弁（トリム）の呼び。上下の矢印キーで行を移ります。"},
            {"txt弁Cv", "この内弁の定格 Cv。通常 0.001～5000。"},
            {"VScroll1", "内弁の一覧を上下に送ります（22 行）。", "内弁一覧のスクロール"},
            {"cmdDeleteMaker", "選んだメーカーとその全型式を、確認の上で消します。"},
            {"cmdDeleteModel", "選んだ型式を、確認の上で消します。"},
            {"cmdDataSave", "弁カタログをファイルに保存します。"}}},
          {"frmMaterial",
           {{"optMaterial", "編集する材料を選びます。"},
            {"txtMaterialName", "材料名。シートの材質の一覧に表示されます。"},
            {"txt密度L", kCoefficients},
            {"txt密度H", kCoefficients},
            {"txtヤング率L", kCoefficients},
            {"txtヤング率H", kCoefficients},
            {"txt許容応力L", kCoefficients},
            {"txt許容応力H", kCoefficients},
            {"txt線膨張係数L", kCoefficients},
            {"txt線膨張係数H", kCoefficients},
            {"cmdDataSave", "材料データをファイルに保存します。"}}},
          {"frmEditPropData",
           {{"Option1", "液体の物性データを編集します。"},
            {"Option2", "気体の物性データを編集します。"},
            {"TabStrip1", "編集する流体を選びます。", "流体の一覧"},
            {"picProperty", "入力した式と係数による推算曲線。"},
            {"cmdDeleteProp", "選んだ流体のデータを、確認の上で消します。"},
            {"cmdSaveProp", "液体と気体の物性データをファイルに保存します。"}}}};
}

std::vector<FormHints> UnitConverter() {
  return {
      {"frm単位換算",
       {{"TabStrip1", "換算する量の分類を選びます。", "分類のタブ"},
        {"lstCategory", "換算する量の分類を選びます。", "分類"},
        {"lstLeft", "換算する前の単位を選びます。", "変換前の単位"},
        {"lstRight", "換算した後の単位を選びます。", "変換後の単位"},
        {"txtLeft", "換算する数値。入力と同時に換算します。", "変換前の数値"},
        {"lblRight", "換算した数値。", "変換後の数値"},
        {"cmd分類挿入", "名前と最初の単位を入力する画面を開きます。"},
        {"cmd分類修正", "分類名を入力する画面を開きます。"},
        {"cmdCategory削除", "選んだ分類を、確認の上で消します。"},
        {"cmdMoveCategory", "分類を並べ替える画面を開きます。"},
        {"cmdSave", "変更があると黄色になります。"},
        {"cmd単位挿入", "単位名と換算係数を入力する画面を開きます。"},
        {"cmd単位修正", "単位名と換算係数を入力する画面を開きます。"},
        {"cmdDelete", "確認の上で消します。基準単位は消せません。"},
        {"cmdMoveUnit", "単位を並べ替える画面を開きます。"},
        {"cmdSort", "この分類の単位を名前の順に並べます。"}}},
      {"frmUnitEdit",
       {{"txtEditCategory", "換算する量の分類の名前。"},
        {"txtAddUnit", "単位の名前。"},
        {"txtBaseUnit", "この分類の基準になる単位（変更できません）。"},
        {"txtConvFactor", "単位 1 つ分が基準単位でいくつに当たるか。1.5E-3 のようにも書けます。"},
        {"txtConvConst", "換算係数を掛けた後に足す値。温度などのほかは 0 です。"},
        {"cmdOK", "確認の上でこの内容に変え、閉じます。"}}},
      {"frmMove",
       {{"lstMove", "移動する項目を選びます。", "順序を変える一覧"},
        {"cmdUp", "選んだ項目を 1 つ前へ移します。", "上へ移動"},
        {"cmdDown", "選んだ項目を 1 つ後へ移します。", "下へ移動"}}}};
}

std::vector<FormHints> Properties() {
  return {
      {"frm物性",
       {{"txtTagNo", "印刷用のタグ番号。半角 26 字（全角 13 字）まで。リストには登録しません。"},
        {"opt液体", "液体の一覧から推算します。"},
        {"opt気体", "気体の一覧から推算します。"},
        {"opt蒸気", "水蒸気の式で推算します。"},
        {"txtPress", "流体の圧力。通常 0～20 MPaG。空欄は 0 とします。"},
        {"txtTemp", "流体の温度。通常 -200～600 ℃。空欄は 0 とします。"},
        {"lst流体名称", "推算する流体を選びます。ダブルクリックか Enter キーで計算します。"}}},
      {"frm流体名表示",
       {{"lst物性推算", "推算する流体。ダブルクリックか Enter キーでその物性だけを入力します。",
         "流体の一覧"},
        {"cmd全物性", "推算できる物性をすべてシートに入力して閉じます。"},
        {"cmd単独物性", "選ばれた項目の物性だけをシートに入力して閉じます。"}}},
      {"frmPipeWeight",
       {{"cboSchedule", "配管のスケジュール。選ぶと全呼び径の重量を計算します。"},
        {"cbo配管材質", "配管の材質。20 ℃での密度を使います。"},
        {"txtPipeLength", "総重量を求める配管の長さ。通常 1～10000 m。"},
        {"grdWeight", "呼び径ごとの外径・内径・1 m の重量・総重量。", "配管重量の表"}}}};
}

std::vector<FormHints> Lists() {
  constexpr const char* kPrintedTags = "スペースキーかクリックで、印刷するタグに印を付けます。";
  return {
      {"frmTagList",
       {{"lstTagNo", "登録したタグ。ダブルクリックか Enter キーで計算画面に読み出します。",
         "タグの一覧"},
        {"lblListNo", "選んだタグの登録順の番号。"},
        {"cmdUp", "選んだタグを 1 つ前へ移します。", "上へ移動"},
        {"cmdDown", "選んだタグを 1 つ後へ移します。", "下へ移動"},
        {"cmdTagSort", "タグ番号の順に並べます。", "Tag No. 順にソート"},
        {"cmdCategorySort", "計器の種類の順に並べます。", "分類別にソート"},
        {"cmd追加", "計算画面の内容を、画面のタグ番号で登録します。"},
        {"cmdTagDelete", "選んだタグをリストから消します。"},
        {"cmdTagCall", "選んだタグを計算画面に読み出します。"}}},
      {"frmDuctList",
       {{"lstDuct", "登録したダクト。ダブルクリックか Enter キーで計算画面に呼び出します。",
         "ダクトの一覧"},
        {"cmdUp", "選んだダクトを 1 つ前へ移します。", "上へ移動"},
        {"cmdDown", "選んだダクトを 1 つ後へ移します。", "下へ移動"},
        {"cmdAdd", "計算画面の内容を、画面のダクト名称で登録します。"},
        {"cmdDelete", "選んだダクトをリストから消します。"},
        {"cmdSend", "選んだダクトを計算画面に呼び出します。"}}},
      {"frm一括印刷",
       {{"lstTag", kPrintedTags, "印刷するタグ"},
        {"cmd全選択", "すべてのタグに印を付けます。"},
        {"cmd全解除", "すべてのタグの印を外します。"},
        {"prg進行", "印刷の進み具合。", "印刷の進行"},
        {"cmdPDF", "保存先を聞いてから始めます。"},
        {"cmd印刷", "印を付けたタグを 1 件 1 ページで印刷します。"},
        {"cmdCancel", "印刷中は中止し、そうでなければ閉じます（Esc キー）。"}}},
      {"frm全タグ再計算",
       {{"lstTag", "結果が変わったタグ。スペースキーかクリックで、書き込むものに印を付けます。"},
        {"cmd全選択", "すべてのタグに印を付けます。"},
        {"cmd全解除", "すべてのタグの印を外します。"},
        {"prg進行", "再計算の進み具合。", "再計算の進行"},
        {"grd変更", "登録されている結果と、計算し直した結果。"},
        {"grdメッセージ", "再計算で出たメッセージ。"},
        {"cmd再計算", "全タグをもう一度計算します。"},
        {"cmd書込", "書き込んだ後、保存はファイル メニューで行います。"},
        {"cmdCancel", "計算中は中止し、そうでなければ閉じます（Esc キー）。"}}},
      {"frmZepha2Excel",
       {{"ProgressBar1", "ワークブックの作成の進み具合。", "作成の進行"},
        {"cmdExchangeStart", "全タグのワークブックを作り、表計算ソフトで開きます。"},
        {"cmdEnd", "この画面を閉じます（Esc キー）。"}}}};
}

std::vector<FormHints> SmallForms() {
  return {{"frmPreview",
           {{"picPage", "印刷されるとおりのページ。ホイールで上下に送ります。", "印刷ページ"},
            {"VScroll1", "ページを上下に送ります。", "縦のスクロール"},
            {"HScroll1", "ページを左右に送ります。", "横のスクロール"},
            {"cmdPrint", "プリンターを選んで印刷します。"}}},
          {"frmRegCompany",
           {{"txtCompany", "計算書の下端に印刷する会社名など。半角 40 字（全角 20 字）まで。"},
            {"cmdOK", "発行者名を登録して閉じます。"}}},
          {"frmUserProgram",
           {{"txtUserProTitle", "ツールバーのボタンに表示する名称。"},
            {"txtUser", "起動するプログラムの場所。空白を含んでも引用符は要りません。"},
            {"cmd登録", "3 つのプログラムを登録して閉じます。"}}},
          {"frmAbout",
           {{"picLogo", "オリフィスと流れの図。", "ロゴ"},
            {"cmdSysInfo", "システム情報を表示します。"}}}};
}

}  // namespace

const std::vector<FormHints>& ToolHints() {
  static const std::vector<FormHints> kHints = [] {
    std::vector<FormHints> all = Editors();
    for (const auto& some : {UnitConverter(), Properties(), Lists(), SmallForms()}) {
      all.insert(all.end(), some.begin(), some.end());
    }
    return all;
  }();
  return kHints;
}

}  // namespace sheets
