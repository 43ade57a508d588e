#pragma once

#include <string>
#include <vector>

namespace shell {

/// What the program asks of the desktop that it runs on.
class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  /// Opens a file with the program that the user has for its kind; false when there is none.
  virtual bool OpenWithDesktop(const std::string& path) = 0;
  /// Starts a program, by its path or by a name on the search path, and does not wait for it; false
  /// when it cannot be started.
  virtual bool StartProgram(const std::string& program,
                            const std::vector<std::string>& arguments) = 0;
};

}  // namespace shell
