#pragma once

#include <QColor>
#include <QIcon>
#include <string>

namespace desktop {

/// Picture of the product's own family by its name ("new", "dp-flow" ...), drawn at every size in
/// that colour, or in the text colour of the theme. An unknown name gives an empty icon.
QIcon IconNamed(const std::string& name, const QColor& color = {});

/// The icon of the sheets, in their title bars and in the menu bar.
QIcon IconOfSheets();

}  // namespace desktop
