#pragma once

namespace orlamo::qt {

/// Waits until the window system has done what the toolkit asked of it.
void synchronize();

}  // namespace orlamo::qt
