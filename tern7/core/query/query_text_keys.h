#pragma once

#include <climits>
#include <exception>
#include <string>
#include <string_view>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/global/errors.h>

namespace tern7 {

/// EKQueryPanelError "Wrong value of %s in section %s: %s".
[[noreturn]] void RaiseWrongValue(const TKIniSection& section, std::string_view key);
/// EKQueryPanelError "Can not find section %s".
[[noreturn]] void RaiseSectionNotFound(std::string_view name);
/// The integer of a key, `otherwise` when it is missing or empty.
int IntInRange(const TKIniSection& section, std::string_view key, int otherwise, int low, int high);

/// What the call returns; an error that it raises for the text becomes one of the query, with the
/// first one nested in it.
template <class TCall>
auto AsQueryError(TCall call) {
    try {
        return call();
    } catch (const EKQueryPanelError&) {
        throw;
    } catch (const EKTernError& error) {
        std::throw_with_nested(EKQueryPanelError(error.what()));
    }
}

} // namespace tern7
