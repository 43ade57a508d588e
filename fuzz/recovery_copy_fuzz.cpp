#include "fuzz/fuzz.h"
#include "shell/recovery_copy.h"

/// A copy that was read is written and read back unchanged; cut short it is refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes = fuzz::Bytes(data, size);
  const auto copy = shell::ParseRecovery(bytes);
  if (!copy) return 0;
  fuzz::Require(shell::ParseRecovery(shell::EncodeRecovery(*copy)) == copy);
  fuzz::Require(!shell::ParseRecovery(bytes.substr(0, bytes.size() - 1)));
  return 0;
}
