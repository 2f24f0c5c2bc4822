#pragma once

#include <QString>

#include <tern7/core/global/errors.h>
#include <tern7/core/global/events.h>

namespace tern7 {

class TDropDownLabel;

/// What the drop-down controls raise, and its texts.
class EDDLabelError : public EKTernError {
public:
    using EKTernError::EKTernError;

    static constexpr const char* indexOutOfBounds = "Index out of bounds";
    static constexpr const char* menuIndexOutOfRange = "Menu index out of range";
};

using TNotifyEvent = TEvent<TDropDownLabel*>;
using TAltClickEvent = TEvent<TDropDownLabel*>;
/// Sender, value, and whether the value is to be accepted: clearing `accept` is a veto.
using TBeforeDropUpEvent = TEvent<TDropDownLabel*, const QString& /*value*/, bool& /*accept*/>;
using TAfterDropUpEvent = TEvent<TDropDownLabel*, bool /*accepted*/>;
using TCustomDropDownEvent = TEvent<TDropDownLabel*, QString& /*value*/, bool& /*accept*/>;
using TChangeValueEvent = TEvent<TDropDownLabel*, QString& /*value*/>;
using TGetGroupImageIndexEvent = TEvent<const QString& /*group*/, int& /*imageIndex*/>;
using TGetItemImageIndexEvent =
    TEvent<const QString& /*group*/, const QString& /*item*/, int& /*imageIndex*/>;

} // namespace tern7
