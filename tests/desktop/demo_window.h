#pragma once

#include "shell/main_window.h"

namespace desktop {

/// Menus and a tool bar as large as the product's; what is run is noted in the title.
void FillDemoWindow(shell::MainWindow& window);

}  // namespace desktop
