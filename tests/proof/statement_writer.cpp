#include "statement_writer.h"

#include <algorithm>

#include <tern7/core/corekit/strings.h>

namespace tern7::proof {

namespace {

using TWords = std::vector<const char*>;

struct TColumnOf {
    const char* name;
    char type; // i whole number, s text, b boolean, d date
};
struct TTableOf {
    const char* name;
    std::vector<TColumnOf> columns;
};
const TTableOf tables[] = {
    {"A", {{"id", 'i'}, {"x", 'i'}, {"y", 'i'}, {"s", 's'}, {"ok", 'b'}}},
    {"B", {{"id", 'i'}, {"x", 'i'}, {"y", 'i'}, {"n", 'i'}, {"t", 's'}}},
    {"C", {{"id", 'i'}, {"a", 'i'}, {"p", 'i'}, {"s", 's'}, {"day", 'd'}}},
    {"D", {{"id", 'i'}, {"c", 'i'}, {"b", 'i'}, {"v", 'i'}}},
};

struct TLinkOf {
    size_t from, to;
    std::vector<std::pair<const char*, const char*>> pairs;
};
const TLinkOf links[] = {
    {1, 0, {{"x", "x"}, {"y", "y"}}},
    {2, 0, {{"a", "id"}}},
    {3, 2, {{"c", "id"}}},
    {3, 1, {{"b", "id"}}},
    {2, 0, {{"p", "id"}}}, // of the copy
};

struct TVirtualOf {
    size_t table;
    const char* text; // with the table's name
    TFieldType type;
};
const TVirtualOf virtuals[] = {
    {0, "case when A.s = 'Yes sir' then 'In  side' else 'out' end", TFieldType::ftString},
    {0, "case when A.s = 'Yes sir' then 1 else 0 end", TFieldType::ftInteger},
    {0, "A.x + A.y", TFieldType::ftInteger},
    {1, "upper(B.t)", TFieldType::ftString},
};

const std::map<char, TFieldType> types = {{'i', TFieldType::ftInteger},
                                          {'s', TFieldType::ftString},
                                          {'b', TFieldType::ftBoolean},
                                          {'d', TFieldType::ftDate}};

} // namespace

std::vector<std::string> WriterDatabase() {
    return {
        "create table A(id integer, x integer, y integer, s text, ok integer)",
        "create table B(id integer, x integer, y integer, n integer, t text)",
        "create table C(id integer, a integer, p integer, s text, day text)",
        "create table D(id integer, c integer, b integer, v integer)",
        "insert into A values (1,1,1,'Yes sir',1), (2,1,2,'yes sir',0), (3,2,1,'Yessir',1),"
        " (4,2,2,'y',null), (5,3,null,null,0), (6,null,5,'5',1)",
        "insert into B values (1,1,1,5,'y'), (2,1,2,1,'Y'), (3,2,5,null,'null'), (4,9,9,2,'a  b'),"
        " (5,1,1,1,'a b'), (6,null,2,3,null)",
        "insert into C values (1,1,2,'Yes sir','2024-01-31'), (2,1,null,'s','2024-02-01'),"
        " (3,3,1,'y',null), (4,null,3,'5','2023-12-31'), (5,8,1,null,'2024-01-31')",
        "insert into D values (1,1,1,1), (2,1,3,2), (3,3,null,5), (4,9,4,null), (5,null,2,1),"
        " (6,4,1,0)",
    };
}

void FillWriterStructure(TKCustomDBStructure& structure, uint32_t number) {
    using enum TDSLinkType;
    const auto add = [&structure](const TTableOf& of, const char* alias) {
        TDSTable* const table = structure.AddTable(of.name, alias);
        for (const TColumnOf& column : of.columns)
            structure
                .AddField(TKFieldKind::kfkData, column.name, alias + std::string(column.name),
                          table)
                ->SetFieldType(types.at(column.type));
    };
    for (const TTableOf& table : tables)
        add(table, table.name);
    add(tables[0], "P");
    for (const TVirtualOf& each : virtuals)
        structure.AddField(TKFieldKind::kfkVirtual, each.text, each.text, nullptr)
            ->SetFieldType(each.type);
    for (const auto& [name, text] :
         {std::pair("InQuery", "@f in (@1)"), std::pair("NotInQuery", "@f not in (@1)")}) {
        TDSOperator* const op = structure.AddOperator(name);
        op->SetSQLName(text);
        op->SetValueType(TOpValueType::vtSubQuery);
    }
    structure.SQLFormats().SetDate("yyyy-mm-dd");
    std::mt19937 random(number);
    for (const TLinkOf& each : links) {
        const TDSLinkType type =
            number % 2 == 0 && random() % 2 ? static_cast<TDSLinkType>(random() % 4) : ltInner;
        const char* const to = &each == std::end(links) - 1 ? "P" : tables[each.to].name;
        TDSLink* const link = structure.AddLink(tables[each.from].name, to, type);
        for (const auto& [first, second] : each.pairs)
            link->AddPair(first, second);
    }
}

const std::map<std::string, TCell>& WriterParameters() {
    static const std::map<std::string, TCell> parameters = {{"x", int64_t{1}},   {"y", int64_t{2}},
                                                            {"s", "Yes sir"},    {"id", int64_t{3}},
                                                            {"Low", int64_t{1}}, {"t", "%y%"}};
    return parameters;
}

/// Case and blanks outside literals are free.
std::string TStatementWriter::Cased(std::string_view text) {
    const unsigned how = Below(4);
    if (how > 1) return std::string(text);
    static const char* const blanks[] = {" ", "  ", "\n  ", " /* ( */ ", " -- (\n"};
    std::string written;
    bool inLiteral = false;
    for (const char c : text) {
        if (c == '\'' || c == '"') inLiteral = !inLiteral;
        const bool isSign = c == '.' || c == '=' || c == '(' || c == '+';
        if (!inLiteral && isSign && OneIn(4)) written += ' ';
        written += inLiteral ? c : how == 0 ? UpperCase({&c, 1})[0] : LowerChar(c);
        if (!inLiteral && isSign && OneIn(4)) written += AnyOf(blanks);
    }
    return written;
}

// ---------------------------------------------------------------- from

bool TStatementWriter::IsTaken(const TScope& scope, std::string_view name) {
    return std::any_of(scope.begin(), scope.end(),
                       [name](const TWrittenTable& each) { return SameText(each.name, name); });
}

std::string TStatementWriter::Table(TScope& scope, size_t table) {
    std::string written =
        OneIn(8) ? '"' + std::string(tables[table].name) + '"' : Cased(tables[table].name);
    std::string name = tables[table].name;
    static const char* const aliases[] = {"k", "one", "q2", "A", "B", "C", "P", "x", "Tab"};
    if (IsTaken(scope, name) || OneIn(3)) {
        do
            name = AnyOf(aliases);
        while (IsTaken(scope, name));
        written += (OneIn(2) ? " as " : " ") + (OneIn(6) ? '"' + name + '"' : name);
    }
    scope.push_back({table, name});
    return written;
}

/// Mostly the kind that the structure has between the last table and one before it.
std::string TStatementWriter::JoinWords(const TScope& scope) {
    const auto tableOf = [this](const TWrittenTable& each) {
        return structure.TableByName(false, tables[each.table].name);
    };
    const TDSTable* const own = tableOf(scope.back());
    for (size_t i = 0; i + 1 < scope.size() && !OneIn(4); ++i) {
        const TDSLink* const link = own->LinkByTable(tableOf(scope[i]));
        if (!link) continue;
        static const char* const kinds[][2] = {{"join", "join"},
                                               {"right join", "left join"},
                                               {"left join", "right join"},
                                               {"full outer join", "full outer join"}};
        return Cased(kinds[static_cast<size_t>(link->LinkType())][link->Table2() == own]);
    }
    static const char* const words[] = {"join",       "inner join",       "join",
                                        "inner join", "left join",        "left outer join",
                                        "left join",  "right outer join", "full join"};
    return Cased(AnyOf(words));
}

std::string TStatementWriter::From(TScope& scope, TStrings& where, unsigned most) {
    std::string text = Table(scope, Below(std::size(tables)));
    const bool byComma = OneIn(4);
    for (unsigned more = Below(most); more > 0; --more) {
        // mostly one that a link leads to
        std::vector<size_t> next;
        for (const TLinkOf& link : links)
            for (const TWrittenTable& each : scope) {
                if (link.from == each.table) next.push_back(link.to);
                if (link.to == each.table) next.push_back(link.from);
            }
        std::erase_if(next, [&](size_t table) {
            return !OneIn(8) &&
                   std::any_of(scope.begin(), scope.end(),
                               [table](const TWrittenTable& each) { return each.table == table; });
        });
        const size_t table = next.empty() ? Below(std::size(tables)) : AnyOf(next);
        if (byComma || OneIn(20)) {
            text += ", " + Table(scope, table);
            const std::string on = On(scope, where);
            where.push_back(on);
            continue;
        }
        if (OneIn(30)) {
            text += (OneIn(2) ? " cross join " : " natural join ") + Table(scope, table);
            continue;
        }
        if (OneIn(12) && text.find(',') == std::string::npos) text = "(" + text + ")";
        std::string joined = Table(scope, table);
        const std::string words = JoinWords(scope);
        if (OneIn(20)) { // joined among themselves first
            TScope inner{scope.back()};
            TStrings ignored;
            scope.pop_back();
            const std::string other = Table(inner, Below(std::size(tables)));
            if (!IsTaken(scope, inner.back().name))
                joined = "(" + joined + " join " + other + " on " + On(inner, ignored) + ")";
            else
                inner.pop_back();
            scope.insert(scope.end(), inner.rbegin(), inner.rend());
        }
        text += (OneIn(3) ? "\n  " : " ") + words + " " + joined;
        std::string condition = OneIn(5) ? Using(scope) : std::string();
        if (condition.empty()) condition = " on " + On(scope, where);
        text += condition;
    }
    return text;
}

std::string TStatementWriter::Using(const TScope& scope) {
    const size_t last = scope.back().table;
    const bool fits = last < 2 && scope.size() == 2 && scope[0].table + last == 1;
    if (!fits) return {};
    merged = nesting == 0;
    return OneIn(6) ? " using (x)" : " using (x, y)";
}

/// How the last table is joined to those before it.
std::string TStatementWriter::On(const TScope& scope, TStrings& where) {
    const TWrittenTable& own = scope.back();
    TStrings parts;
    std::vector<std::pair<const TLinkOf*, const TWrittenTable*>> possible;
    for (const TLinkOf& link : links)
        for (size_t i = 0; i + 1 < scope.size(); ++i)
            if ((link.from == own.table && link.to == scope[i].table) ||
                (link.to == own.table && link.from == scope[i].table))
                possible.emplace_back(&link, &scope[i]);
    for (unsigned count = OneIn(5) ? Below(3) : 1; count > 0 && !possible.empty(); --count) {
        const auto [link, other] = AnyOf(possible);
        const bool isFrom = link->from == own.table;
        for (const auto& [from, to] : link->pairs) {
            std::string left = Named(scope, isFrom ? own : *other, from);
            std::string right = Named(scope, isFrom ? *other : own, to);
            if (OneIn(2)) std::swap(left, right);
            const std::string pair = left + (OneIn(30) ? " <= " : OneIn(2) ? " = " : "=") + right;
            OneIn(16) ? where.push_back(pair) : OneIn(30) ? void() : parts.push_back(pair);
        }
    }
    if (OneIn(12)) parts.push_back(Comparison(scope));
    if (OneIn(8)) { // two other tables
        const TWrittenTable &first = AnyOf(scope), &second = AnyOf(scope);
        for (const TLinkOf& link : links)
            if (link.from == first.table && link.to == second.table && parts.size() < 3)
                parts.push_back(Named(scope, first, link.pairs[0].first) + " = " +
                                Named(scope, second, link.pairs[0].second));
    }
    if (parts.empty()) parts.emplace_back("1 = 1");
    std::shuffle(parts.begin(), parts.end(), random);
    const std::string text = JoinStrings(parts, Cased(" and "));
    return OneIn(8) ? "(" + text + ")" : text;
}

// ---------------------------------------------------------------- columns

std::string TStatementWriter::Named(const TScope& scope, const TWrittenTable& table,
                                    std::string_view column) {
    const auto others = std::count_if(scope.begin(), scope.end(), [&](const TWrittenTable& each) {
        const auto& columns = tables[each.table].columns;
        return std::any_of(columns.begin(), columns.end(),
                           [column](const TColumnOf& of) { return of.name == column; });
    });
    const auto quoted = [this](std::string_view text) {
        static const char* const quotes[] = {"\"\"", "``", "[]"};
        const char* const pair = AnyOf(quotes);
        return pair[0] + std::string(text) + pair[1];
    };
    const std::string name = OneIn(10) ? quoted(column) : Cased(column);
    const bool isMerged = merged && scope.size() == 2 && (column == "x" || column == "y");
    if ((others == 1 || isMerged) && OneIn(2)) return name;
    return (OneIn(10) ? quoted(table.name) + "." : Cased(table.name + ".")) + name;
}

/// A column of the type, or another where the tables have none.
std::string TStatementWriter::Column(const TScope& scope, char type) {
    for (int attempt = 0;; ++attempt) {
        const TWrittenTable& table = AnyOf(scope);
        const TColumnOf& column = AnyOf(tables[table.table].columns);
        if (type == ' ' || column.type == type || attempt > 20)
            return Named(scope, table, column.name);
    }
}

/// The text of a virtual field, or one that differs from it within a literal.
std::string TStatementWriter::Virtual(const TScope& scope) {
    const TVirtualOf& of = AnyOf(virtuals);
    for (const TWrittenTable& table : scope) {
        if (table.table != of.table) continue;
        std::string text = of.text;
        if (OneIn(4)) text = ReplaceStr(text, "Yes sir", OneIn(2) ? "yes sir" : "Yessir");
        if (OneIn(4)) text = ReplaceStr(text, "In  side", OneIn(2) ? "in  side" : "In side");
        return Cased(ReplaceStr(text, tables[of.table].name + std::string("."), table.name + "."));
    }
    return Column(scope);
}

std::string TStatementWriter::Expression(const TScope& scope, char type) {
    switch (Below(9)) {
    case 0:
        return Virtual(scope);
    case 1:
        return Column(scope, 'i') + " + " + Column(scope, 'i');
    case 2:
        return Cased("coalesce(") + Column(scope, type) + ", " + Literal(type) + ")";
    case 3:
        return Cased("cast(") + Column(scope) + " as " + (OneIn(2) ? "text" : "integer") + ")";
    case 4:
        return Column(scope, 's') + Cased(" collate ") + (OneIn(2) ? "nocase" : "binary");
    case 5:
        return "(" + Column(scope, type) + ")";
    case 6:
        return Cased("case when ") + Comparison(scope) + " then " + Literal(type) + " else " +
               Column(scope, type) + " end";
    case 7:
        return Column(scope, 's') + " || " + Literal('s');
    default:
        return Column(scope, type);
    }
}

std::string TStatementWriter::Columns(const TScope& scope, std::string& tail) {
    if (OneIn(10)) return OneIn(4) ? AnyOf(scope).name + ".*" : "*";
    TStrings texts, groups, sorting;
    const bool anyAggregate = OneIn(8), isGrouped = anyAggregate ? !OneIn(3) : OneIn(20);
    static const char* const aliases[] = {"k", "Name", "total", "x", "s", "\"My name\"", "id"};
    // a column beside an aggregate is of any row
    const unsigned most = anyAggregate && !isGrouped ? 1 : 3;
    for (unsigned count = 1 + Below(most), i = 1; i <= count; ++i) {
        std::string text = OneIn(3) ? Expression(scope, ' ') : Column(scope);
        const bool isAggregate = anyAggregate && i == count;
        if (isAggregate)
            text = OneIn(3) ? "count(*)" : Cased(OneIn(2) ? "max(" : "count(") + text + ")";
        else if (isGrouped)
            groups.push_back(OneIn(6) ? std::to_string(i) : text);
        if (OneIn(6)) sorting.push_back(OneIn(3) ? std::to_string(i) : text);
        if (OneIn(4)) {
            const std::string alias = AnyOf(aliases);
            text += (OneIn(2) ? Cased(" as ") : " ") + alias;
            if (OneIn(6)) sorting.push_back(alias);
        }
        texts.push_back(text);
    }
    if (!groups.empty()) tail += Cased("\ngroup by ") + JoinStrings(groups, ", ");
    if (!isGrouped && !anyAggregate && OneIn(12)) sorting.push_back(Column(scope));
    if (!sorting.empty()) tail += Cased("\norder by ") + JoinStrings(sorting, " desc, ");
    return JoinStrings(texts, ", ");
}

// ---------------------------------------------------------------- conditions

std::string TStatementWriter::Literal(char type) {
    static const TWords numbers = {"1", "2", "5", "-1", "1.0", "+1", "0x1"};
    static const TWords strings = {"'Yes sir'", "'yes sir'", "'Yessir'", "'y'",   "'Y'",
                                   "'a  b'",    "'a b'",     "'5'",      "''",    "'null'",
                                   "'s'",       "'x'",       "' 5 '",    "'1e0'", "'0x1'",
                                   "'A.x'",     "'@1'",      "'YES SIR'"};
    static const TWords booleans = {"1", "0", "true", "false", "'1'", "'0'", "TRUE"};
    static const TWords dates = {"'2024-01-31'", "'2023-12-31'", "'2024-1-31'", "'31.1.'"};
    static const char* const odd[] = {"null", "'true'", "1", "'1'", "x'31'", "\"no column\""};
    if (OneIn(30)) return AnyOf(odd);
    if (OneIn(6)) type = "isbd"[Below(4)];
    if (OneIn(10)) {
        auto it = WriterParameters().begin();
        std::advance(it, Below(static_cast<unsigned>(WriterParameters().size())));
        return ":" + it->first;
    }
    return AnyOf(type == 's' ? strings : type == 'b' ? booleans : type == 'd' ? dates : numbers);
}

std::string TStatementWriter::Operator() {
    static const char* const operators[] = {"=", "=", "<>", "!=", "<", ">", "<=", ">="};
    return OneIn(3) ? AnyOf(operators) : std::string(" ") + AnyOf(operators) + " ";
}

std::string TStatementWriter::SubSelect(const TScope& scope) {
    ++nesting;
    TScope inner;
    TStrings where;
    const std::string from = From(inner, where, 2);
    TScope both = inner;
    for (const TWrittenTable& outer : scope)
        if (!IsTaken(inner, outer.name) && OneIn(2)) both.push_back(outer);
    const std::string column = Column(inner, 'i');
    if (!OneIn(4)) where.push_back(Comparison(OneIn(3) ? both : inner));
    --nesting;
    return "(select " + column + " from " + from +
           (where.empty() ? "" : " where " + JoinStrings(where, " and ")) + ")";
}

std::string TStatementWriter::Comparison(const TScope& scope) {
    const char type = "iiissbd"[Below(7)];
    const std::string column = OneIn(4) ? Expression(scope, type) : Column(scope, type);
    const std::string isNot = OneIn(4) ? Cased(" not ") : " ";
    static const char* const patterns[] = {"'y%'", "'%y%'", "'%s'", "'Y_s%'", "'%'",     "'5'",
                                           "'1%'", ":t",    "'y'",  "'%''%'", "'a  b%'", "'% %'"};
    static const TStrings seldom = SplitLines(
        ReplaceStr("is 1; is not 'y'; is distinct from 2; is not distinct from null; isnull; "
                   "notnull; not null; glob '*y*'; not glob 'y*'; like 'y#%' escape '#'; not like "
                   "'%y' escape 'a'; in (); not in (1 + 1, :x); == 1; between 1 and 2 + 1; is "
                   "true; is not false; = - 1; = 1 + 1; = 'a' || 'b'; = (1); = ('y'); & 1",
                   "; ", "\n"));
    switch (Below(16)) {
    case 14:
        return column + " " + AnyOf(seldom);
    case 15:
        return "(" + Column(scope, 'i') + ", " + Column(scope, 'i') + ") = (1, 2)";
    case 0:
        return column + isNot + Cased("between ") + Literal(type) + " and " + Literal(type);
    case 1: {
        TStrings items;
        for (unsigned count = 1 + Below(3); count > 0; --count)
            items.push_back(Literal(type));
        return column + isNot + Cased("in (") + JoinStrings(items, OneIn(2) ? ", " : ",") + ")";
    }
    case 2:
        return column + isNot + Cased("like ") + AnyOf(patterns);
    case 3:
        return column + (OneIn(2) ? " is null" : " is not null");
    case 4:
        return column + Operator() + Column(scope, type);
    case 5:
        return Literal(type) + Operator() + column;
    case 6:
        if (nesting > 1) break;
        return OneIn(4)   ? Cased("exists ") + SubSelect(scope)
               : OneIn(4) ? column + " = " + SubSelect(scope)
                          : column + isNot + "in " + SubSelect(scope);
    case 7:
        return OneIn(4) ? "1 = 1" : Column(scope, 'b');
    case 8:
        return Virtual(scope) + Operator() + Literal(OneIn(2) ? 's' : 'i');
    default:
        break;
    }
    return column + Operator() + Literal(type);
}

std::string TStatementWriter::Condition(const TScope& scope) {
    if (!OneIn(3) || nesting > 2) {
        const std::string text = Comparison(scope);
        return OneIn(40)   ? "not not " + text
               : OneIn(10) ? "not " + text
               : OneIn(10) ? "(" + text + ")"
                           : text;
    }
    TStrings parts;
    ++nesting;
    for (unsigned count = 1 + Below(3); count > 0; --count)
        parts.push_back(Condition(scope));
    --nesting;
    return (OneIn(4) ? Cased("not (") : "(") + JoinStrings(parts, OneIn(2) ? " or " : " and ") +
           ")";
}

std::string TStatementWriter::Statement() {
    TScope scope;
    TStrings where;
    std::string tail;
    const std::string from = From(scope, where, 4);
    for (unsigned count = Below(4); count > 0; --count)
        where.push_back(Condition(scope));
    std::shuffle(where.begin(), where.end(), random);
    const std::string columns = Columns(scope, tail);
    std::string text =
        Cased(OneIn(8) ? "select distinct " : "select ") + columns + Cased("\nfrom ") + from;
    if (!where.empty()) {
        const bool isAny = OneIn(8);
        text += Cased("\nwhere ") + JoinStrings(where, isAny ? "\n or " : "\n and ");
    }
    return text + tail;
}

} // namespace tern7::proof
