#pragma once

#include <string_view>

#include <tern7/core/corekit/messages.h> // texts and files

/// The message strings of the library, in one table. "%s" and "%d" stand for a name or a number and
/// are filled in by FormatMessage.
namespace tern7::messages {

// structure
inline constexpr std::string_view InvalidTableIndex = "Invalid table index %d";
inline constexpr std::string_view InvalidFieldIndex = "Invalid field index %d";
inline constexpr std::string_view InvalidLinkIndex = "Invalid link index %d";
inline constexpr std::string_view InvalidOperatorIndex = "Invalid operator index %d";
inline constexpr std::string_view NoSuchTable = "No such table %s";
inline constexpr std::string_view NoPath = "Can not find path between tables";
inline constexpr std::string_view OperatorNotFound = "Operator not found: %s";
inline constexpr std::string_view AssignFieldNameToVirtual =
    "Can not assign field name to virtual field";
inline constexpr std::string_view AssignExpressionToData =
    "Can not assign expression to data field";
inline constexpr std::string_view SectionNotFound = "Can not find section %s";
inline constexpr std::string_view FieldNotInTable = "Can not find field \"%s\" in table \"%s\"";
inline constexpr std::string_view AliasInUse = "Table alias \"%s\" is in use";
inline constexpr std::string_view OperatorNameInUse = "Operator name \"%s\" is in use";
inline constexpr std::string_view NoDatabaseInfo = "DatabaseInfo is not specified";
inline constexpr std::string_view UnrecognizedField = "Unrecognized field";
inline constexpr std::string_view UnrecognizedOperator = "Unrecognized operator";

inline constexpr std::string_view IDGivenTwice =
    "The ID %d of field \"%s\" can not be used; the field got the ID %d";
inline constexpr std::string_view AliasGivenTwice =
    "The alias \"%s\" is used more than once; the later table got the alias \"%s\"";
inline constexpr std::string_view UnknownGroupField =
    "The group \"%s\" names a field with the ID %d that does not exist";
inline constexpr std::string_view NewerVersion =
    "The text has the version %s; what is newer than %s was not read";
inline constexpr std::string_view NoUTF8 = "The text is not UTF-8; it was read as Windows-1252";

// structure editor
inline constexpr std::string_view AskDeleteTable = "Delete table?";
inline constexpr std::string_view AskDeleteField = "Delete field?";
inline constexpr std::string_view AskDeleteLink = "Delete Link?";
inline constexpr std::string_view AskDeleteOperator = "Delete operator?";
inline constexpr std::string_view AskDeleteAllOperators = "Delete all operators?";
inline constexpr std::string_view AskDeleteGroup = "Delete group?";
inline constexpr std::string_view AskClearStructure = "Clear Structure?";
inline constexpr std::string_view And = "and";

// metadata
inline constexpr std::string_view FieldCountTooSmall = "Field count must be >= 2";
inline constexpr std::string_view NoSuchConnection = "No such database connection: %s";

// connections and execution
inline constexpr std::string_view WrongDatabaseAddress =
    "The database must be given as sqlite:PATH, postgresql://user@host:port/name, "
    "mysql://user@host:port/name or odbc:DSN";
inline constexpr std::string_view WrongDatabasePort =
    "The port of the database address must be a number from 1 to 65535";
inline constexpr std::string_view WrongDatabaseOption =
    "The database address has an unknown or wrong option \"%s\"";
inline constexpr std::string_view NoDatabaseName = "The database address names no database";
inline constexpr std::string_view NoSuchDatabaseFile = "No such database file: %s";
inline constexpr std::string_view NoDatabaseDriver = "Qt SQL driver %s is not installed";
inline constexpr std::string_view CanNotOpenDatabase = "Can not open database %s: %s";
inline constexpr std::string_view OnlySelect = "Only SELECT statements are executed";
inline constexpr std::string_view OnlyOneStatement = "Only one statement is executed at a time";
inline constexpr std::string_view StatementNotClosed =
    "A quote, comment or bracket of the statement is not closed";
inline constexpr std::string_view NulInStatement = "The statement holds a NUL character";
inline constexpr std::string_view ParameterWithoutValue = "A parameter has no value: %s";
inline constexpr std::string_view WrongValueCount =
    "The statement has %d placeholders, but %d values are given";

// query
inline constexpr std::string_view NotBuiltProperly = "Query was not built properly";
inline constexpr std::string_view WrongResultTableLink = "Can't add result table: wrong link";
inline constexpr std::string_view NotEnoughInformation = "No enough information for building query";
inline constexpr std::string_view NoStructure = "Database structure is not specified";
inline constexpr std::string_view WrongValue = "Wrong value for field \"%s\": %s";
inline constexpr std::string_view CanNotExecuteCondition = "Can not execute condition: %s";
inline constexpr std::string_view FieldNotFound = "Field not found: %s";
inline constexpr std::string_view PlaceholderInLiteral =
    "An expression with fields can not hold \"@\" and a digit in a text: %s";
inline constexpr std::string_view NestedTooDeep = "Rows are nested too deep";
inline constexpr std::string_view ChangeWhileBuilding =
    "Rows can not be changed while the query is built";
inline constexpr std::string_view StructureChangedWhileBuilding =
    "The structure can not be changed while the query is built";
inline constexpr std::string_view NulInValue = "A value holds a NUL character";
inline constexpr std::string_view NoQueryBase = "Query base is not specified";

// SQL parser
inline constexpr std::string_view WrongSQL = "Wrong SQL statement";
inline constexpr std::string_view LostBracket = "Lost bracket";

} // namespace tern7::messages
