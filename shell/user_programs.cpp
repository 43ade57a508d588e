#include "shell/user_programs.h"

#include <utility>

#include "common/fault.h"
#include "common/fields.h"
#include "common/file.h"
#include "common/text.h"
#include "shell/record_text.h"

namespace shell {

namespace {

std::string FilePath(const std::string& folder) {
  return common::JoinPath(folder, "UserProgram.dat");
}

}  // namespace

std::string WithoutOuterQuotes(std::string command) {
  if (command.starts_with('"')) command.erase(0, 1);
  if (command.ends_with('"')) command.pop_back();
  return command;
}

UserPrograms ParseUserPrograms(std::string bytes) {
  UserPrograms programs;
  common::FieldReader reader(std::move(bytes));
  for (UserProgram& program : programs) {
    auto caption = reader.Next();
    auto command = reader.Next();
    if (!command) break;
    program = {std::move(*caption), std::move(*command)};
  }
  return programs;
}

UserPrograms ReadUserPrograms(const std::string& folder) {
  try {
    const std::string bytes = common::ReadFile(FilePath(folder));
    if (!common::IsUnfinished(bytes)) return ParseUserPrograms(bytes);
  } catch (const common::RuntimeFault&) {
    // Most users have no such file.
  }
  return {};
}

std::string EncodeUserPrograms(const UserPrograms& programs) {
  std::string text;
  for (const UserProgram& program : programs) {
    CheckStorable("プログラムの名称", program.caption);
    CheckStorable("登録するプログラム", program.command);
    text +=
        common::QuotedField(program.caption) + "," + common::QuotedField(program.command) + "\r\n";
  }
  return common::ToCp932(text);
}

void WriteUserPrograms(const std::string& folder, UserPrograms& programs) {
  UserPrograms stripped = programs;
  for (UserProgram& program : stripped) {
    program.command = WithoutOuterQuotes(std::move(program.command));
  }
  SaveUserFile(FilePath(folder), [&stripped] { return EncodeUserPrograms(stripped); });
  programs = std::move(stripped);
}

}  // namespace shell
