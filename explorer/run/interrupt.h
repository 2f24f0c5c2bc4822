#pragma once

#include <functional>

class QSqlDatabase;

namespace tern7 {

/// A call that stops the statement which runs on a connection, from any thread and while the
/// connection is open. Empty where the driver has none: only SQLite's can be stopped so.
std::function<void()> MakeInterrupt(const QSqlDatabase& database);

} // namespace tern7
