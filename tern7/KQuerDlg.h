#pragma once

#include <tern7/ui/dialogs/sub_query_dialog.h>
