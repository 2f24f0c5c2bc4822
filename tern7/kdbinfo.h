#pragma once

#include <tern7/core/metadata/db_info.h>
