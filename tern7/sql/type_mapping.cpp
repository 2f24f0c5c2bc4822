#include <tern7/sql/type_mapping.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>

#include <QtCore/QMetaType>
#include <QtSql/QSqlField>

#include <tern7/core/corekit/numbers.h>
#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

using enum TFieldType;

/// Where the size of a column comes from.
enum class TSize : uint8_t {
    None,
    Length, ///< the first number of the declaration
    Scale   ///< the second one
};

struct TTypeRow {
    std::string_view name;
    TFieldType type;
    TSize size = TSize::None;
};

template <size_t Count>
const TTypeRow* FindType(const TTypeRow (&rows)[Count], std::string_view name) {
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [&](const TTypeRow& each) { return each.name == name; });
    return row == std::end(rows) ? nullptr : row;
}

int Limited(long long size) {
    return static_cast<int>(std::clamp<long long>(size, 0, std::numeric_limits<int>::max()));
}

// ---------------------------------------------------------------------------------------- SQLite

constexpr TTypeRow sqliteTypes[] = {
    {"TINYINT", ftSmallint},
    {"SMALLINT", ftSmallint},
    {"INT2", ftSmallint},
    {"YEAR", ftSmallint},
    {"INT", ftInteger},
    {"INTEGER", ftInteger},
    {"MEDIUMINT", ftInteger},
    {"INT4", ftInteger},
    {"SERIAL", ftInteger},
    {"BIGINT", ftLargeint},
    {"INT8", ftLargeint},
    {"BIG INT", ftLargeint},
    {"BIGSERIAL", ftLargeint},
    {"BOOL", ftBoolean},
    {"BOOLEAN", ftBoolean},
    {"BIT", ftBoolean},
    {"REAL", ftFloat},
    {"DOUBLE", ftFloat},
    {"DOUBLE PRECISION", ftFloat},
    {"FLOAT", ftFloat},
    {"NUMERIC", ftBCD, TSize::Scale},
    {"DECIMAL", ftBCD, TSize::Scale},
    {"DEC", ftBCD, TSize::Scale},
    {"NUMBER", ftBCD, TSize::Scale},
    {"MONEY", ftCurrency},
    {"CURRENCY", ftCurrency},
    {"SMALLMONEY", ftCurrency},
    {"DATE", ftDate},
    {"TIME", ftTime},
    {"DATETIME", ftDateTime},
    {"SMALLDATETIME", ftDateTime},
    {"TIMESTAMP", ftDateTime},
    {"TIMESTAMPTZ", ftDateTime},
    {"TIMESTAMP WITH TIME ZONE", ftDateTime},
    {"TIMESTAMP WITHOUT TIME ZONE", ftDateTime},
    {"CHAR", ftString, TSize::Length},
    {"CHARACTER", ftString, TSize::Length},
    {"VARCHAR", ftString, TSize::Length},
    {"VARCHAR2", ftString, TSize::Length},
    {"NCHAR", ftString, TSize::Length},
    {"NVARCHAR", ftString, TSize::Length},
    {"NVARCHAR2", ftString, TSize::Length},
    {"VARYING CHARACTER", ftString, TSize::Length},
    {"CHARACTER VARYING", ftString, TSize::Length},
    {"NATIVE CHARACTER", ftString, TSize::Length},
    {"TEXT", ftString},
    {"NTEXT", ftString},
    {"STRING", ftString},
    {"ENUM", ftString},
    {"ANY", ftString},
    {"UUID", ftString},
    {"GUID", ftString},
    {"UNIQUEIDENTIFIER", ftString},
    {"CLOB", ftMemo},
    {"NCLOB", ftMemo},
    {"JSON", ftMemo},
    {"XML", ftMemo},
    {"BLOB", ftBlob},
    {"BINARY", ftBlob},
    {"VARBINARY", ftBlob},
    {"IMAGE", ftBlob},
};

/// The numbers in the first brackets: DECIMAL(10, 2).
struct TNumbers {
    int first = 0;
    int second = 0;
};

TNumbers NumbersOf(std::string_view inBrackets) {
    return {XStrToInt(Trim(GetBeforeSep(inBrackets, ","))),
            XStrToInt(Trim(GetAfterSep(inBrackets, ",")))};
}

