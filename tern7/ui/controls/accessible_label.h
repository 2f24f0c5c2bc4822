#pragma once

namespace tern7 {

/// Makes the controls known to screen readers. Every control calls it; the first call does the
/// work.
void InstallAccessibleControls();

} // namespace tern7
