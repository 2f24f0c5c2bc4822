#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "sample.h"

#include <tern7/core/query/query.h>

namespace tern7::proof {

/// Makes up queries over a structure of the sample; the same seed gives the same queries.
class TQueryGenerator {
public:
    TQueryGenerator(const TSample& data, TKCustomDBStructure& over, uint32_t seed);

    /// Fills an empty query: syntax, options, columns, conditions.
    void Fill(TKQuery& query);

private:
    unsigned Below(unsigned count) { return static_cast<unsigned>(random() % count); }
    bool OneIn(unsigned count) { return Below(count) == 0; }
    template <class List>
    const auto& AnyOf(const List& list) {
        return list[Below(static_cast<unsigned>(std::size(list)))];
    }

    void ChooseTables(TDSTable* start);
    void Options(TKQuery& query);
    void Columns(TKQuery& query);
    void Column(TRFieldList& list, bool aggregates);
    void Rows(TFilterBracket& bracket, int level);
    void Condition(TFilterCond& condition);
    void SubQuery(TFilterCond& condition);
    std::string Caption(bool quoted);

    TDSField* AnyField() { return AnyOf(fields); }
    TCell CellOf(const TDSField& field, size_t rowNumber) const;
    std::string Value(const TDSField& field);
    std::string TextValue(const std::string& text);
    std::string NumberValue(const TDSField& field, const std::string& number);
    std::string Pattern(const TDSField& field, bool anywhere);
    std::string List(const TDSField& field);

    const TSample& sample;
    TKCustomDBStructure& structure;
    std::mt19937 random;
    std::vector<TDSField*> fields; // those that the present query is about
    int nesting = 0;
};

/// A query that was made up and built: its statement can be executed, its rows are not too many.
struct TCase {
    std::unique_ptr<TKQuery> query;
    TRows expected;
};
TCase MakeCase(const TSample& sample, uint32_t seed);

/// False for what the rules ask for although no engine here takes it: outer joins in the Oracle
/// form, and WHERE with nothing behind it; here or in a nested query.
bool CanBeExecuted(const TKQuery& query);

/// The query and those nested in it that take part.
std::vector<const TKQuery*> WithNested(const TKQuery& query);

} // namespace tern7::proof
