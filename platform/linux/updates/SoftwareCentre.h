#pragma once

namespace norvin {

/// Whether the desktop has a program for appstream: addresses, which software centres take.
[[nodiscard]] bool hasSoftwareCentre();
/// Has the desktop show this program there; a failure is logged.
void openSoftwareCentre();

} // namespace norvin
