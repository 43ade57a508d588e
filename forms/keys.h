#pragma once

#include <string_view>

namespace forms {

/// Whether a field takes a printable key.
using KeyFilter = bool (*)(char32_t key);

enum class Arrow { kUp, kDown, kLeft, kRight };

bool AnyKey(char32_t key);
/// Keys of a number: the characters from "." to "9". That lets "/" pass, so that sizes such as
/// "1/2" can be typed; what is typed is judged by the numeric conversion.
bool NumberKeys(char32_t key);
/// Keys of a number that may be negative: from "-" to "9".
bool SignedNumberKeys(char32_t key);
/// The same with an exponent ("1E-06").
bool ExponentKeys(char32_t key);
/// Digits and the point alone.
bool DigitKeys(char32_t key);
/// Digits "0" to "4", the kinds of inlet shape.
bool InletTypeKeys(char32_t key);

}  // namespace forms
