#pragma once

#include <tern7/core/query/query.h>
#if __has_include(<QWidget>) && __has_include(<tern7/ui/panels/query_panel.h>)
#include <tern7/ui/panels/appearance.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/query_panel_link.h>
#endif
