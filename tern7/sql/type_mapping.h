#pragma once

#include <string_view>

#include <tern7/core/global/field_types.h>

class QSqlField;

/// The field types of columns, by what the database declares. Whatever has no field type of its own
/// is ftString. Exact decimals are ftBCD and CHAR(n) is ftString, since the default operators know
/// nothing of ftFMTBcd, ftFixedChar, ftGuid and ftWideString.
namespace tern7 {

/// Type and size of a column: the size is characters of texts, the scale of exact decimals, bytes
/// of short binary columns, else 0.
struct TKColumnType {
    TFieldType type = TFieldType::ftString;
    int size = 0;

    bool operator==(const TKColumnType&) const = default;
};

/// By the declared type as SQLite keeps it: "VARCHAR ( 30 )", "DECIMAL(10, 2)", "int unsigned".
/// Words that are not known go by SQLite's rule of affinity.
TKColumnType SQLiteColumnType(std::string_view declared);

/// By the name of the base type in pg_type and the type modifier (-1 for none); `automatic` for an
/// identity column or one filled from a sequence.
TKColumnType PostgreSQLColumnType(std::string_view name, int modifier, bool automatic);

/// By data_type and column_type of information_schema.columns; `length` and `scale` are
/// character_maximum_length and numeric_scale.
TKColumnType MySQLColumnType(std::string_view dataType, std::string_view columnType, bool automatic,
                             long long length, int scale);

/// By what a driver says about a column: the ODBC type where the driver gives one, else the type of
/// its values.
TKColumnType DriverColumnType(const QSqlField& field, bool odbc);

} // namespace tern7
