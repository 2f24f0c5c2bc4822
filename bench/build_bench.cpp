// Condition rows to WHERE text, beside a bare walk of the same tree with templates cut beforehand
// that appends to a reserved string; and rows read from their text.

#include <algorithm>
#include <string>
#include <vector>

#include <tern7/core/query/query.h>

#include "side_by_side.h"

namespace tern7 {
namespace {

/// A query of n conditions over one table; nested: a bracket inside a bracket every ten rows.
struct TBuildFixture {
    TBuildFixture(int conditions, bool nested) {
        TDSTable* table = structure.AddTable("Customer", "C");
        for (int i = 0; i < 20; ++i) {
            TDSField* field = structure.AddField(TKFieldKind::kfkData, "column" + std::to_string(i),
                                                 "Column " + std::to_string(i), table);
            field->SetFieldType(i % 2 ? TFieldType::ftString : TFieldType::ftInteger);
            field->AddAppliedOperators();
        }
        query.SetActive(false);
        query.CheckValues = false;
        TFilterBracket* bracket = &query.Root();
        for (int i = 0; i < conditions; ++i) {
            if (nested && i % 10 == 9) {
                bracket = bracket->Level() > 20 ? query.Root().AddBracket() : bracket->AddBracket();
                bracket->SetLinkType(static_cast<TFilterLinkType>(i / 10 % 4));
            }
            TFilterCond* row = bracket->AddCond();
            row->SetField(structure.GetField(i % 20));
            row->SetOperator(structure.GetOperator(i % 6));
            row->SetValue(1, std::to_string(i * 7919 % 100000));
        }
    }
    TKCustomDBStructure structure;
    TKQuery query{&structure};
};

/// A template cut at its value, everything else put in.
struct TSplit {
    std::string before, after;
};

/// The templates of all conditions, in the order of the walk.
std::vector<TSplit> SplitTemplates(const TFilterBracket& bracket) {
    std::vector<TSplit> splits;
    for (const auto& row : bracket.Rows()) {
        if (const TFilterBracket* inner = row->AsBracket()) {
            for (TSplit& split : SplitTemplates(*inner))
                splits.push_back(std::move(split));
            continue;
        }
        const TFilterCond& condition = *row->AsCond();
        const std::string& text = condition.Operator()->SQLName();
        const bool quoted = condition.Field()->FieldType() == TFieldType::ftString;
        const size_t value = text.find("@1");
        splits.push_back(
            {condition.Field()->GetSQLExpr() + text.substr(2, value - 2 - (quoted ? 0 : 1)),
             quoted ? "'" : ""});
    }
    return splits;
}

bool BareWalk(const TFilterBracket& bracket, const TSplit*& split, std::string& out) {
    bool any = false;
    for (const auto& row : bracket.Rows()) {
        if (!row->GetEnabled()) continue;
        const size_t mark = out.size();
        out += any ? (JoinsByAnd(bracket.LinkType()) ? " AND\n" : " OR\n")
                   : (IsNegated(bracket.LinkType()) ? " NOT (\n" : " (\n");
        if (const TFilterBracket* inner = row->AsBracket()) {
            if (!BareWalk(*inner, split, out)) {
                out.resize(mark);
                continue;
            }
        } else {
            out += split->before;
            for (char c : row->AsCond()->Value(1)) {
                if (c == '\'') out += c;
                out += c;
            }
            out += split->after;
            ++split;
        }
        any = true;
    }
    if (any) out += "\n)";
    return any;
}

// `times_as_fast` must be 0.67 or more: at most 1.5 times the bare walk's time.
void BuildConditions(benchmark::State& state) {
    TBuildFixture fixture(static_cast<int>(state.range(0)), state.range(1) != 0);
    const std::vector<TSplit> splits = SplitTemplates(fixture.query.Root());
    fixture.query.BuildQuery();
    const std::string wanted = fixture.query.QResult().Conditions().Text();
    std::string last;
    const auto repeats = std::max<int64_t>(1, 5000 / state.range(0));
    bench::SideBySide(
        state, repeats,
        [&] {
            fixture.query.BuildQuery();
            benchmark::DoNotOptimize(fixture.query.QResult().Conditions().Text().data());
        },
        [&] {
            std::string out;
            out.reserve(wanted.size() + 64);
            const TSplit* split = splits.data();
            BareWalk(fixture.query.Root(), split, out);
            benchmark::DoNotOptimize(out.data());
            last = std::move(out);
        });
    if (last != wanted) state.SkipWithError("another text");
}

/// The rows' text read back: the time of a row must not grow with their number.
void ReadRows(benchmark::State& state) {
    TBuildFixture fixture(static_cast<int>(state.range(0)), state.range(1) != 0);
    const std::string text = fixture.query.GetQueryString();
    TKQuery read(&fixture.structure);
    read.SetActive(false);
    for (auto _ : state) {
        read.SetQueryString(text);
        benchmark::DoNotOptimize(read.Root().GetRowCount());
    }
    state.counters["ns_a_row"] =
        benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)) * 1e-9,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->ArgNames({"conditions", "nested"});
    for (int nested : {0, 1})
        for (int conditions : {5, 50, 500, 5000, 50000})
            bench->Args({conditions, nested});
}

BENCHMARK(BuildConditions)->Apply(Sizes)->UseManualTime();
BENCHMARK(ReadRows)->Apply(Sizes);

} // namespace
} // namespace tern7
