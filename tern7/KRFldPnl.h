#pragma once

#include <tern7/ui/panels/query_editor.h>
#include <tern7/ui/panels/result_fields_panel.h>
