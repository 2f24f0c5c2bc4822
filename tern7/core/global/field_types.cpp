#include <tern7/core/global/field_types.h>

#include <array>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

constexpr std::array<std::string_view, FieldTypeCount> typeNames = {
    "ftUnknown",    "ftString",     "ftSmallint", "ftInteger",     "ftWord",      "ftBoolean",
    "ftFloat",      "ftCurrency",   "ftBCD",      "ftDate",        "ftTime",      "ftDateTime",
    "ftBytes",      "ftVarBytes",   "ftAutoInc",  "ftBlob",        "ftMemo",      "ftGraphic",
    "ftFmtMemo",    "ftParadoxOle", "ftDBaseOle", "ftTypedBinary", "ftCursor",    "ftFixedChar",
    "ftWideString", "ftLargeint",   "ftADT",      "ftArray",       "ftReference", "ftDataSet",
    "ftOraBlob",    "ftOraClob",    "ftVariant",  "ftInterface",   "ftIDispatch", "ftGuid",
    "ftTimeStamp",  "ftFMTBcd"};

} // namespace

std::string_view FldTypeToStr(TFieldType type) {
    return typeNames[static_cast<size_t>(type)];
}

std::optional<TFieldType> StrToFldType(std::string_view name) {
    for (size_t i = 0; i < typeNames.size(); ++i)
        if (SameText(typeNames[i], name)) return static_cast<TFieldType>(i);
    return std::nullopt;
}

std::optional<TFieldType> IntToFldType(int ordinal) {
    if (ordinal < 0 || ordinal >= FieldTypeCount) return std::nullopt;
    return static_cast<TFieldType>(ordinal);
}

std::string_view FldKindToStr(TKFieldKind kind) {
    return kind == TKFieldKind::kfkData ? "kfkData" : "kfkVirtual";
}

std::optional<TKFieldKind> StrToFldKind(std::string_view name) {
    if (SameText(name, "kfkData")) return TKFieldKind::kfkData;
    if (SameText(name, "kfkVirtual")) return TKFieldKind::kfkVirtual;
    return std::nullopt;
}

std::string FieldTypesToStr(TFieldTypes types) {
    TStrings names;
    for (int i = 0; i < FieldTypeCount; ++i)
        if (types.Contains(static_cast<TFieldType>(i)))
            names.emplace_back(FldTypeToStr(static_cast<TFieldType>(i)));
    return ComposeCommaText(names);
}

} // namespace tern7
