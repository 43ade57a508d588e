#include "fuzz/fuzz.h"
#include "shell/user_programs.h"

/// Programs that were read are saved and read back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const shell::UserPrograms programs = shell::ParseUserPrograms(fuzz::Bytes(data, size));
  for (const shell::UserProgram& program : programs) {
    if (fuzz::HasQuote(program.caption + program.command)) return 0;
  }
  fuzz::Require(shell::ParseUserPrograms(shell::EncodeUserPrograms(programs)) == programs);
  return 0;
}
