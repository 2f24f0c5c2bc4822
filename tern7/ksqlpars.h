#pragma once

#include <tern7/core/parser/sql_parser.h>
