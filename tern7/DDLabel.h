#pragma once

#include <tern7/ui/controls/check_list_box.h>
#include <tern7/ui/controls/drop_down_date_time_edit.h>
#include <tern7/ui/controls/drop_down_edit.h>
#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/controls/drop_down_list_box.h>
#include <tern7/ui/controls/drop_down_mask_edit.h>
#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/controls/silent_edit.h>
#include <tern7/ui/support/system_metrics.h>
