#include "common/fault.h"

namespace common {

const char* FaultText(Fault fault) {
  switch (fault) {
    case Fault::kInvalidArgument:
      return "プロシージャの呼び出し、または引数が不正です。";
    case Fault::kOverflow:
      return "オーバーフローしました。";
    case Fault::kIndexOutOfRange:
      return "インデックスが有効範囲にありません。";
    case Fault::kDivisionByZero:
      return "0 で除算しました。";
    case Fault::kFileNotFound:
      return "ファイルが見つかりません。";
    case Fault::kFileAccess:
      return "ファイルにアクセスできません。";
  }
  return "実行時エラーです。";
}

}  // namespace common
