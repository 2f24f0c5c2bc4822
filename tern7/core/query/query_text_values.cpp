#include <optional>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/dates.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/query_text.h>

namespace tern7 {

namespace {

/// True when the value has the parts that a text of that type consists of.
bool FitsType(TFieldType type, const TKDateTime& value) {
    switch (type) {
    case TFieldType::ftDate:
        return value.hasDate && !value.hasTime;
    case TFieldType::ftTime:
        return value.hasTime && !value.hasDate;
    default:
        return value.hasDate;
    }
}

std::string IsoText(const TKDateTime& value) {
    std::string text;
    if (value.hasDate) text = FormatDateTime("yyyy-mm-dd", value);
    if (!value.hasTime) return text;
    if (value.hasDate) text += ' ';
    return text + FormatDateTime(value.millisecond ? "hh:nn:ss.zzz" : "hh:nn:ss", value);
}

std::optional<TKDateTime> ReadIso(TFieldType type, std::string_view text) {
    std::optional<TKDateTime> value = ParseIsoDateTime(Trim(text));
    if (value && !FitsType(type, *value)) value.reset();
    return value;
}

std::optional<TKDateTime> ReadLocal(const TKServices& services, TFieldType type,
                                    std::string_view text) {
    TKDateTime value;
    if (services.readLocalDate && services.readLocalDate(type, text, value) &&
        FitsType(type, value))
        return value;
    return ReadIso(type, text);
}

std::optional<std::string> SaveDate(const TKServices& services, TFieldType type,
                                    std::string_view text) {
    const std::optional<TKDateTime> value = ReadLocal(services, type, text);
    return value ? std::optional(IsoText(*value)) : std::nullopt;
}

std::optional<std::string> LoadDate(const TKServices& services, TFieldType type,
                                    std::string_view text) {
    const std::optional<TKDateTime> value = ReadIso(type, text);
    // a local form may not hold a fraction of a second; the stored one is read as well
    if (!value || value->millisecond || !services.writeLocalDate) return std::nullopt;
    return services.writeLocalDate(value->hasTime ? type : TFieldType::ftDate, *value);
}

/// The value, or each item of a list, through `convert`; one that it gives nothing for stays.
template <class TConvert>
std::string ConvertValue(bool isList, std::string_view value, TConvert convert) {
    if (!isList) return convert(value).value_or(std::string(value));
    TStrings items = ParseCommaText(value);
    bool changed = false;
    for (std::string& item : items) {
        std::optional<std::string> converted = convert(item);
        if (!converted || *converted == item) continue;
        item = std::move(*converted);
        changed = true;
    }
    return changed ? ComposeCommaText(items) : std::string(value);
}

} // namespace

std::string SaveValue(const TKServices& services, TFieldType type, bool isList,
                      std::string_view value) {
    if (!IsDateOrTime(type)) return std::string(value);
    return ConvertValue(isList, value,
                        [&](std::string_view text) { return SaveDate(services, type, text); });
}

std::string LoadValue(const TKServices& services, TFieldType type, bool isList,
                      std::string_view stored) {
    if (!IsDateOrTime(type)) return std::string(stored);
    return ConvertValue(isList, stored,
                        [&](std::string_view text) { return LoadDate(services, type, text); });
}

} // namespace tern7
