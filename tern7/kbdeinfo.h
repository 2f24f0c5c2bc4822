#pragma once

#include <tern7/sql/bde_info.h>
