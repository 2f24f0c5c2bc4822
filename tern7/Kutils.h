#pragma once

#include <tern7/core/corekit/dates.h>
#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/corekit/object_list.h>
