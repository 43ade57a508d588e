#pragma once

namespace sheets {

/// Said beside an estimate that is shown as it is, in the caution colour.
inline constexpr const char* kUnphysicalExponent =
    "推算値は物理的な範囲（1.0～1.7）の外にあります。確認してください。";

}  // namespace sheets
