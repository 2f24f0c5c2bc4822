#pragma once

#include <tern7/ui/controls/flat_check_box.h>
#include <tern7/ui/controls/round_button.h>
