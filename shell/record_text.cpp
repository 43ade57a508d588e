#include "shell/record_text.h"

#include <algorithm>
#include <utility>

#include "common/fault.h"
#include "common/file.h"
#include "common/number.h"
#include "common/text.h"

namespace shell {

namespace {

using common::Fault;
using common::RuntimeFault;

static_assert(kProgramVersion[0] >= '2' && kProgramVersion[0] <= '9');

/// Whether the quote that ends the field on reading has a separator behind it.
bool ShiftsFields(const std::string& text) {
  const auto quote = text.find('"');
  return quote != std::string::npos && text.find_first_of(",\r\n", quote) != std::string::npos;
}

}  // namespace

void CheckStorable(const std::string& owner, const std::string& text) {
  if (const auto character = common::FirstOutsideCp932(text)) {
    throw RuntimeFault(Fault::kFileAccess,
                       owner + " の文字「" + common::Utf8(common::CodePoints(*character)) +
                           "」は、データファイルの文字コード（CP932）にないため保存できません。");
  }
  if (ShiftsFields(text)) {
    throw RuntimeFault(
        Fault::kFileAccess,
        owner + " に、「\"」の後に「,」または改行が続く文字列があるため保存できません。\n" + text);
  }
}

void AppendField(std::string& bytes, const std::string& text, const std::string& owner) {
  bytes += bytes.empty() || bytes.back() == '\n' ? "\"" : ",\"";
  const bool ascii = std::all_of(text.begin(), text.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (ascii && text.find('"') == std::string::npos) {
    bytes += text;  // nine in ten fields: numbers
  } else {
    CheckStorable(owner, text);
    bytes += common::ToCp932(text);
  }
  bytes += '"';
}

RuntimeFault CutShort() { return {Fault::kFileAccess, "ファイルのデータが途中で終わっています。"}; }

void SaveUserFile(const std::string& path, const std::function<std::string()>& encode) {
  try {
    if (path.empty()) throw RuntimeFault(Fault::kFileAccess, "ファイル名が指定されていません。");
    const std::string bytes = encode();
    common::WriteFile(path, bytes);
  } catch (const RuntimeFault& fault) {
    const std::string text = fault.Number() == Fault::kFileNotFound
                                 ? "保存先のフォルダが見つかりません。\n" + path
                                 : fault.Text();
    throw RuntimeFault(fault.Number(), text + "\nデータは保存されていません。");
  }
}

void SaveUnderName(std::string name, std::string& fileName, bool& modified,
                   const std::function<void()>& save) {
  const bool modifiedBefore = modified;
  const std::string before = std::exchange(fileName, std::move(name));
  try {
    save();
  } catch (const RuntimeFault&) {
    if (before != fileName) modified = modifiedBefore;
    fileName = before;
    throw;
  }
}

bool IsSet(const std::string& text) { return text == "True" || common::Val(text) != 0; }

std::string FileTitle(const std::string& path) {
  constexpr std::size_t kExtensionLength = 4;
  const std::u32string name = common::CodePoints(common::FileNameOf(path));
  const std::size_t shown =
      name.size() > kExtensionLength ? name.size() - kExtensionLength : name.size();
  return common::Utf8(name.substr(0, shown));
}

std::string WithExtension(std::string path, const std::string& extension) {
  if (common::FileNameOf(path).find('.') == std::string::npos) path += extension;
  return path;
}

}  // namespace shell
