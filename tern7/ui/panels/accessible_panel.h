#pragma once

namespace tern7 {

/// Makes query panels known to screen readers: a tree of rows, those out of sight too, each read as
/// its sentence with its level, its position and its state. The first call does the work.
void InstallAccessiblePanel();

} // namespace tern7
