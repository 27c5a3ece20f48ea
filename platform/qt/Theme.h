#pragma once

class QApplication;
class QString;

namespace orlamo::qt {

/// Gives all windows of the toolkit's controls the program's one dark look, and the toolkit's own texts (buttons of
/// message boxes, the color dialog) the program's language ("de_AT") where they are installed. The style sheet is the
/// bundle's theme.qss, which names images of the bundle as url(image:name.svg); the windows' icon is the image named
/// like the bundle. Needs an installed Bundle.
void applyTheme(QApplication& application, const QString& language);

}  // namespace orlamo::qt
