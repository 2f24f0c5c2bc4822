#pragma once

#include <tern7/ui/dialogs/result_fields_editor.h>
