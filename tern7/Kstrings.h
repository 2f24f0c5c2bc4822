#pragma once

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/corekit/token_reader.h>
