#pragma once

#include <QImage>

#include "platform/WindowEffects.h"

namespace orlamo::qt {

/// What the screen showed behind a window before the window came up.
class ScreenCapture {
public:
    /// Forgets what an earlier showing saw.
    void clear() { image_ = {}; }

    /// What lies behind `area`; null when the screen cannot be read. What was captured before stays as it was, since
    /// by now the window itself may stand there; the screen is read only for what is new.
    const QImage& behind(const PixelRect& area);

private:
    QImage image_;
    PixelRect area_;
};

}  // namespace orlamo::qt
