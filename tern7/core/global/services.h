#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <tern7/core/corekit/dates.h>
#include <tern7/core/global/field_types.h>

namespace tern7 {

class TKCustomDBStructure;
class TFilterCond;

/// What the core may ask of a screen. An empty callable means: not available. Each structure and
/// query holds its own copy; nested queries get that of the outer one.
struct TKServices {
    /// A yes/no question.
    std::function<bool(std::string_view question)> ask;
    /// Opens the structure editor; true when the structure was changed.
    std::function<bool(TKCustomDBStructure& structure)> editStructure;
    /// Edits the sub-query of a condition; true when it was changed.
    std::function<bool(TFilterCond& condition)> editSubQuery;
    /// Reads and writes dates and times in the local form. Without them the local form is
    /// `yyyy-mm-dd`, `hh:nn:ss`, and both with a blank between.
    std::function<std::string(TFieldType type, const TKDateTime& value)> writeLocalDate;
    std::function<bool(TFieldType type, std::string_view text, TKDateTime& value)> readLocalDate;
};

/// The yes/no question through the services; false when nobody can be asked.
inline bool Ask(const TKServices& services, std::string_view question) {
    return services.ask && services.ask(question);
}

} // namespace tern7