/// The words of a declaration in upper case, one blank between, without brackets and "UNSIGNED".
std::string TypeWords(std::string_view declared) {
    std::string words;
    size_t at = 0;
    while (at < declared.size()) {
        if (declared[at] == '(') {
            at = std::min(declared.find(')', at), declared.size() - 1) + 1;
        } else if (IsSpace(declared[at])) {
            ++at;
        } else {
            const size_t from = at;
            while (at < declared.size() && !IsSpace(declared[at]) && declared[at] != '(')
                ++at;
            const std::string word = UpperCase(declared.substr(from, at - from));
            if (word == "UNSIGNED" || word == "SIGNED") continue;
            if (!words.empty()) words += ' ';
            words += word;
        }
    }
    return words;
}

TFieldType TypeByAffinity(std::string_view words) {
    const auto has = [&](std::string_view part) {
        return words.find(part) != std::string_view::npos;
    };
    if (has("BIGINT")) return ftLargeint;
    if (has("INT")) return ftInteger;
    if (has("CHAR") || has("CLOB") || has("TEXT")) return ftString;
    if (has("BLOB")) return ftBlob;
    if (has("REAL") || has("FLOA") || has("DOUB")) return ftFloat;
    return words.empty() ? ftString : ftBCD;
}

// ------------------------------------------------------------------------------------ PostgreSQL

constexpr TTypeRow postgresqlTypes[] = {
    {"int2", ftSmallint},
    {"int4", ftInteger},
    {"int8", ftLargeint},
    {"oid", ftLargeint},
    {"bool", ftBoolean},
    {"float4", ftFloat},
    {"float8", ftFloat},
    {"numeric", ftBCD, TSize::Scale},
    // numbers without quotes can not be compared with it, texts can
    {"money", ftString},
    {"date", ftDate},
    {"time", ftTime},
    {"timetz", ftTime},
    {"timestamp", ftDateTime},
    {"timestamptz", ftDateTime},
    {"varchar", ftString, TSize::Length},
    {"bpchar", ftString, TSize::Length},
    {"text", ftString},
    {"xml", ftMemo},
    {"json", ftMemo},
    {"jsonb", ftMemo},
    {"bytea", ftBlob},
};

constexpr int uuidLength = 36;
constexpr int nameLength = 63;

/// The scale in a type modifier: eleven bits with sign.
int NumericScale(int modifier) {
    return (((modifier - 4) & 0x7FF) ^ 0x400) - 0x400;
}

// ----------------------------------------------------------------------------------------- MySQL

constexpr TTypeRow mysqlTypes[] = {
    {"tinyint", ftSmallint},
    {"smallint", ftSmallint},
    {"year", ftSmallint},
    {"mediumint", ftInteger},
    {"int", ftInteger},
    {"bigint", ftLargeint},
    {"float", ftFloat},
    {"double", ftFloat},
    {"decimal", ftBCD, TSize::Scale},
    {"date", ftDate},
    {"time", ftTime},
    {"datetime", ftDateTime},
    {"timestamp", ftDateTime},
    {"char", ftString, TSize::Length},
    {"varchar", ftString, TSize::Length},
    {"enum", ftString, TSize::Length},
    {"set", ftString, TSize::Length},
    {"tinytext", ftMemo},
    {"text", ftMemo},
    {"mediumtext", ftMemo},
    {"longtext", ftMemo},
    {"json", ftMemo},
    {"binary", ftBytes, TSize::Length},
    {"varbinary", ftVarBytes, TSize::Length},
    {"tinyblob", ftBlob},
    {"blob", ftBlob},
    {"mediumblob", ftBlob},
    {"longblob", ftBlob},
};

int BitCount(std::string_view columnType) {
    return XStrToInt(GetBeforeSep(GetAfterSep(columnType, "("), ")"), 1);
}

// --------------------------------------------------------------------------------------- drivers

struct TNumberedType {
    int number;
    TFieldType type;
    TSize size = TSize::None;
};

constexpr TNumberedType odbcTypes[] = {
    {-7, ftBoolean},
    {-6, ftSmallint},
    {5, ftSmallint},
    {4, ftInteger},
    {-5, ftLargeint},
    {6, ftFloat},
    {7, ftFloat},
    {8, ftFloat},
    {2, ftBCD, TSize::Scale},
    {3, ftBCD, TSize::Scale},
    {9, ftDate},
    {91, ftDate},
    {10, ftTime},
    {92, ftTime},
    {11, ftDateTime},
    {93, ftDateTime},
    {1, ftString, TSize::Length},
    {-8, ftString, TSize::Length},
    {12, ftString, TSize::Length},
    {-9, ftString, TSize::Length},
    {-11, ftString, TSize::Length},
    {-1, ftMemo},
    {-10, ftMemo},
    {-2, ftBytes, TSize::Length},
    {-3, ftVarBytes, TSize::Length},
    {-4, ftBlob},
};

