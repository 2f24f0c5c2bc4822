#include "formulas.h"

#include <algorithm>
#include <stdexcept>

namespace tern7::proof {

using enum TFieldType;

TKindOfType KindOf(TFieldType type) {
    using enum TKindOfType;
    static const std::map<TFieldType, TKindOfType> kinds = {
        {ftSmallint, Whole},  {ftInteger, Whole}, {ftWord, Whole},         {ftAutoInc, Whole},
        {ftLargeint, Whole},  {ftBCD, Exact},     {ftCurrency, Exact},     {ftFloat, Floating},
        {ftBoolean, Boolean}, {ftDate, Date},     {ftTime, Time},          {ftDateTime, Timestamp},
        {ftString, Text},     {ftMemo, Text},     {ftTimeStamp, Timestamp}};
    return kinds.at(type); // the sample has no other
}

namespace {

using TTakes = bool (*)(TFieldType, TFieldType);
const TTakes Any = [](TFieldType, TFieldType) { return true; };
const TTakes Number = [](TFieldType type, TFieldType) { return IsNumeric(KindOf(type)); };
const TTakes Same = [](TFieldType type, TFieldType other) { return KindOf(type) == KindOf(other); };
const TTakes Ordered = [](TFieldType type, TFieldType) { return type != ftBoolean; };
// sums and products of big integers would not fit
bool IsSmall(TFieldType type) {
    return type == ftSmallint || type == ftInteger;
}
const TTakes Small = [](TFieldType a, TFieldType b) { return IsSmall(a) && IsSmall(b); };
const TTakes Summable = [](TFieldType a, TFieldType) { return IsSmall(a) || a == ftBCD; };

TCell First(const TRow& f) {
    return f.at(0);
}
template <class Operation>
TCell OfWhole(const TRow& f, Operation operation) {
    if (IsNull(f.at(0)) || IsNull(f.at(1))) return {};
    return operation(std::get<int64_t>(f[0]), std::get<int64_t>(f[1]));
}
TCell Negated(const TRow& f) {
    if (const auto* whole = std::get_if<int64_t>(&f.at(0))) return -*whole;
    if (const auto* number = std::get_if<double>(&f.at(0))) return -*number;
    return {};
}

} // namespace

const std::vector<TFormula>& Formulas() {
    using enum TAggregate;
    static const std::vector<TFormula> all = {
        {"@1", 1, None, First, Any},
        {"-@1", 1, None, Negated, Number},
        {"@1 + @2", 2, None,
         [](const TRow& f) { return OfWhole(f, [](int64_t a, int64_t b) { return a + b; }); },
         Small},
        {"@2 * 100 - @1", 2, None,
         [](const TRow& f) { return OfWhole(f, [](int64_t a, int64_t b) { return b * 100 - a; }); },
         Small},
        {"coalesce(@1, 0)", 1, None,
         [](const TRow& f) { return IsNull(f.at(0)) ? TCell(int64_t{0}) : f[0]; }, Number},
        {"coalesce(@1, @2)", 2, None,
         [](const TRow& f) { return IsNull(f.at(0)) ? f.at(1) : f[0]; }, Same},
        {"case when @1 is null then 'it''s none' else 'some: ?' end", 1, None,
         [](const TRow& f) { return TCell(IsNull(f.at(0)) ? "it's none" : "some: ?"); }, Any},
        {"count(*)", 0, CountRows, nullptr, Any},
        {"count(@1)", 1, Count, First, Any},
        {"sum(@1)", 1, Sum, First, Summable},
        {"min(@1)", 1, Min, First, Ordered},
        {"MAX(@1)", 1, Max, First, Ordered},
    };
    return all;
}

const TFormula& FormulaByText(std::string_view text) {
    const std::vector<TFormula>& all = Formulas();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const TFormula& formula) { return formula.text == text; });
    if (found == all.end()) throw std::logic_error("no such formula: " + std::string(text));
    return *found;
}

} // namespace tern7::proof
