#pragma once

#include <QColor>
#include <QString>
#include <string>

#include "forms/color.h"

namespace desktop {

/// The family of the Japanese interface letters: the first of our list that is installed.
QString UiFamily();
/// The family whose full-width letters are exactly two half-width ones.
QString FixedFamily();
/// The installed family that stands for one that a sheet names.
QString PaperFamily(const std::string& name);

/// The colour as it is numbered, for paper.
QColor PaperColor(forms::Color color);

}  // namespace desktop
