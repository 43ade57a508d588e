#pragma once

#include <exception>
#include <string>

namespace common {

/// Faults of the runtime that end an event, under the numbers that the sheets' handlers know.
enum class Fault {
  kInvalidArgument = 5,
  kOverflow = 6,
  kIndexOutOfRange = 9,
  kDivisionByZero = 11,
  kFileNotFound = 53,
  kFileAccess = 75,
};

/// The sentence that is shown to the user for a fault, in Japanese, UTF-8.
const char* FaultText(Fault fault);

/// An arithmetic or file fault. It passes through all calculations and is caught once per event.
class RuntimeFault : public std::exception {
 public:
  explicit RuntimeFault(Fault fault) : fault_(fault), text_(FaultText(fault)) {}
  RuntimeFault(Fault fault, std::string text) : fault_(fault), text_(std::move(text)) {}

  Fault Number() const { return fault_; }
  const std::string& Text() const { return text_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  Fault fault_;
  std::string text_;
};

}  // namespace common
