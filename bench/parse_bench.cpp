// Reading SQL text, beside libpg_query's raw parse of the same text: TKSQLParser alone, and the
// whole statement imported into a query. Then texts of a megabyte that are meant to do harm.

#include <algorithm>
#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>
#include <pg_query.h>

#include <tern7/core/parser/sql_parser.h>
#include <tern7/core/query/query.h>

#include "side_by_side.h"

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

namespace bench = tern7::bench;

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

void PgParse(const std::string& sql) {
    void* const context = pg_query_enter_memory_context();
    const PgRawParse parsed = pg_query_raw_parse(sql.c_str());
    if (parsed.error) std::abort();
    benchmark::DoNotOptimize(parsed.tree);
    std::free(parsed.stderr_buffer);
    pg_query_exit_memory_context(context);
}

void Parse(benchmark::State& state, bool nested) {
    const std::string sql = Statement(static_cast<int>(state.range(0)), nested);
    const auto repeats = std::max<int64_t>(1, 1000 / state.range(0));
    bench::SideBySide(
        state, repeats,
        [&] {
            tern7::TKSQLParser parser;
            parser.SetText(sql);
            parser.Parse();
            benchmark::DoNotOptimize(parser.Result().Where());
        },
        [&] { PgParse(sql); });
}

/// The tables and columns of the statements.
class TSales : public tern7::TKCustomDBStructure {
public:
    TSales() {
        using enum tern7::TFieldType;
        AddTable("Customers", "Cus");
        AddTable("Orders", "Ord");
        AddLink("Cus", "Ord")->AddPair("CustNo", "CustNo");
        Add("Cus", "City", ftString);
        Add("Cus", "CompanyName", ftString);
        Add("Ord", "Amount", ftFloat);
        Add("Ord", "OrderDate", ftDate);
        Add("Ord", "ShipVia", ftInteger);
    }

private:
    void Add(const char* table, const char* column, tern7::TFieldType type) {
        tern7::TDSField* field =
            AddField(tern7::TKFieldKind::kfkData, column, column, TableByName(true, table));
        field->SetFieldType(type);
        field->AddAppliedOperators();
    }
};

using TRead = void (*)(tern7::TKQuery&, const std::string&);
void ReadPlainly(tern7::TKQuery& query, const std::string& sql) {
    query.ParseSQL(sql);
}
void ReadCompletely(tern7::TKQuery& query, const std::string& sql) {
    query.ImportSQL(sql);
}

/// The whole way into the rows of a query, beside the yardstick's way into its tree.
void Read(benchmark::State& state, bool nested, TRead read) {
    TSales structure;
    const std::string sql = Statement(static_cast<int>(state.range(0)), nested);
    const auto repeats = std::max<int64_t>(1, 1000 / state.range(0));
    bench::SideBySide(
        state, repeats,
        [&] {
            tern7::TKQuery query(&structure);
            read(query, sql);
            benchmark::DoNotOptimize(query.Root());
        },
        [&] { PgParse(sql); });
}

std::string Hostile(int kind) {
    constexpr size_t size = size_t{1} << 20;
    const auto repeated = [](std::string_view piece) {
        return tern7::Replicate(piece, size / piece.size());
    };
    const std::string where = "select Cus.City from Customers Cus where ";
    switch (kind) {
    case 0:
        return where + tern7::Replicate("(", 200'000);
    case 1:
        return where + "Cus.City = 'never closed" + repeated(" x");
    case 2:
        return "select count(" + repeated("a, ");
    case 3:
        return where + tern7::Replicate("not ", 1'000'000) + "Cus.City = 'x'";
    case 4:
        return where + repeated("Cus.City = 'x' or ") + "Cus.City = 'y'";
    case 5:
        return "select " + repeated("Cus.City || ") + "'x' from Customers Cus";
    default: { // conditions that are read once more for the sake of the join
        std::string sql = "select Cus.City from Customers Cus join Orders using (CustNo) where ";
        for (int i = 0; sql.size() < size; ++i)
            sql += "Cus.City = :p" + std::to_string(i) + " or ";
        return sql + "Cus.City = 'y'";
    }
    }
}

void HostileMegabyte(benchmark::State& state, TRead read) {
    TSales structure;
    const std::string sql = Hostile(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        tern7::TKQuery query(&structure);
        try {
            read(query, sql);
        } catch (const tern7::ESQLParserError&) {
        }
        benchmark::DoNotOptimize(query.Root());
    }
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->ArgName("conditions");
    for (int size : {5, 50, 500, 5000, 50000})
        bench->Arg(size);
    bench->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(Parse, flat, false)->Apply(Sizes)->UseManualTime();
BENCHMARK_CAPTURE(Parse, nested, true)->Apply(Sizes)->UseManualTime();
BENCHMARK_CAPTURE(Read, plain_flat, false, ReadPlainly)->Apply(Sizes)->UseManualTime();
BENCHMARK_CAPTURE(Read, plain_nested, true, ReadPlainly)->Apply(Sizes)->UseManualTime();
BENCHMARK_CAPTURE(Read, complete_flat, false, ReadCompletely)->Apply(Sizes)->UseManualTime();
BENCHMARK_CAPTURE(Read, complete_nested, true, ReadCompletely)->Apply(Sizes)->UseManualTime();
BENCHMARK_CAPTURE(HostileMegabyte, plain, ReadPlainly)
    ->DenseRange(0, 6)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(HostileMegabyte, complete, ReadCompletely)
    ->DenseRange(0, 6)
    ->Unit(benchmark::kMillisecond);

} // namespace
