#pragma once

namespace orlamo {

/// Nobody but the superuser reads this process: no core file, no other program of the same user through ptrace or
/// /proc. Call first of all. False when it stays readable: the system refuses, or the variable ORLAMO_DEBUGGABLE is set
/// to anything. Programs that this one starts are not concerned, but for the usual limit of 0 on their core files.
bool keepProcessPrivate();

}  // namespace orlamo
