// Condition rows to WHERE text, beside a bare walk of the same tree with templates cut beforehand
// that appends to a reserved string.

#include <benchmark/benchmark.h>

#include <memory>

#include <tern7/core/query/query.h>

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

/// The yardstick's own tree: pieces of text, already cut.
struct TBareNode {
    TFilterLinkType kind = TFilterLinkType::fltAll;
    bool bracket = false, enabled = true, keepsQuotes = false;
    std::string before, field, middle, value, after;
    std::vector<std::unique_ptr<TBareNode>> rows;
};

std::unique_ptr<TBareNode> BareCopy(const TFilterRow& row) {
    auto node = std::make_unique<TBareNode>();
    if (const TFilterBracket* bracket = row.AsBracket()) {
        node->bracket = true;
        node->kind = bracket->LinkType();
        for (const auto& below : bracket->Rows()) node->rows.push_back(BareCopy(*below));
        return node;
    }
    const TFilterCond& condition = *row.AsCond();
    const std::string& text = condition.Operator()->SQLName();
    const size_t value = text.find("@1");
    node->keepsQuotes = condition.Field()->FieldType() == TFieldType::ftString;
    node->field = condition.Field()->GetSQLExpr();
    node->middle = text.substr(2, value - 2 - (node->keepsQuotes ? 0 : 1));
    node->after = node->keepsQuotes ? "'" : "";
    node->value = condition.Value(1);
    return node;
}

bool BareWalk(const TBareNode& bracket, std::string& out) {
    bool any = false;
    for (const auto& row : bracket.rows) {
        if (!row->enabled) continue;
        const size_t mark = out.size();
        out += any ? (JoinsByAnd(bracket.kind) ? " AND\n" : " OR\n")
                   : (IsNegated(bracket.kind) ? " NOT (\n" : " (\n");
        if (row->bracket) {
            if (!BareWalk(*row, out)) {
                out.resize(mark);
                continue;
            }
        } else {
            out += row->before;
            out += row->field;
            out += row->middle;
            for (char c : row->value) {
                if (c == '\'') out += c;
                out += c;
            }
            out += row->after;
        }
        any = true;
    }
    if (any) out += "\n)";
    return any;
}

void BM_BuildConditions(benchmark::State& state) {
    TBuildFixture fixture(static_cast<int>(state.range(0)), state.range(1) != 0);
    for (auto _ : state) {
        fixture.query.BuildQuery();
        benchmark::DoNotOptimize(fixture.query.QResult().Conditions().Text().data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_BareWalk(benchmark::State& state) {
    TBuildFixture fixture(static_cast<int>(state.range(0)), state.range(1) != 0);
    const std::unique_ptr<TBareNode> root = BareCopy(fixture.query.Root());
    fixture.query.BuildQuery();
    const size_t size = fixture.query.QResult().Conditions().Text().size();
    for (auto _ : state) {
        std::string out;
        out.reserve(size + 64);
        BareWalk(*root, out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Sizes(benchmark::internal::Benchmark* bench) {
    for (int nested : {0, 1})
        for (int conditions : {5, 50, 500, 5000, 50000}) bench->Args({conditions, nested});
}

BENCHMARK(BM_BareWalk)->Apply(Sizes);
BENCHMARK(BM_BuildConditions)->Apply(Sizes);

} // namespace
} // namespace tern7
