// Reading SQL text: TKSQLParser beside libpg_query's raw parse of the same text. The ratio of the
// two lines of one size is what counts.
#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>
#include <pg_query.h>

#include <tern7/core/parser/sql_parser.h>

// From pg_query_internal.h, which can not be included without the server's headers.
extern "C" {
struct PgRawParse {
    void* tree;
    char* stderr_buffer;
    PgQueryError* error;
};
PgRawParse pg_query_raw_parse(const char* input);
void* pg_query_enter_memory_context();
void pg_query_exit_memory_context(void* context);
}

namespace {

void AppendCondition(std::string& sql, int i) {
    const std::string n = std::to_string(i % 97);
    switch (i % 5) {
    case 0:
        sql += "Cus.City = 'Town " + n + "'";
        break;
    case 1:
        sql += "Ord.Amount >= " + n + ".5";
        break;
    case 2:
        sql += "Cus.CompanyName like '%" + n + "%'";
        break;
    case 3:
        sql += "Ord.OrderDate between '2024-01-01' and '2024-12-31'";
        break;
    default:
        sql += "Ord.ShipVia in (" + n + ", 2, 3)";
        break;
    }
}

/// Conditions [first, last) as a tree of brackets of four.
void AppendNested(std::string& sql, int first, int last, bool isAnd) {
    constexpr int parts = 4;
    for (int part = 0; part < parts; ++part) {
        const int from = first + static_cast<int>((last - first) * int64_t{part} / parts);
        const int to = first + static_cast<int>((last - first) * int64_t{part + 1} / parts);
        if (from == to) continue;
        if (from > first) sql += isAnd ? " and\n  " : " or\n  ";
        if (to - from == 1) {
            AppendCondition(sql, from);
        } else {
            sql += '(';
            AppendNested(sql, from, to, !isAnd);
            sql += ')';
        }
    }
}

std::string Statement(int conditions, bool nested) {
    std::string sql = "SELECT DISTINCT Cus.CompanyName AS C1, sum(Ord.Amount) AS C2\n"
                      "FROM Customers Cus INNER JOIN Orders Ord ON (Cus.CustNo = Ord.CustNo)\n"
                      "WHERE\n  ";
    if (nested) AppendNested(sql, 0, conditions, true);
    for (int i = 0; i < conditions && !nested; ++i) {
        if (i > 0) sql += " and\n  ";
        AppendCondition(sql, i);
    }
    return sql + "\nORDER BY 1";
}

void Report(benchmark::State& state, const std::string& sql) {
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(sql.size()));
    state.SetComplexityN(state.range(0));
}

void Tern(benchmark::State& state, bool nested) {
    const std::string sql = Statement(static_cast<int>(state.range(0)), nested);
    for (auto _ : state) {
        tern7::TKSQLParser parser;
        parser.SetText(sql);
        parser.Parse();
        benchmark::DoNotOptimize(parser.Result().Where());
    }
    Report(state, sql);
}

void LibPgQuery(benchmark::State& state, bool nested) {
    const std::string sql = Statement(static_cast<int>(state.range(0)), nested);
    for (auto _ : state) {
        void* const context = pg_query_enter_memory_context();
        const PgRawParse parsed = pg_query_raw_parse(sql.c_str());
        if (parsed.error) std::abort();
        benchmark::DoNotOptimize(parsed.tree);
        std::free(parsed.stderr_buffer);
        pg_query_exit_memory_context(context);
    }
    Report(state, sql);
}

void Sizes(benchmark::internal::Benchmark* bench) {
    for (int size : {5, 50, 500, 5000, 50000})
        bench->Arg(size);
    bench->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(Tern, flat, false)->Apply(Sizes);
BENCHMARK_CAPTURE(LibPgQuery, flat, false)->Apply(Sizes);
BENCHMARK_CAPTURE(Tern, nested, true)->Apply(Sizes);
BENCHMARK_CAPTURE(LibPgQuery, nested, true)->Apply(Sizes);

} // namespace
