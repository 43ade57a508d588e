#pragma once

#include <QIcon>
#include <string>

namespace desktop {

/// Picture of the product's own family by its name ("new", "dp-flow" ...), drawn in the text colour
/// of the theme at every size. An unknown name gives an empty icon.
QIcon IconNamed(const std::string& name);

}  // namespace desktop
