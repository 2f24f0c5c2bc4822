#include "evaluator.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/structure/structure.h>

namespace tern7::proof {

namespace {

/// Three-valued logic: "all" is the least, "any" the greatest, "not" the sign turned round.
enum TTruth { False = -1, Unknown = 0, True = 1, Absent = 2 }; // absent: takes no part
TTruth Not(TTruth truth) {
    return static_cast<TTruth>(-truth);
}
TTruth Truth(bool holds) {
    return holds ? True : False;
}

/// What stands in brackets behind IN: the texts of values, NULL apart.
struct TList {
    std::unordered_set<std::string> texts;
    bool anyNull = false;

    void Add(const TCell& cell) {
        if (IsNull(cell))
            anyNull = true;
        else
            texts.insert(TextOf(cell));
    }
    /// As in SQL: nothing is in an empty list, not even NULL.
    TTruth Holds(const TCell& cell) const {
        if (texts.empty() && !anyNull) return False;
        if (IsNull(cell)) return Unknown;
        return texts.contains(TextOf(cell)) ? True : anyNull ? Unknown : False;
    }
};

/// LIKE by bytes: "%" stands for any text, "_" for one character.
bool MatchesLike(std::string_view text, std::string_view pattern) {
    if (pattern.empty()) return text.empty();
    auto isInside = [&](size_t i) { return (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80; };
    size_t length = text.empty() ? 0 : 1; // of the first character
    while (pattern[0] != text[0] && length < text.size() && isInside(length))
        ++length;
    if (pattern[0] == '%')
        return MatchesLike(text, pattern.substr(1)) ||
               (!text.empty() && MatchesLike(text.substr(length), pattern));
    return !text.empty() && (pattern[0] == '_' || pattern[0] == text[0]) &&
           MatchesLike(text.substr(length), pattern.substr(1));
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

TCell Aggregated(TAggregate aggregate, const TRow& values) {
    int64_t count = 0;
    long double sum = 0;
    bool whole = true;
    TCell best;
    for (const TCell& value : values) {
        if (IsNull(value)) continue;
        ++count;
        const int order = IsNull(best) ? 0 : Compare(value, best);
        if (IsNull(best) || (aggregate == TAggregate::Min ? order < 0 : order > 0)) best = value;
        if (aggregate != TAggregate::Sum) continue;
        const auto* fraction = std::get_if<double>(&value);
        sum += fraction ? *fraction : static_cast<long double>(std::get<int64_t>(value));
        whole = whole && !fraction;
    }
    switch (aggregate) {
    case TAggregate::CountRows:
        return static_cast<int64_t>(values.size());
    case TAggregate::Count:
        return count;
    case TAggregate::Sum:
        if (count == 0) return {};
        return whole ? TCell(static_cast<int64_t>(sum)) : TCell(static_cast<double>(sum));
    default:
        return best;
    }
}

/// One joined row: for each table of the query the number of its row, -1 where it is missing.
using TJoinedRow = const int32_t*;

class TAnswer {
public:
    TAnswer(const TSample& data, const TKQuery& itsQuery, size_t mostRows)
        : sample(data), query(itsQuery), limit(mostRows) {}

    TRows Rows();

private:
    void Join(const TResultTable& entry);
    const TTableRows& RowsOf(size_t place) const { return sample.Rows(tables[place]->TableName()); }
    size_t JoinedCount() const { return joined.size() / tables.size(); }
    TJoinedRow Joined(size_t i) const { return joined.data() + i * tables.size(); }
    std::string Key(TJoinedRow row, size_t place, const TStrings& columns) const;

    TTruth Holds(const TFilterRow& row, TJoinedRow at);
    TTruth Condition(const TFilterCond& condition, TJoinedRow at);
    TTruth Comparison(const TFilterCond& condition, const TCell& cell) const;
    const TList& ListOf(const TFilterCond& condition);

    TCell Value(const TDSField& field, TJoinedRow at);
    TCell Value(const TResultField& column, TJoinedRow at);
    TRows AllColumns() const;
    TRows Grouped();

    const TSample& sample;
    const TKQuery& query;
    size_t limit;
    std::vector<const TDSTable*> tables;
    std::vector<int32_t> joined; // row numbers, one per table
    std::unordered_map<const TFilterCond*, TList> lists;
    std::unordered_map<const TDSField*, std::pair<size_t, size_t>> places; // table and column
};

// ---------------------------------------------------------------- tables

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
    const TDSTable* otherTable = newIsSecond ? link->Table1() : link->Table2();
    const auto other =
        static_cast<size_t>(std::find(tables.begin(), tables.end(), otherTable) - tables.begin());
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

TTruth TAnswer::Holds(const TFilterRow& row, TJoinedRow at) {
    if (!row.GetEnabled()) return Absent;
    const TFilterBracket* bracket = row.AsBracket();
    if (!bracket) return Condition(*row.AsCond(), at);
    const TFilterLinkType type = bracket->LinkType();
    const bool all = type == TFilterLinkType::fltAll || type == TFilterLinkType::fltNotAll;
    const bool negated = type == TFilterLinkType::fltNone || type == TFilterLinkType::fltNotAll;
    TTruth truth = Absent;
    for (const auto& inner : bracket->Rows()) {
        const TTruth next = Holds(*inner, at);
        if (next == Absent) continue;
        truth = truth == Absent ? next : all ? std::min(truth, next) : std::max(truth, next);
    }
    return negated && truth != Absent ? Not(truth) : truth;
}

const TList& TAnswer::ListOf(const TFilterCond& condition) {
    const auto [known, isNew] = lists.try_emplace(&condition);
    TList& list = known->second;
    if (!isNew) return list;
    if (condition.IsSubQueryOperator())
        for (const TRow& row : TAnswer(sample, *condition.NestedQuery(), limit).Rows())
            list.Add(row.at(0));
    else
        for (const std::string& item : ParseCommaText(condition.Value(1)))
            list.Add(ValueCell(condition.Field()->FieldType(), item));
    return list;
}

/// Absent without field, operator or what the operator needs.
TTruth TAnswer::Condition(const TFilterCond& condition, TJoinedRow at) {
    if (!condition.Field() || !condition.Operator()) return Absent;
    const std::string& op = condition.Operator()->Name();
    const std::string &first = condition.Value(1), &second = condition.Value(2);
    const bool isQuery = condition.IsSubQueryOperator(), isList = op == "InList";
    if (isQuery && condition.SubQuery().empty()) return Absent;
    if (!isQuery && op != "IsNull" &&
        (isList || IsNumeric(KindOf(condition.Field()->FieldType()))) &&
        (Trim(first).empty() || (op == "Between" && Trim(second).empty())))
        return Absent;

    const TCell cell = Value(*condition.Field(), at);
    if (op == "NotInQuery") return Not(ListOf(condition).Holds(cell));
    if (isQuery || isList) return ListOf(condition).Holds(cell);
    auto like = [&](const std::string& pattern) {
        return IsNull(cell) ? Unknown : Truth(MatchesLike(std::get<std::string>(cell), pattern));
    };
    if (op == "StartsWith") return like(first + "%");
    if (op == "Contains") return like("%" + first + "%");
    if (op == "BeginsAndEnds") return like(first + "%" + second);
    if (op == "NotStartsWith") return Not(like(first + "%"));
    if (op == "NotContains") return Not(like("%" + first + "%"));
    return Comparison(condition, cell);
}

TTruth TAnswer::Comparison(const TFilterCond& condition, const TCell& cell) const {
    const std::string& op = condition.Operator()->Name();
    if (op == "IsNull") return Truth(IsNull(cell));
    auto compare = [&](int n, bool (*holds)(int)) {
        const TCell value = ValueCell(condition.Field()->FieldType(), condition.Value(n));
        return IsNull(cell) || IsNull(value) ? Unknown : Truth(holds(Compare(cell, value)));
    };
    auto equal = [](int c) { return c == 0; };
    auto atLeast = [](int c) { return c >= 0; };
    auto atMost = [](int c) { return c <= 0; };
    if (op == "Equal") return compare(1, equal);
    if (op == "EqualOrNull") return std::max(compare(1, equal), Truth(IsNull(cell)));
    if (op == "NotEqual") return Not(compare(1, equal));
    if (op == "LessThan") return Not(compare(1, atLeast));
    if (op == "LessOrEqual") return compare(1, atMost);
    if (op == "GreaterThan") return Not(compare(1, atMost));
    if (op == "GreaterOrEqual") return compare(1, atLeast);
    if (op == "Between") return std::min(compare(1, atLeast), compare(2, atMost));
    throw std::logic_error("unknown operator: " + op);
}

// ---------------------------------------------------------------- columns

TCell TAnswer::Value(const TDSField& field, TJoinedRow at) {
    if (field.Kind() == TKFieldKind::kfkVirtual) {
        const TVirtualField& description = sample.VirtualFields().at(field.ID());
        TRow parts;
        for (int id : description.fieldIDs)
            parts.push_back(Value(*field.Structure().FieldByID(id), at));
        return description.formula->value(parts);
    }
    const auto [known, isNew] = places.try_emplace(&field);
    auto& [place, column] = known->second;
    if (isNew) {
        const auto found = std::find(tables.begin(), tables.end(), field.Table());
        if (found == tables.end()) throw std::logic_error("no table of " + field.GetSQLExpr());
        place = static_cast<size_t>(found - tables.begin());
        column = RowsOf(place).ColumnOf(field.FieldExpr());
    }
    return at[place] < 0 ? TCell() : RowsOf(place).rows[static_cast<size_t>(at[place])][column];
}

TCell TAnswer::Value(const TResultField& column, TJoinedRow at) {
    TRow cells;
    for (const TDSField* field : column.Fields().Items())
        cells.push_back(Value(*field, at));
    const TFormula& formula = FormulaByText(column.Formula());
    return formula.value ? formula.value(cells) : TCell();
}

TRows TAnswer::AllColumns() const {
    TRows rows(JoinedCount());
    for (size_t i = 0; i < rows.size(); ++i)
        for (size_t place = 0; place < tables.size(); ++place) {
            const TTableRows& table = RowsOf(place);
            const int32_t number = Joined(i)[place];
            const TRow missing(table.columns.size());
            const TRow& cells = number < 0 ? missing : table.rows[static_cast<size_t>(number)];
            rows[i].insert(rows[i].end(), cells.begin(), cells.end());
        }
    return rows;
}

/// The columns, and where one of them is an aggregate the rows in groups of equal fields of the
/// others.
TRows TAnswer::Grouped() {
    const TRFieldList& columns = query.QResult().ResultFields();
    auto aggregate = [](const auto& column) { return FormulaByText(column->Formula()).aggregate; };
    auto isPlain = [&](const auto& column) { return aggregate(column) == TAggregate::None; };
    const bool grouped = !std::all_of(columns.begin(), columns.end(), isPlain);
    std::unordered_map<std::string, std::vector<TJoinedRow>> groups;
    for (size_t i = 0; i < JoinedCount(); ++i) {
        std::string key = grouped ? std::string() : std::to_string(i);
        for (const auto& column : columns)
            if (grouped && isPlain(column))
                for (const TDSField* field : column->Fields().Items())
                    key += TextOf(Value(*field, Joined(i))) + "|";
        groups[key].push_back(Joined(i));
    }
    // without a group one row, whatever there is
    if (grouped && std::none_of(columns.begin(), columns.end(), isPlain)) groups[""];
    TRows rows;
    for (const auto& [key, members] : groups) {
        TRow& row = rows.emplace_back();
        for (const auto& column : columns) {
            if (isPlain(column)) {
                row.push_back(Value(*column, members[0]));
                continue;
            }
            TRow values;
            for (const TJoinedRow member : members)
                values.push_back(Value(*column, member));
            row.push_back(Aggregated(aggregate(column), values));
        }
    }
    return rows;
}

TRows TAnswer::Rows() {
    const TQueryResult& result = query.QResult();
    for (int i = 0; i < result.ResultTables().GetCount(); ++i)
        Join(result.ResultTables()[i]);
    std::vector<int32_t> kept;
    for (size_t i = 0; i < JoinedCount(); ++i)
        if (const TTruth truth = Holds(query.Root(), Joined(i)); truth == True || truth == Absent)
            kept.insert(kept.end(), Joined(i), Joined(i) + tables.size());
    joined.swap(kept);
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
