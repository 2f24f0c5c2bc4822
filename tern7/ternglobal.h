#pragma once

#include <tern7/core/global/errors.h>
#include <tern7/core/global/events.h>
#include <tern7/core/global/field_types.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/global/services.h>
#include <tern7/core/global/sql_options.h>
