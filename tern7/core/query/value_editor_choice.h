#pragma once

#include <cstdint>

#include <tern7/core/query/filter_row.h>
#include <tern7/core/structure/field.h>

namespace tern7 {

/// What a value is entered with.
enum class TValueEditKind : uint8_t {
    vkText,
    vkMask,
    vkDate,
    vkTime,
    vkDateTime, ///< text in the local form, checked on leaving
    vkBoolean,  ///< a choice of 1 and 0
    vkList,     ///< a choice of the field's list; of a list read by SQL too
    vkCheckList,
    vkCustom, ///< the application's
    vkSubQuery
};

/// The editor for the values of a condition, from its field and operator:
///
///     sub-query operator                          vkSubQuery
///     the field's own custom editor               vkCustom
///     list operator                               vkCheckList when the field has a list, else
///     vkText operand of another type than the field's    by that type list, text, mask, date, time
///     as the field's editor says automatic                                   by type
TValueEditKind ChooseValueEditor(const TFilterCond& condition);

/// The editor of a type without settings.
TValueEditKind ValueEditorOf(TFieldType type);

} // namespace tern7
