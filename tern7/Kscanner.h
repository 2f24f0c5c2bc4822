#pragma once

#include <tern7/core/corekit/scanner.h>
#include <tern7/core/corekit/source_text.h>
