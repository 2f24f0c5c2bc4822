#pragma once

#include <tern7/core/global/messages.h>
