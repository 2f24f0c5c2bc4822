#pragma once

#include <tern7/core/querybase/query_base.h>
