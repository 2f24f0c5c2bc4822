#include "evaluator.h"

#include <functional>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "like.h"

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/structure/structure.h>

namespace tern7::proof {

namespace {

using TTruth = std::optional<bool>; // nothing: unknown

TTruth Not(TTruth a) {
    return a ? TTruth(!*a) : a;
}

/// One joined row: for each table of the query the number of its row, -1 where it is missing.
using TJoinedRow = const int32_t*;
using TColumn = std::function<TCell(TJoinedRow)>;
using TTest = std::function<TTruth(TJoinedRow)>;

TTest Negated(TTest test) {
    return [test](TJoinedRow row) { return Not(test(row)); };
}

class TAnswer {
public:
    TAnswer(const TSample& data, const TKQuery& itsQuery, size_t mostRows)
        : sample(data), query(itsQuery), limit(mostRows) {}

    TRows Rows();

private:
    // --- tables
    void Join(const TResultTable& entry);
    const TTableRows& RowsOf(size_t place) const { return sample.Rows(tables[place]->TableName()); }
    size_t PlaceOf(const TDSTable* table) const;
    size_t JoinedCount() const { return joined.size() / tables.size(); }
    std::string Key(TJoinedRow row, size_t place, const TStrings& columns) const;

    // --- conditions
    std::optional<TTest> Bracket(const TFilterBracket& bracket) const;
    std::optional<TTest> Condition(const TFilterCond& condition) const;
    TTest Comparison(const TFilterCond& condition) const;
    TTest InList(TColumn column, const TRow& items) const;
    TTest Like(const TFilterCond& condition, const std::string& pattern) const;

    // --- columns
    TColumn Column(const TDSField& field) const;
    TColumn Formula(const TFormula& formula, std::vector<TColumn> fields) const;
    TRows AllColumns() const;
    TRows Grouped() const;

