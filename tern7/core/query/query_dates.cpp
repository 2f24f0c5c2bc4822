#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>

namespace tern7 {

namespace {

constexpr std::string_view isoDate = "yyyy-mm-dd";
constexpr std::string_view isoTime = "hh:nn:ss";

std::string LocalText(const TKServices& services, TFieldType type, const TKDateTime& value) {
    if (services.writeLocalDate) return services.writeLocalDate(type, value);
    if (type == TFieldType::ftTime) return FormatDateTime(isoTime, value);
    std::string text = FormatDateTime(isoDate, value);
    if (type != TFieldType::ftDate) text += " " + FormatDateTime(isoTime, value);
    return text;
}

std::optional<TKDateTime> ReadLocalDate(const TKServices& services, TFieldType type,
                                        std::string_view text) {
    TKDateTime value;
    if (services.readLocalDate && services.readLocalDate(type, text, value)) return value;
    return ParseIsoDateTime(text);
}

/// A time is no date; whatever has a time of day can stand for a time.
bool Fits(TFieldType type, const TKDateTime& value) {
    return type == TFieldType::ftTime ? value.hasTime : value.hasDate;
}

const std::string& FormatOf(const TSQLFormats& formats, TFieldType type) {
    if (type == TFieldType::ftDate) return formats.Date();
    if (type == TFieldType::ftTime) return formats.Time();
    return formats.DateTime();
}

} // namespace

std::string TKQuery::ProcessDateValue(TFieldType type, std::string_view value, bool toSQL) const {
    if (!structure) return std::string(value);
    const TSQLFormats& formats = structure->SQLFormats();
    // Reading takes the date format for every type, times included; kept as applications know it.
    const std::string& format = toSQL ? FormatOf(formats, type) : formats.Date();
    if (format.empty()) return std::string(value);
    const auto date =
        toSQL ? ReadLocalDate(Services, type, value) : ParseDateTime(format, Trim(value));
    if (!date || !Fits(toSQL ? type : TFieldType::ftDate, *date)) return std::string(value);
    if (toSQL) return FormatDateTime(format, *date);
    return LocalText(Services, date->hasTime ? TFieldType::ftDateTime : TFieldType::ftDate, *date);
}

void TKQuery::ChangeLocalForms(const std::function<void()>& change) {
    CloseEditors();
    ConvertDates(true);
    try {
        change();
    } catch (...) {
        ConvertDates(false);
        throw;
    }
    ConvertDates(false);
    EverythingChanged();
}

/// Between the local form and that of saved queries.
void TKQuery::ConvertDates(bool toStored) {
    const auto convertRow = [&](TFilterRow& row) {
        TFilterCond* condition = row.AsCond();
        if (!condition) return;
        if (condition->extras && condition->extras->nested)
            condition->extras->nested->ConvertDates(toStored);
        const TFieldType type = condition->GetExprType();
        if (!IsDateOrTime(type)) return;
        const auto convert = [&](const std::string& text) {
            const auto form = toStored ? SaveValue : LoadValue;
            return form(Services, type, condition->IsListOperator(), text);
        };
        for (int n = 1; n <= 2; ++n) {
            TFilterCond::TValue& value = condition->values[n - 1];
            value.text.Set(convert(value.text.Get()));
            value.caption = convert(value.caption);
            TSQLParam* param = value.param;
            if (condition->extras && condition->extras->parked[n - 1])
                param = condition->extras->parked[n - 1].get();
            if (param && param->given) param->given = convert(*param->given);
        }
    };
    ForEachRow(*root, convertRow);
    for (TFilterRow* row : detachedRows)
        ForEachRow(*row, convertRow);
}

} // namespace tern7
