#include <tern7/sql/reserved_words.h>

#include <string>
#include <unordered_set>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

// Words that can name neither a table nor a column without quotes, found by trying.
constexpr std::string_view everywhere =
    "all and as case cast check collate constraint create cross current_date current_time "
    "current_timestamp default distinct else except foreign from group having in inner "
    "intersect into is join left limit natural not null on or order outer primary references "
    "returning right select table then to union unique using when where";

constexpr std::string_view inSQLite =
    "add alter between commit deferrable delete drop escape exists full if index indexed "
    "insert isnull nothing notnull raise set transaction update values";

constexpr std::string_view inPostgreSQL =
    "analyse analyze any array asc asymmetric authorization binary both collation column "
    "concurrently current_catalog current_role current_schema current_user deferrable desc do "
    "end false fetch for freeze full grant ilike initially isnull lateral leading like "
    "localtime localtimestamp notnull offset only overlaps placing session_user similar some "
    "symmetric tablesample trailing true user variadic verbose window with";

// MariaDB 10.11 and MySQL 8
constexpr std::string_view inMySQL =
    "accessible add alter analyze asc asensitive before between bigint binary blob both by "
    "call cascade change char character column condition continue convert cube cume_dist "
    "current_role current_user cursor databases day_hour day_microsecond day_minute "
    "day_second dec decimal declare delayed delete delete_domain_id dense_rank desc describe "
    "deterministic distinctrow div do_domain_ids double drop dual each elseif empty enclosed "
    "escaped exists exit explain extract false fetch first_value float float4 float8 for "
    "force fulltext function generated get grant grouping groups high_priority "
    "hour_microsecond hour_minute hour_second if ignore ignore_domain_ids index infile inout "
    "insensitive insert int int1 int2 int3 int4 int8 integer interval io_after_gtids "
    "io_before_gtids iterate json_table key keys kill lag last_value lateral lead leading "
    "leave like linear lines load localtime localtimestamp lock long longblob longtext loop "
    "low_priority master_demote_to_replica master_demote_to_slave "
    "master_ssl_verify_server_cert match maxvalue mediumblob mediumint mediumtext middleint "
    "minute_microsecond minute_second mod modifies no_write_to_binlog nth_value ntile numeric "
    "of offset optimize optimizer_costs optionally out outfile over page_checksum "
    "parse_vcol_expr partition percent_rank portion position precision procedure purge range "
    "rank read read_write reads real recursive ref_system_id regexp release rename repeat "
    "replace require resignal restrict return revoke rlike row_number rows schemas "
    "second_microsecond sensitive separator set show signal smallint spatial specific sql "
    "sql_big_result sql_buffer_result sql_cache sql_calc_found_rows sql_no_cache "
    "sql_small_result sqlexception sqlstate sqlwarning ssl starting stats_auto_recalc "
    "stats_persistent stats_sample_pages stored straight_join substring system terminated "
    "tinyblob tinyint tinytext trailing trigger trim true undo unlock unsigned update usage "
    "use utc_date utc_time utc_timestamp values varbinary varchar varcharacter varying "
    "virtual while window with write xor year_month zerofill";

using TWords = std::unordered_set<std::string_view, TTextHash, TTextEqual>;

void AddWords(TWords& words, std::string_view list) {
    while (!list.empty()) {
        const size_t end = list.find(' ');
        words.insert(list.substr(0, end));
        list = end == std::string_view::npos ? std::string_view() : list.substr(end + 1);
    }
}

/// Of an engine that is not known every word counts.
TWords WordsOf(TKEngine engine) {
    TWords words;
    AddWords(words, everywhere);
    const bool all = engine == TKEngine::Generic;
    if (all || engine == TKEngine::SQLite) AddWords(words, inSQLite);
    if (all || engine == TKEngine::PostgreSQL) AddWords(words, inPostgreSQL);
    if (all || engine == TKEngine::MySQL) AddWords(words, inMySQL);
    return words;
}

bool IsReserved(std::string_view name, TKEngine engine) {
    static const TWords words[] = {WordsOf(TKEngine::Generic), WordsOf(TKEngine::SQLite),
                                   WordsOf(TKEngine::PostgreSQL), WordsOf(TKEngine::MySQL)};
    return words[static_cast<size_t>(engine)].contains(name);
}

} // namespace

bool NameNeedsQuotes(std::string_view name, TKEngine engine) {
    if (name.empty() || IsDigit(name[0])) return true;
    bool lower = false;
    bool upper = false;
    for (char c : name) {
        if (!IsLetter(c) && !IsDigit(c) && c != '_') return true;
        lower = lower || (c >= 'a' && c <= 'z');
        upper = upper || (c >= 'A' && c <= 'Z');
    }
    if (engine == TKEngine::PostgreSQL && upper) return true;
    // an unknown engine may fold either way
    if (engine == TKEngine::Generic && upper && lower) return true;
    return IsReserved(name, engine);
}

} // namespace tern7
