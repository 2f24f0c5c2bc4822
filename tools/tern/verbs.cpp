#include "verbs.h"

namespace tern7 {

namespace {

constexpr TOption importOptions[] = {{"--schema"}, {"-o"}};
constexpr TOption sqlOptions[] = {{"--syntax"}, {"--options"}, {"--main"}, {"--bound", false}};
constexpr TOption runOptions[] = {{"--format"}, {"--limit"}, {"--param"}, {"--partial", false}};
constexpr TOption loadOptions[] = {{"--complete", false}, {"--report"}};
constexpr TOption describeOptions[] = {{"--titles"}};

constexpr TVerb verbs[] = {
    {
        .name = "import",
        .usage = "DATABASE [--schema NAME] [-o FILE]",
        .help = R"(
Makes a structure of a database: tables, fields, types, links from its foreign keys,
readable display names.

DATABASE: sqlite:PATH  postgresql://user@host:port/name  mysql://user@host:port/name
          odbc:DSN; a password stands in the URL or comes from the environment
  --schema NAME                    the tables of this schema only
  -o FILE                          writes the structure there
)",
        .run = RunImport,
        .options = importOptions,
    },
    {
        .name = "sql",
        .usage = "STRUCTURE QUERY [--syntax sql1|sql2|oracle] [--options none|LIST] "
                 "[--main TABLE] [--bound]",
        .help = R"(
Prints the statement of a query.

  --syntax sql2                    JOIN ... ON; sql1: tables with commas, inner joins in
                                   WHERE; oracle: the same with (+) for outer joins
  --options LIST                   none, or with commas soASCIIRFields, soSelectDistinct,
                                   soQuoteAliases, soBracketJoins, soBracketConditions,
                                   soSortByNames, instead of those of the query
  --main TABLE                     alias or name of the table that joins start from
  --bound                          every constant as ?, an empty line, then the values one
                                   a line as {"type":...,"value":...}
)",
        .run = RunSql,
        .leastArguments = 2,
        .mostArguments = 2,
        .options = sqlOptions,
        .takesFormats = true,
    },
    {
        .name = "run",
        .usage = "DATABASE STRUCTURE QUERY [--format table|csv|json] [--limit N] "
                 "[--param NAME=VALUE]... [--partial]",
        .help = R"(
Executes the bound statement of a query, read-only, and prints the rows.

DATABASE: sqlite:PATH  postgresql://user@host:port/name  mysql://user@host:port/name
          odbc:DSN; a password stands in the URL or comes from the environment
  --format table                   for people, with <null> for NULL; csv and json for
                                   programs
  --limit N                        the first N rows only
  --param NAME=VALUE               the value of a parameter, by its name or caption
  --partial                        leave unfinished conditions out
)",
        .run = RunRun,
        .leastArguments = 3,
        .mostArguments = 3,
        .options = runOptions,
        .takesFormats = true,
    },
    {
        .name = "path",
        .usage = "STRUCTURE FROM TO",
        .help = R"(
Prints the tables of the join path between two tables, by alias, one a line.
)",
        .run = RunPath,
        .leastArguments = 3,
        .mostArguments = 3,
    },
    {
        .name = "parse",
        .usage = "[FILE]",
        .help = R"(
Prints what the parser reads in a SELECT statement, as JSON: distinct, allFields, fields,
tables, where (brackets and conditions), rest (the text that was ignored). Without FILE the
statement comes from the standard input.
)",
        .run = RunParse,
        .leastArguments = 0,
    },
    {
        .name = "load",
        .usage = "STRUCTURE [SQLFILE] [--complete] [--report text|json]",
        .help = R"(
Reads a SELECT statement and prints it as a query, without captions. What was kept as text,
and what was not read, is told on the standard error; exit status 1 when something was
dropped. Without SQLFILE the statement comes from the standard input.

  --complete                       tables, joins, aliases, grouping and options too
  --report text                    everything that was read, one line each, with line and
                                   column; json: the same as an array of objects
)",
        .run = RunLoad,
        .leastArguments = 1,
        .mostArguments = 2,
        .options = loadOptions,
        .takesFormats = true,
    },
    {
        .name = "structure",
        .usage = "FILE",
        .help = R"(
Reads a structure and prints it in the present format.
)",
        .run = RunStructure,
    },
    {
        .name = "query",
        .usage = "STRUCTURE FILE",
        .help = R"(
Reads a query and prints it in the present format, with captions when it had them.
)",
        .run = RunQuery,
        .leastArguments = 2,
        .mostArguments = 2,
        .takesFormats = true,
    },
    {
        .name = "describe",
        .usage = "STRUCTURE QUERY [--titles FILE]",
        .help = R"(
Prints a query as sentences, in the language of its captions.

  --titles FILE                    captions of this titles or query file instead
)",
        .run = RunDescribe,
        .leastArguments = 2,
        .mostArguments = 2,
        .options = describeOptions,
    },
    {
        .name = "check",
        .usage = "STRUCTURE QUERY...",
        .help = R"(
Names every row and column of the queries that the structure no longer knows; exit status 1
when there are any.
)",
        .run = RunCheck,
        .leastArguments = 2,
        .mostArguments = -1,
    },
    {
        .name = "titles",
        .usage = "DEFAULTS SOURCE",
        .help = R"(
Merges a translation over default captions and prints the result.

DEFAULTS: panel  fields  or a file
)",
        .run = RunTitles,
        .leastArguments = 2,
        .mostArguments = 2,
    },
};

} // namespace

std::span<const TVerb> Verbs() {
    return verbs;
}

} // namespace tern7
