#pragma once

#include <cstdint>

namespace forms {

/// Colour number as tag rows store it: 0xBBGGRR, negative for colours that the desktop chooses.
using Color = std::int32_t;

/// On screen the desktop's text colour, on paper black.
inline constexpr Color kBlack = 0x000000;
/// A failed judgement.
inline constexpr Color kRed = 0x0000FF;
/// A caution.
inline constexpr Color kMagenta = 0xFF00FF;
inline constexpr Color kBlue = 0xFF0000;
/// Background of a field that takes entries.
inline constexpr Color kWhite = 0xFFFFFF;
/// Background of a field that is switched off.
inline constexpr Color kButtonFace = -2147483633;
/// Background of an entry that looks wrong and is taken all the same.
inline constexpr Color kDoubtful = 0xC8C8FF;
/// Background of a save button while there are unsaved edits.
inline constexpr Color kUnsaved = 0xC0E0FF;

}  // namespace forms
