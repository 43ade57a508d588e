#pragma once

#include <array>
#include <string>

namespace shell {

/// A program of the user's behind a tool bar button.
struct UserProgram {
  std::string caption;
  std::string command;

  bool operator==(const UserProgram&) const = default;
};
using UserPrograms = std::array<UserProgram, 3>;

/// A command line without the one quote in front and the one behind that a copied path may have.
std::string WithoutOuterQuotes(std::string command);

/// The programs in the bytes of such a file; records that are not there whole are empty.
UserPrograms ParseUserPrograms(std::string bytes);

/// The bytes of such a file. A text that cannot be stored is raised with a sentence.
std::string EncodeUserPrograms(const UserPrograms& programs);

/// The user's programs in "UserProgram.dat" of a folder. Records that are missing or cannot be read
/// are empty; nothing is raised.
UserPrograms ReadUserPrograms(const std::string& folder);

/// Takes the outer quotes off the commands and writes the file anew. A text that cannot be stored
/// and a file that cannot be written are raised with a sentence; `programs` has not changed then.
void WriteUserPrograms(const std::string& folder, UserPrograms& programs);

}  // namespace shell
