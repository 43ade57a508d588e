#pragma once

#include "shell/platform.h"

namespace desktop {

/// The desktop that Qt knows: files open with the user's programs, programs start on their own.
class QtPlatform : public shell::Platform {
 public:
  bool OpenWithDesktop(const std::string& path) override;
  bool StartProgram(const std::string& program, const std::vector<std::string>& arguments) override;
};

}  // namespace desktop
