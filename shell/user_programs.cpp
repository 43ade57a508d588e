#include "shell/user_programs.h"

#include <utility>

#include "common/fault.h"
#include "common/fields.h"
#include "common/file.h"
#include "common/text.h"
#include "shell/instrument_file.h"

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

UserPrograms ReadUserPrograms(const std::string& folder) {
  UserPrograms programs;
  try {
    common::FieldReader reader(common::ReadFile(FilePath(folder)));
    for (UserProgram& program : programs) {
      auto caption = reader.Next();
      auto command = reader.Next();
      if (!command) break;
      program = {std::move(*caption), std::move(*command)};
    }
  } catch (const common::RuntimeFault&) {
    // Most users have no such file.
  }
  return programs;
}

void WriteUserPrograms(const std::string& folder, UserPrograms& programs) {
  UserPrograms stripped = programs;
  std::string text;
  for (UserProgram& program : stripped) {
    program.command = WithoutOuterQuotes(std::move(program.command));
    CheckStorable("プログラムの名称", program.caption);
    CheckStorable("登録するプログラム", program.command);
    text +=
        common::QuotedField(program.caption) + "," + common::QuotedField(program.command) + "\r\n";
  }
  programs = std::move(stripped);
  common::WriteFile(FilePath(folder), common::ToCp932(text));
}

}  // namespace shell
