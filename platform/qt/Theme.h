#pragma once

class QApplication;

namespace orlamo::qt {

/// Gives all windows of the toolkit's controls the program's one dark look, and the toolkit's own texts the user's
/// language where it has them. The style sheet is the bundle's theme.qss, which names images of the bundle as
/// url(image:name.svg); the windows' icon is the image named like the bundle. Needs an installed Bundle.
void applyTheme(QApplication& application);

}  // namespace orlamo::qt
