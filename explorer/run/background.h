#pragma once

#include <functional>

namespace tern7 {

/// Runs a call in a thread of its own that nobody joins, because it may wait for a server for as
/// long as that likes.
void RunInBackground(std::function<void()> call);
/// How many such calls have not ended.
int BackgroundCount();
/// Waits until all have ended, but not longer; whether they have.
bool WaitForBackground(int milliseconds);

} // namespace tern7
