#include <tern7/core/query/query_text_keys.h>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/messages.h>

namespace tern7 {

void RaiseWrongValue(const TKIniSection& section, std::string_view key) {
    throw EKQueryPanelError(
        FormatMessage(messages::WrongValueOfKey, {key, section.Name(), section.Raw(key)}));
}

void RaiseSectionNotFound(std::string_view name) {
    throw EKQueryPanelError(FormatMessage(messages::SectionNotFound, {name}));
}

int IntInRange(const TKIniSection& section, std::string_view key, int otherwise, int low,
               int high) {
    const int value = section.Int(key, otherwise);
    if (value < low || value > high) RaiseWrongValue(section, key);
    return value;
}

} // namespace tern7
