#pragma once

#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles_text.h>
#include <tern7/ui/dialogs/titles_editor.h>
#include <tern7/ui/support/language_titles.h>
