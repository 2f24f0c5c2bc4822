#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace tern7 {

/// A column of a table, or an SQL expression under a name.
enum class TKFieldKind : uint8_t { kfkData = 0, kfkVirtual = 1 };

/// Database field types; the ordinals stand in structure files.
enum class TFieldType : uint8_t {
    ftUnknown,
    ftString,
    ftSmallint,
    ftInteger,
    ftWord,
    ftBoolean,
    ftFloat,
    ftCurrency,
    ftBCD,
    ftDate,
    ftTime,
    ftDateTime,
    ftBytes,
    ftVarBytes,
    ftAutoInc,
    ftBlob,
    ftMemo,
    ftGraphic,
    ftFmtMemo,
    ftParadoxOle,
    ftDBaseOle,
    ftTypedBinary,
    ftCursor,
    ftFixedChar,
    ftWideString,
    ftLargeint,
    ftADT,
    ftArray,
    ftReference,
    ftDataSet,
    ftOraBlob,
    ftOraClob,
    ftVariant,
    ftInterface,
    ftIDispatch,
    ftGuid,
    ftTimeStamp,
    ftFMTBcd
};
inline constexpr int FieldTypeCount = 38;

/// A set of field types: a bit set over their ordinals.
class TFieldTypes {
public:
    constexpr TFieldTypes() = default;
    constexpr TFieldTypes(std::initializer_list<TFieldType> types) {
        for (TFieldType type : types)
            Include(type);
    }
    constexpr bool Contains(TFieldType type) const { return (bits >> static_cast<int>(type)) & 1u; }
    constexpr void Include(TFieldType type) { bits |= uint64_t{1} << static_cast<int>(type); }
    constexpr void Exclude(TFieldType type) { bits &= ~(uint64_t{1} << static_cast<int>(type)); }
    constexpr bool operator==(const TFieldTypes&) const = default;
    constexpr TFieldTypes operator|(TFieldTypes other) const {
        TFieldTypes result = other;
        result.bits |= bits;
        return result;
    }
    constexpr bool IsEmpty() const { return bits == 0; }

private:
    uint64_t bits = 0;
};
using TAppliedTypes = TFieldTypes;
using TQuotedTypes = TFieldTypes;

/// The enumeration names, "ftString".
std::string_view FldTypeToStr(TFieldType type);
/// By name without regard to case; nothing for an unknown name.
std::optional<TFieldType> StrToFldType(std::string_view name);
/// Nothing when the number is no ordinal of a field type.
std::optional<TFieldType> IntToFldType(int ordinal);
std::string_view FldKindToStr(TKFieldKind kind);
std::optional<TKFieldKind> StrToFldKind(std::string_view name);

/// ftDate, ftTime, ftDateTime and ftTimeStamp.
constexpr bool IsDateOrTime(TFieldType type) {
    return type == TFieldType::ftDate || type == TFieldType::ftTime ||
           type == TFieldType::ftDateTime || type == TFieldType::ftTimeStamp;
}

/// The comma list of type names of a set, in the order of their ordinals.
std::string FieldTypesToStr(TFieldTypes types);

} // namespace tern7
