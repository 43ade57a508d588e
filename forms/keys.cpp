#include "forms/keys.h"

namespace forms {

bool AnyKey(char32_t) { return true; }

bool NumberKeys(char32_t key) { return key >= U'.' && key <= U'9'; }

bool SignedNumberKeys(char32_t key) { return key >= U'-' && key <= U'9'; }

bool ExponentKeys(char32_t key) { return SignedNumberKeys(key) || key == U'E' || key == U'e'; }

bool DigitKeys(char32_t key) { return key == U'.' || (key >= U'0' && key <= U'9'); }

bool InletTypeKeys(char32_t key) { return key >= U'0' && key <= U'4'; }

}  // namespace forms
