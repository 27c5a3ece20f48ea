#pragma once

namespace orlamo {

/// What a desktop may withhold from a program. Only the first is checked.
enum class PermissionType { accessibility, screenRecording, fullDiskAccess };

}  // namespace orlamo
