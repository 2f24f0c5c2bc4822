#pragma once

#include <string_view>

/// Why a part of a statement was kept as text or dropped, as the report words it; translations of
/// it go by this table. Behind AddedTable come a colon and the table's alias.
namespace tern7::reasons {

inline constexpr std::string_view RestIgnored = "the parser does not read it";
inline constexpr std::string_view NoSuchField = "no field has this expression";
inline constexpr std::string_view NoSuchOperator = "no operator has this form";
inline constexpr std::string_view NotRecognised = "no field or operator of the structure says it";
inline constexpr std::string_view KeepsTable =
    "a condition keeps this table, which nothing else uses";
inline constexpr std::string_view KeepsJoin =
    "a condition keeps this join, which the structure makes by way of other tables";
inline constexpr std::string_view UnwrittenJoin =
    "only the syntax sql1 leaves out the structure's outer join with it";
inline constexpr std::string_view UnknownNames = "it names what the structure does not have";
inline constexpr std::string_view HiddenName =
    "a table of the sub-select has the name that the structure gives another";
inline constexpr std::string_view NameOfSeveral = "several tables have a column of this name";
inline constexpr std::string_view NoTable = "the structure has no such table";
inline constexpr std::string_view NotUsed = "no column and no condition uses it";
inline constexpr std::string_view AddedTable = "the query needs a further table";
inline constexpr std::string_view OtherJoin = "the structure joins it in another way";
inline constexpr std::string_view OtherKind = "the structure joins these tables in another way";
inline constexpr std::string_view OtherOrder = "the query joins the tables in another order";
inline constexpr std::string_view NoLink = "no link of the structure";
inline constexpr std::string_view MergedColumns =
    "the columns that the tables are joined by would come twice";
inline constexpr std::string_view NameInUse = "another parameter has this name";
inline constexpr std::string_view AliasChanged = "another column has this alias";
inline constexpr std::string_view NoColumn = "it is no column";
inline constexpr std::string_view OtherGroups = "the columns ask for other groups";
inline constexpr std::string_view NotClosed = "the string is not closed";
inline constexpr std::string_view NotSaid = "a query can not say it";

inline constexpr std::string_view All[] = {
    RestIgnored,   NoSuchField,  NoSuchOperator, NotRecognised, KeepsTable, KeepsJoin,
    UnwrittenJoin, UnknownNames, HiddenName,     NameOfSeveral, NoTable,    NotUsed,
    AddedTable,    OtherJoin,    OtherKind,      OtherOrder,    NoLink,     MergedColumns,
    NameInUse,     AliasChanged, NoColumn,       OtherGroups,   NotClosed,  NotSaid};

} // namespace tern7::reasons
