#pragma once

#include <tern7/core/query/query.h>
