#pragma once

/// When a launch looks for updates: the setting LastUpdateCheckDate is the stamp of the launch before, and a check is
/// due when that one lies more than five days back.
namespace orlamo::UpdateSchedule {

inline constexpr double updateInterval = 432000.0;  // seconds

/// True without a stamp that can be read, or when it is older than updateInterval; one from the future is not.
bool shouldCheckForUpdates();

/// Stamps the present time, in the current time zone.
void recordUpdateCheckDate();

}  // namespace orlamo::UpdateSchedule