constexpr TNumberedType valueTypes[] = {
    {QMetaType::Bool, ftBoolean},
    {QMetaType::Char, ftSmallint},
    {QMetaType::SChar, ftSmallint},
    {QMetaType::UChar, ftSmallint},
    {QMetaType::Short, ftSmallint},
    {QMetaType::UShort, ftWord},
    {QMetaType::Int, ftInteger},
    {QMetaType::UInt, ftLargeint},
    {QMetaType::Long, ftLargeint},
    {QMetaType::ULong, ftLargeint},
    {QMetaType::LongLong, ftLargeint},
    {QMetaType::ULongLong, ftLargeint},
    {QMetaType::Float, ftFloat},
    {QMetaType::Double, ftFloat},
    {QMetaType::QDate, ftDate},
    {QMetaType::QTime, ftTime},
    {QMetaType::QDateTime, ftDateTime},
    {QMetaType::QByteArray, ftBlob},
    {QMetaType::QString, ftString, TSize::Length},
};

template <size_t Count>
const TNumberedType* FindType(const TNumberedType (&rows)[Count], int number) {
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [&](const TNumberedType& each) { return each.number == number; });
    return row == std::end(rows) ? nullptr : row;
}

} // namespace

TKColumnType SQLiteColumnType(std::string_view declared) {
    const std::string words = TypeWords(declared);
    const TTypeRow* row = FindType(sqliteTypes, words);
    if (!row) return {TypeByAffinity(words), 0};
    const TNumbers numbers = NumbersOf(GetBeforeSep(GetAfterSep(declared, "("), ")"));
    switch (row->size) {
    case TSize::Length:
        return {row->type, Limited(numbers.first)};
    case TSize::Scale:
        return {row->type, Limited(numbers.second)};
    case TSize::None:
        break;
    }
    return {row->type, 0};
}

TKColumnType PostgreSQLColumnType(std::string_view name, int modifier, bool automatic) {
    if (name == "int4" && automatic) return {ftAutoInc, 0};
    if (name == "uuid") return {ftString, uuidLength};
    if (name == "name") return {ftString, nameLength};
    if (name == "bit" || name == "varbit") return {ftString, Limited(modifier)};
    const TTypeRow* row = FindType(postgresqlTypes, name);
    if (!row) return {};
    if (modifier < 4 || row->size == TSize::None) return {row->type, 0};
    return {row->type, Limited(row->size == TSize::Scale ? NumericScale(modifier) : modifier - 4)};
}

TKColumnType MySQLColumnType(std::string_view dataType, std::string_view columnType, bool automatic,
                             long long length, int scale) {
    const std::string name = LowerCase(dataType);
    const bool isUnsigned = ContainsAsWholeWord(columnType, "unsigned");
    if (name == "tinyint" && StartsText(columnType, "tinyint(1)")) return {ftBoolean, 0};
    if (name == "bit") {
        const int bits = BitCount(columnType);
        return bits == 1 ? TKColumnType{ftBoolean, 0} : TKColumnType{ftBytes, (bits + 7) / 8};
    }
    if ((name == "int" || name == "mediumint") && automatic) return {ftAutoInc, 0};
    if (name == "smallint" && isUnsigned) return {ftWord, 0};
    if (name == "int" && isUnsigned) return {ftLargeint, 0};
    const TTypeRow* row = FindType(mysqlTypes, name);
    if (!row) return {};
    switch (row->size) {
    case TSize::Length:
        return {row->type, Limited(length)};
    case TSize::Scale:
        return {row->type, Limited(scale)};
    case TSize::None:
        break;
    }
    return {row->type, 0};
}

TKColumnType DriverColumnType(const QSqlField& field, bool odbc) {
    constexpr int longestString = 8190;
    const TNumberedType* row = odbc ? FindType(odbcTypes, field.typeID()) : nullptr;
    const bool byValue = !row;
    if (byValue) row = FindType(valueTypes, field.metaType().id());
    if (!row) return {};
    if (row->type == ftInteger && field.isAutoValue()) return {ftAutoInc, 0};
    if (byValue && row->type == ftFloat && field.precision() > 0)
        return {ftBCD, Limited(field.precision())};
    if (byValue && row->type == ftString && (field.length() > longestString || field.length() < 0))
        return {ftMemo, 0};
    switch (row->size) {
    case TSize::Length:
        return {row->type, Limited(field.length())};
    case TSize::Scale:
        return {row->type, Limited(field.precision())};
    case TSize::None:
        break;
    }
    return {row->type, 0};
}

} // namespace tern7
