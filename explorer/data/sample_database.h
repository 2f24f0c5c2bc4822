#pragma once

#include <QString>

namespace tern7 {

/// The file of the sample database in the user's data folder; made when it is not there yet.
/// EKDBInfoError when it can not be made.
QString SampleDatabase();

} // namespace tern7
