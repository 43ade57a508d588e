#include "common/fault.h"
#include "fuzz/fuzz.h"
#include "shell/user_programs.h"

namespace {

bool Same(const shell::UserPrograms& one, const shell::UserPrograms& other) {
  for (std::size_t i = 0; i < one.size(); ++i) {
    if (one[i].caption != other[i].caption || one[i].command != other[i].command) return false;
  }
  return true;
}

}  // namespace

/// Programs that were read are saved and read back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const shell::UserPrograms programs = shell::ParseUserPrograms(fuzz::Bytes(data, size));
  for (const shell::UserProgram& program : programs) {
    if (fuzz::HasQuote(program.caption + program.command)) return 0;
  }
  fuzz::Require(Same(shell::ParseUserPrograms(shell::EncodeUserPrograms(programs)), programs));
  return 0;
}