    const TSample& sample;
    const TKQuery& query;
    size_t limit;
    std::vector<const TDSTable*> tables;
    std::vector<int32_t> joined; // row numbers, one per table
};

// ---------------------------------------------------------------- tables

size_t TAnswer::PlaceOf(const TDSTable* table) const {
    for (size_t i = 0; i < tables.size(); ++i)
        if (tables[i] == table) return i;
    throw std::logic_error("table is not in the query: " + table->TableAlias());
}

/// Empty when the row is missing or one of the columns is NULL: nothing equals it then.
std::string TAnswer::Key(TJoinedRow row, size_t place, const TStrings& columns) const {
    std::string key;
    if (row[place] < 0) return key;
    const TTableRows& table = RowsOf(place);
    for (const std::string& column : columns) {
        const TCell& cell = table.rows[static_cast<size_t>(row[place])][table.ColumnOf(column)];
        if (IsNull(cell)) return {};
        key += TextOf(cell) + "|";
    }
    return key;
}

void TAnswer::Join(const TResultTable& entry) {
    const TDSLink* link = entry.Link;
    const size_t width = tables.size();
    const size_t before = width == 0 ? 1 : JoinedCount();
    std::vector<int32_t> old;
    old.swap(joined);
    tables.push_back(entry.Table);
    const auto count = static_cast<int32_t>(RowsOf(width).rows.size());
    auto add = [&](const int32_t* row, int32_t added) {
        if (JoinedCount() >= limit) throw TTooManyRows();
        for (size_t i = 0; i < width; ++i)
            joined.push_back(row ? row[i] : -1);
        joined.push_back(added);
    };

    const TDSLinkType type = link ? link->LinkType() : TDSLinkType::ltInner;
    // the old join syntax says inner joins only: the others are products
    if (!link || (query.SQLSyntax() == TSQLSyntax::ssSQL1 && type != TDSLinkType::ltInner)) {
        for (size_t i = 0; i < before; ++i)
            for (int32_t added = 0; added < count; ++added)
                add(old.data() + i * width, added);
        return;
    }
    const bool newIsSecond = link->Table2() == entry.Table;
    const TStrings& ownColumns = newIsSecond ? link->Fields2() : link->Fields1();
    const TStrings& otherColumns = newIsSecond ? link->Fields1() : link->Fields2();
    const size_t other = PlaceOf(newIsSecond ? link->Table1() : link->Table2());
    // an outer link keeps all rows of its first (left), second (right) or both tables
    const bool keepsFirst = type == TDSLinkType::ltOuterLeft || type == TDSLinkType::ltOuterFull;
    const bool keepsSecond = type == TDSLinkType::ltOuterRight || type == TDSLinkType::ltOuterFull;
    const bool keepsOld = newIsSecond ? keepsFirst : keepsSecond;
    const bool keepsNew = newIsSecond ? keepsSecond : keepsFirst;

    std::unordered_map<std::string, std::vector<int32_t>> byKey;
    std::vector<int32_t> added(width + 1, -1);
    for (added[width] = 0; added[width] < count; ++added[width])
        byKey[Key(added.data(), width, ownColumns)].push_back(added[width]);
    std::vector<bool> used(static_cast<size_t>(count), false);
    for (size_t i = 0; i < before; ++i) {
        const int32_t* row = old.data() + i * width;
        const std::string key = Key(row, other, otherColumns);
        const auto found = byKey.find(key);
        if (key.empty() || found == byKey.end()) {
            if (keepsOld) add(row, -1);
            continue;
        }
        for (int32_t match : found->second) {
            used[static_cast<size_t>(match)] = true;
            add(row, match);
        }
    }
    for (int32_t i = 0; keepsNew && i < count; ++i)
        if (!used[static_cast<size_t>(i)]) add(nullptr, i);
}

// ---------------------------------------------------------------- conditions

/// Nothing when no row of the bracket takes part.
std::optional<TTest> TAnswer::Bracket(const TFilterBracket& bracket) const {
    std::vector<TTest> tests;
    for (const auto& row : bracket.Rows()) {
        if (!row->GetEnabled()) continue;
        const TFilterBracket* inner = row->AsBracket();
        if (auto test = inner ? Bracket(*inner) : Condition(*row->AsCond())) tests.push_back(*test);
    }
    if (tests.empty()) return std::nullopt;
    const TFilterLinkType type = bracket.LinkType();
    const bool all = type == TFilterLinkType::fltAll || type == TFilterLinkType::fltNotAll;
    const bool negated = type == TFilterLinkType::fltNone || type == TFilterLinkType::fltNotAll;
    return [tests, all, negated](TJoinedRow row) {
        TTruth truth = all;
        for (const TTest& test : tests) {
            const TTruth next = test(row);
            if (next == !all) {
                truth = !all; // one false makes "all" false, one true makes "any" true
                break;
            }
            if (!next) truth = next;
        }
        return negated ? Not(truth) : truth;
    };
}

TRow SubQueryValues(const TSample& sample, const TKQuery& nested, size_t limit) {
    TRow values;
    for (const TRow& row : TAnswer(sample, nested, limit).Rows())
        values.push_back(row.at(0));
    return values;
}

/// A value as the user gave it, for comparison with a field of the type.
TCell ValueCell(TFieldType type, std::string_view text) {
    const TKindOfType kind = KindOf(type);
    if (IsNumeric(kind)) return SameText(Trim(text), "null") ? TCell() : NumberCell(Trim(text));
    if (kind == TKindOfType::Boolean) return NumberCell(text);
    // a date alone is its midnight
    if (kind == TKindOfType::Timestamp && text.size() == 10) return std::string(text) + " 00:00:00";
    return std::string(text);
}

/// Nothing for a condition without field, operator or what the operator needs.
std::optional<TTest> TAnswer::Condition(const TFilterCond& condition) const {
    if (!condition.Field() || !condition.Operator()) return std::nullopt;
    const TFieldType type = condition.Field()->FieldType();
    const std::string& op = condition.Operator()->Name();
    if (op == "InQuery" || op == "NotInQuery") {
        if (condition.SubQuery().empty()) return std::nullopt;
        const TTest in = InList(Column(*condition.Field()),
                                SubQueryValues(sample, *condition.NestedQuery(), limit));
        return op == "InQuery" ? in : Negated(in);
    }
    const int values = op == "IsNull" ? 0 : op == "Between" || op == "BeginsAndEnds" ? 2 : 1;
    for (int n = 1; n <= values; ++n)
        if ((IsNumeric(KindOf(type)) || op == "InList") && Trim(condition.Value(n)).empty())
            return std::nullopt;
    if (op == "InList") {
        TRow items;
        for (const std::string& item : ParseCommaText(condition.Value(1)))
            items.push_back(ValueCell(type, item));
        return InList(Column(*condition.Field()), items);
    }
    const std::string& text = condition.Value(1);
    if (op == "StartsWith") return Like(condition, text + "%");
    if (op == "Contains") return Like(condition, "%" + text + "%");
    if (op == "BeginsAndEnds") return Like(condition, text + "%" + condition.Value(2));
    if (op == "NotStartsWith") return Negated(Like(condition, text + "%"));
    if (op == "NotContains") return Negated(Like(condition, "%" + text + "%"));
    return Comparison(condition);
}

/// As in SQL: nothing is in an empty list, not even NULL; else NULL on either side leaves it open.
TTest TAnswer::InList(TColumn column, const TRow& items) const {
    std::unordered_set<std::string> known;
    bool anyNull = false;
    for (const TCell& item : items)
        if (IsNull(item))
            anyNull = true;
        else
            known.insert(TextOf(item));
    return [column, known, anyNull](TJoinedRow row) -> TTruth {
        if (known.empty() && !anyNull) return false;
        const TCell value = column(row);
        if (IsNull(value)) return std::nullopt;
        if (known.contains(TextOf(value))) return true;
        return anyNull ? std::nullopt : TTruth(false);
    };
}

TTest TAnswer::Like(const TFilterCond& condition, const std::string& pattern) const {
    return [column = Column(*condition.Field()), pattern](TJoinedRow row) -> TTruth {
        const TCell value = column(row);
        if (IsNull(value)) return std::nullopt;
        return MatchesLike(std::get<std::string>(value), pattern);
    };
}

TTest TAnswer::Comparison(const TFilterCond& condition) const {
    const TColumn column = Column(*condition.Field());
    const TFieldType type = condition.Field()->FieldType();
    auto compared = [column](TCell value, bool (*holds)(int)) -> TTest {
        return [column, value, holds](TJoinedRow row) -> TTruth {
            const TCell cell = column(row);
            if (IsNull(cell) || IsNull(value)) return std::nullopt;
            return holds(Compare(cell, value));
        };
    };
    const std::string& op = condition.Operator()->Name();
    if (op == "IsNull") return [column](TJoinedRow row) -> TTruth { return IsNull(column(row)); };
    const TCell value = ValueCell(type, condition.Value(1));
    if (op == "Equal") return compared(value, [](int c) { return c == 0; });
    if (op == "EqualOrNull")
        return [column, equal = compared(value, [](int c) { return c == 0; })](TJoinedRow row) {
            return IsNull(column(row)) ? TTruth(true) : equal(row);
        };
    if (op == "NotEqual") return compared(value, [](int c) { return c != 0; });
    if (op == "LessThan") return compared(value, [](int c) { return c < 0; });
    if (op == "LessOrEqual") return compared(value, [](int c) { return c <= 0; });
    if (op == "GreaterThan") return compared(value, [](int c) { return c > 0; });
    if (op == "GreaterOrEqual") return compared(value, [](int c) { return c >= 0; });
    if (op != "Between") throw std::logic_error("unknown operator: " + op);
    const TTest from = compared(value, [](int c) { return c >= 0; });
    const TTest to = compared(ValueCell(type, condition.Value(2)), [](int c) { return c <= 0; });
    return [from, to](TJoinedRow row) -> TTruth {
        const TTruth a = from(row), b = to(row);
        if (a == false || b == false) return false;
        return a && b ? TTruth(true) : std::nullopt;
    };
}

// ---------------------------------------------------------------- columns

TColumn TAnswer::Column(const TDSField& field) const {
    if (field.Kind() == TKFieldKind::kfkVirtual) {
        const TVirtualField& description = sample.VirtualFields().at(field.ID());
        std::vector<TColumn> parts;
        for (int id : description.fieldIDs)
            parts.push_back(Column(*field.Structure().FieldByID(id)));
        return Formula(*description.formula, parts);
    }
    const size_t place = PlaceOf(field.Table());
    const TTableRows& table = RowsOf(place);
    return [place, &table, column = table.ColumnOf(field.FieldExpr())](TJoinedRow row) {
        return row[place] < 0 ? TCell() : table.rows[static_cast<size_t>(row[place])][column];
    };
}

TColumn TAnswer::Formula(const TFormula& formula, std::vector<TColumn> fields) const {
    if (fields.size() == 1 && formula.text == "@1") return fields[0];
    return [value = formula.value, fields](TJoinedRow row) {
        TRow cells;
        for (const TColumn& field : fields)
            cells.push_back(field(row));
        return value ? value(cells) : TCell();
    };
}

TRows TAnswer::AllColumns() const {
    TRows rows(JoinedCount());
    for (size_t i = 0; i < rows.size(); ++i)
        for (size_t place = 0; place < tables.size(); ++place) {
            const TTableRows& table = RowsOf(place);
            const int32_t number = joined[i * tables.size() + place];
            for (size_t column = 0; column < table.columns.size(); ++column)
                rows[i].push_back(number < 0 ? TCell()
                                             : table.rows[static_cast<size_t>(number)][column]);
        }
    return rows;
}

TCell Aggregated(TAggregate aggregate, const TRow& values) {
    int64_t count = 0;
    TCell best, sum;
    for (const TCell& value : values) {
        if (IsNull(value)) continue;
        ++count;
        const int order = IsNull(best) ? 0 : Compare(value, best);
        if (IsNull(best) || (aggregate == TAggregate::Min ? order < 0 : order > 0)) best = value;
        if (aggregate != TAggregate::Sum) continue;
        const auto* whole = std::get_if<int64_t>(&value);
        const auto* wholeSum = std::get_if<int64_t>(&sum);
        if (whole && (IsNull(sum) || wholeSum)) {
            sum = *whole + (wholeSum ? *wholeSum : 0);
        } else {
            const double before = IsNull(sum) ? 0
                                  : wholeSum  ? static_cast<double>(*wholeSum)
                                              : std::get<double>(sum);
            sum = before + (whole ? static_cast<double>(*whole) : std::get<double>(value));
        }
    }
    switch (aggregate) {
    case TAggregate::CountRows:
        return static_cast<int64_t>(values.size());
    case TAggregate::Count:
        return count;
    case TAggregate::Sum:
        return sum;
    default:
        return best;
    }
}

/// The columns, and where one of them is an aggregate the rows in groups of equal fields of the
/// others.
TRows TAnswer::Grouped() const {
    struct TOutput {
        TAggregate aggregate;
        TColumn column;
    };
    std::vector<TOutput> outputs;
    std::vector<TColumn> keys;
    bool anyAggregate = false;
    for (const auto& field : query.QResult().ResultFields()) {
        const TFormula& formula = FormulaByText(field->Formula());
        std::vector<TColumn> fields;
        for (const TDSField* source : field->Fields().Items())
            fields.push_back(Column(*source));
        outputs.push_back({formula.aggregate, Formula(formula, fields)});
        if (formula.aggregate != TAggregate::None)
            anyAggregate = true;
        else
            keys.insert(keys.end(), fields.begin(), fields.end());
    }
    std::unordered_map<std::string, std::vector<TJoinedRow>> groups;
    for (size_t i = 0; i < JoinedCount(); ++i) {
        const TJoinedRow row = joined.data() + i * tables.size();
        std::string key = anyAggregate ? std::string() : std::to_string(i);
        for (size_t k = 0; anyAggregate && k < keys.size(); ++k)
            key += TextOf(keys[k](row)) + "|";
        groups[key].push_back(row);
    }
    if (anyAggregate && keys.empty()) groups[""]; // one row, whatever there is
    TRows rows;
    for (const auto& [key, members] : groups) {
        TRow& row = rows.emplace_back();
        for (const TOutput& output : outputs) {
            if (output.aggregate == TAggregate::None) {
                row.push_back(output.column(members[0]));
                continue;
            }
            TRow values;
            for (const TJoinedRow member : members)
                values.push_back(output.column(member));
            row.push_back(Aggregated(output.aggregate, values));
        }
    }
    return rows;
}

TRows TAnswer::Rows() {
    const TQueryResult& result = query.QResult();
    for (int i = 0; i < result.ResultTables().GetCount(); ++i)
        Join(result.ResultTables()[i]);
    if (const auto test = Bracket(query.Root())) {
        std::vector<int32_t> kept;
        for (size_t i = 0; i < JoinedCount(); ++i) {
            const TJoinedRow row = joined.data() + i * tables.size();
            if ((*test)(row) == true) kept.insert(kept.end(), row, row + tables.size());
        }
        joined.swap(kept);
    }
    const TRFieldList& fields = result.ResultFields();
    TRows rows = fields.JustSorting() || fields.IsEmpty() ? AllColumns() : Grouped();
    if (!query.SQLOptions().Contains(TSQLOption::soSelectDistinct)) return rows;
    std::set<std::string> known;
    std::erase_if(rows,
                  [&](const TRow& row) { return !known.insert(SortedTexts({row})[0]).second; });
    return rows;
}

} // namespace

TRows TEvaluator::Rows(const TKQuery& query) const {
    return TAnswer(sample, query, limit).Rows();
}

} // namespace tern7::proof
