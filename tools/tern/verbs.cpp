#include "verbs.h"

namespace tern7 {

namespace {

constexpr TOption importOptions[] = {{"--schema"}, {"-o"}};
constexpr TOption sqlOptions[] = {{"--syntax"}, {"--options"}, {"--main"},     {"--bound", false},
                                  {"--date"},   {"--time"},    {"--datetime"}, {"--quotes"}};
constexpr TOption runOptions[] = {{"--format"}, {"--limit"}, {"--param"},    {"--partial", false},
                                  {"--date"},   {"--time"},  {"--datetime"}, {"--quotes"}};
constexpr TOption formatOptions[] = {{"--date"}, {"--time"}, {"--datetime"}, {"--quotes"}};
constexpr TOption describeOptions[] = {{"--titles"}};

#define TERN7_FORMAT_HELP                                                                          \
    "  --date F --time F --datetime F   formats such as yyyy-mm-dd, hh:nn:ss, instead of those\n"  \
    "                                   of the structure; empty: values stand as entered\n"        \
    "  --quotes []                      opening and closing sign of quoted names\n"

constexpr TVerb verbs[] = {
    {"import", "DATABASE [--schema NAME] [-o FILE]",
     "Makes a structure of a database: tables, fields, types, links from its foreign keys,\n"
     "readable display names.\n"
     "\n"
     "DATABASE: sqlite:PATH  postgresql://user@host:port/name  mysql://user@host:port/name\n"
     "          odbc:DSN; a password stands in the URL or comes from the environment\n"
     "  --schema NAME                    the tables of this schema only\n"
     "  -o FILE                          writes the structure there\n",
     1, 1, importOptions, RunImport},
    {"sql",
     "STRUCTURE QUERY [--syntax sql1|sql2|oracle] [--options none|LIST] [--main TABLE] [--bound]",
     "Prints the statement of a query.\n"
     "\n"
     "  --syntax sql2                    JOIN ... ON; sql1: tables with commas, inner joins in\n"
     "                                   WHERE; oracle: the same with (+) for outer joins\n"
     "  --options LIST                   none, or with commas soASCIIRFields, soSelectDistinct,\n"
     "                                   soQuoteAliases, soBracketJoins, soBracketConditions,\n"
     "                                   soSortByNames, instead of those of the query\n"
     "  --main TABLE                     alias or name of the table that joins start from\n"
     "  --bound                          every constant as ?, an empty line, then the values one\n"
     "                                   a line as "
     "{\"type\":...,\"value\":...}\n" TERN7_FORMAT_HELP,
     2, 2, sqlOptions, RunSql},
    {"run",
     "DATABASE STRUCTURE QUERY [--format table|csv|json] [--limit N] [--param NAME=VALUE]... "
     "[--partial]",
     "Executes the bound statement of a query, read-only, and prints the rows.\n"
     "\n"
     "DATABASE: sqlite:PATH  postgresql://user@host:port/name  mysql://user@host:port/name\n"
     "          odbc:DSN; a password stands in the URL or comes from the environment\n"
     "  --format table                   for people; csv and json for programs\n"
     "  --limit N                        the first N rows only\n"
     "  --param NAME=VALUE               the value of a parameter, by its name or caption\n"
     "  --partial                        leave unfinished conditions out\n" TERN7_FORMAT_HELP,
     3, 3, runOptions, RunRun},
    {"path",
     "STRUCTURE FROM TO",
     "Prints the tables of the join path between two tables, by alias, one a line.\n",
     3,
     3,
     {},
     RunPath},
    {"structure",
     "FILE",
     "Reads a structure and prints it in the present format.\n",
     1,
     1,
     {},
     RunStructure},
    {"query", "STRUCTURE FILE",
     "Reads a query and prints it in the present format, with captions when it had them.\n"
     "\n" TERN7_FORMAT_HELP,
     2, 2, formatOptions, RunQuery},
    {"describe", "STRUCTURE QUERY [--titles FILE]",
     "Prints a query as sentences, in the language of its captions.\n"
     "\n"
     "  --titles FILE                    captions of this titles or query file instead\n",
     2, 2, describeOptions, RunDescribe},
    {"check",
     "STRUCTURE QUERY...",
     "Names every row and column of the queries that the structure no longer knows; exit status\n"
     "1 when there are any.\n",
     2,
     -1,
     {},
     RunCheck},
    {"titles",
     "DEFAULTS SOURCE",
     "Merges a translation over default captions and prints the result.\n"
     "\n"
     "DEFAULTS: panel  fields  or a file\n",
     2,
     2,
     {},
     RunTitles},
};

#undef TERN7_FORMAT_HELP

} // namespace

std::span<const TVerb> Verbs() {
    return verbs;
}

} // namespace tern7
