#pragma once

class QApplication;

namespace desktop {

/// Gives the program its looks: style, the palette that goes with the desktop's light or dark
/// theme, letters, name and icon. Afterwards numbers are read and written as in the "C" locale.
void PrepareApplication(QApplication& application);

}  // namespace desktop
