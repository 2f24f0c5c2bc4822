#pragma once

#include <tern7/core/global/services.h>

namespace tern7 {

/// Puts into the places that are empty what a screen can do: yes/no questions, dates and times in
/// the local form. What an application has put there stays.
void FillScreenServices(TKServices& services);

} // namespace tern7
