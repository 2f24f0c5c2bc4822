#pragma once

#include <tern7/core/structure/structure.h>
#if __has_include(<QWidget>) && __has_include(<tern7/ui/panels/db_structure.h>)
#include <tern7/ui/panels/db_structure.h>
#endif
