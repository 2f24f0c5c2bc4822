#pragma once

#include <tern7/core/structure/structure.h>
