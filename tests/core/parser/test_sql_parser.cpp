#include <gtest/gtest.h>

#include <tern7/core/parser/sql_parser.h>

using namespace tern7;

namespace {

/// A condition as `field|operator|value`, a bracket as `word[...]`; "!" negated, "?" sub-query.
std::string Written(const TSQLConditionNode& node) {
    std::string text = node.Not() ? "!" : "";
    if (const TSQLCondition* condition = node.AsCondition()) {
        if (condition->IsSubQuery()) text += "?";
        return text.append(condition->Field())
            .append("|")
            .append(condition->Operator())
            .append("|")
            .append(condition->Value());
    }
    text.append(node.AsBracket()->LinkType()).append("[");
    for (const TSQLConditionNode* each : node.AsBracket()->Nodes()) {
        if (text.back() != '[') text += ", ";
        EXPECT_EQ(each->Parent(), node.AsBracket());
        text.append(Written(*each));
    }
    return text + "]";
}

std::string Written(const TSQLResultFieldList& fields) {
    std::string text;
    for (const auto& field : fields) {
        if (!text.empty()) text += ", ";
        text.append(field->SQLExpr());
        if (!field->Alias.empty()) text.append(" as ").append(field->Alias);
        if (field->SortOrder != 0)
            text += (field->SortOrder == 1 ? " up " : " down ") + std::to_string(field->SortIndex);
    }
    return text;
}

std::string Written(const TSQLTableList& tables) {
    std::string text;
    for (const auto& table : tables) {
        if (!text.empty()) text += ", ";
        text.append(table->TableName()).append(":").append(table->Alias);
    }
    return text;
}

std::unique_ptr<TKParserResult> Parsed(const std::string& sql) {
    TKSQLParser parser;
    parser.SetText(sql);
    parser.Parse();
    return parser.TakeResult();
}

/// The message, its CR LF as a blank; empty when the text is read.
std::string Failure(const std::string& sql) {
    try {
        Parsed(sql);
        return {};
    } catch (const ESQLParserError& error) {
        return ReplaceStr(error.what(), "\r\n", " ");
    }
}

std::string Where(const std::string& condition) {
    try {
        return Written(Parsed("select * from t where " + condition)->Where());
    } catch (const ESQLParserError& error) {
        return error.what();
    }
}

std::string Repeated(std::string_view piece, size_t count, std::string_view behind = {}) {
    return Replicate(piece, count).append(behind);
}

} // namespace

TEST(SQLParser, SelectList) {
    const std::pair<const char*, const char*> cases[] = {
        {"A.x, y", "A.x, y"},
        {"count ( * ) as Number, A.x+ 1", "count(*) as Number, A.x+1"},
        {"A.x alias", "A.xalias"},
        {"DISTINCT (select max(a, b) as m from s) as \"Order Max\"",
         "(selectmax(a,b)asmfroms) as OrderMax"},
        {"case when a then 'x  y' end AS c", "casewhenathen'x  y'end as c"},
        {"\"Order Date\" as \"Owner's -- name\"", "\"OrderDate\" as Owner's--name"},
        {"1.5e3 as n", "1.5e3 as n"},
    };
    for (const auto& [list, fields] : cases) {
        const auto result = Parsed(std::string("select ") + list + " from t");
        EXPECT_EQ(Written(result->ResultFields), fields);
        EXPECT_EQ(result->Distinct, StartsText(list, "distinct")) << list;
        EXPECT_EQ(result->Rest.text, "") << list;
    }
    const auto all = Parsed("select * from t");
    EXPECT_TRUE(all->AllFields && all->ResultFields.AllFields && all->ResultFields.IsEmpty());
    EXPECT_EQ(Parsed("select a  +\nb as c from t")->ResultFields[0]->Source, "a  +\nb");
}

TEST(SQLParser, FieldNameOfAnExpression) {
    const std::pair<const char*, const char*> cases[] = {
        {"x", "x"},         {"A.x", "x"},    {"s.A.x", "A.x"}, {"sum(A.x)", "sum(A.x)"},
        {"A.f(x)", "f(x)"}, {"f(x)", "f(x)"}};
    for (const auto& [expression, name] : cases) {
        TSQLResultField field;
        field.SetSQLExpr(expression);
        EXPECT_EQ(field.FieldName(), name);
    }
    const auto result = Parsed("select A.x as n, a.X from t");
    EXPECT_EQ(result->ResultFields.IndexByExpr("a.x"), 0);
    EXPECT_EQ(result->ResultFields.IndexByAlias("N"), 0);
    EXPECT_EQ(result->ResultFields.IndexByAlias("x"), -1);
}

TEST(SQLParser, Tables) {
    const std::pair<const char*, const char*> cases[] = {
        {"t1 a, t2 b", "t1:a, t2:b"},
        {"t1", "t1:t1"},
        {"\"Order Details\" OD where a = 1", "OrderDetails:OD"},
        {"db.s.t x", "db.s.t:x"},
        {"t1 as a", "t1:as"}, // "as" is no word of this grammar: it is the alias
        {"t1 left outer join t2 on (t1.a = t2.a and not t1.b > 3) where x = 1", "t1:t1, t2:t2"},
        {"((t1 A inner join t2 B on A.x = B.x) full join t3 on B.y = t3.y), t4",
         "t1:A, t2:B, t3:t3, t4:t4"},
        {"t1 join t2 on a = b right join t3 on c = d order by 1", "t1:t1, t2:t2, t3:t3"},
    };
    for (const auto& [from, tables] : cases)
        EXPECT_EQ(Written(Parsed(std::string("select x from ") + from)->Tables), tables);
}

TEST(SQLParser, ConditionTree) {
    const std::pair<const char*, const char*> cases[] = {
        {"a = 1", "[a|=|1]"},
        {"a = 1 and b = 2", "and[a|=|1, b|=|2]"},
        {"a = 1 AND b = 2 Or c = 3", "or[and[a|=|1, b|=|2], c|=|3]"},
        {"a = 1 and (b = 2 or c = 3)", "and[a|=|1, or[b|=|2, c|=|3]]"},
        {"(a = 1 and b = 2) and c = 3", "and[and[a|=|1, b|=|2], c|=|3]"},
        {"((a = 1 and b = 2))", "and[a|=|1, b|=|2]"},
        {"(((a = 1)))", "[a|=|1]"},
        {"(a = 1) or ((b = 2))", "or[a|=|1, b|=|2]"},
        {"x between 1 and 5 and y = 2", "and[x|between|1 and 5, y|=|2]"},
        {"(x between 1 and 5)", "[x|between|1 and 5]"},
        {"(x between 1 and 5 or y = 2)", "or[x|between|1 and 5, y|=|2]"},
    };
    for (const auto& [text, tree] : cases)
        EXPECT_EQ(Where(text), tree) << text;
}

TEST(SQLParser, Negation) {
    const std::pair<const char*, const char*> cases[] = {
        {"not (a = 1)", "[!a|=|1]"},
        {"not a = 1", "[!a|=|1]"},
        {"not not a = 1", "[a|=|1]"},
        {"a not like 'x'", "[!a|like|'x']"},
        {"not a not in (1, 2)", "[a|in|(1, 2)]"},
        {"a not between 1 and 2", "[!a|between|1 and 2]"},
        {"a is not null", "[a|is|not null]"},
        {"(not a = 1 and b = 2)", "and[!a|=|1, b|=|2]"},
        {"NOT (a = 1 and b = 2)", "!and[a|=|1, b|=|2]"},
        {"c = 3 and not (a = 1 or b = 2)", "and[c|=|3, !or[a|=|1, b|=|2]]"},
        {"not ((a = 1 or b = 2))", "!or[a|=|1, b|=|2]"},
        {"not (not (a = 1 or b = 2) and c = 3)", "!and[!or[a|=|1, b|=|2], c|=|3]"},
        {"not (not (a = 1 or b = 2))", "or[a|=|1, b|=|2]"},
        {"not (a in (select x from y where p = 1 and q = 2))",
         "[!?a|in|(select x from y where p = 1 and q = 2)]"},
        {"not (a between 1 and 2)", "[!a|between|1 and 2]"},
        {"not not (a = 1 and b = 2)", "Lost bracket\r\nLine:1"},
    };
    for (const auto& [text, tree] : cases)
        EXPECT_EQ(Where(text), tree) << text;
}

TEST(SQLParser, OperandsAndOperators) {
    const std::pair<const char*, const char*> cases[] = {
        {"(A.x + 1) * 2 >= B.y - (3)", "[(A.x + 1) * 2|>=|B.y - (3)]"},
        {"f(a, 'b and c')!='it''s'", "[f(a, 'b and c')|!=|'it''s']"},
        {"a = \"abc\"", "[a|=|'abc']"},
        {"a between \"x\" and \"y\"", "[a|between|'x' and 'y']"},
        {"a = \"it's\"", "[a|=|'it''s']"},
        {"(a = \"salt and (pepper\" and b = 1)", "and[a|=|'salt and (pepper', b|=|1]"},
        {"a = \"x\" || \"y\"", "[a|=|\"x\" || \"y\"]"},
        {"\"Order Date\" > :p1", "[\"Order Date\"|>|:p1]"},
        {"x in (select id from y where (a = 1))", "[?x|in|(select id from y where (a = 1))]"},
        {"x = 1 /* one */ and y = -- two\n2 -- three", "and[x|=|1, y|=|2]"},
        {"a LIKE 'x' and b <> 2", "and[a|like|'x', b|<>|2]"},
        {"a is null", "[a|is|null]"},
        {"a = 1 = 2", "[a|=|1]"},
    };
    for (const auto& [text, tree] : cases)
        EXPECT_EQ(Where(text), tree) << text;
    const auto result = Parsed("select * from t where a not like 'x' and b in (1)");
    const TSQLConditionNodeList& nodes = result->Where().Nodes();
    EXPECT_EQ(nodes[0]->AsCondition()->GetSQLExpr(), "not(a like 'x')");
    EXPECT_EQ(nodes[1]->AsCondition()->GetSQLExpr(), "b in (1)");
    EXPECT_THROW(nodes[2], std::out_of_range);
}

TEST(SQLParser, ConditionsKnowTheirSource) {
    const auto result = Parsed("select * from t\nwhere not ( a = 1 ) and\n  (b = 2) and x = 3");
    const TSQLConditionNodeList& nodes = result->Where().Nodes();
    EXPECT_EQ(nodes[0]->AsCondition()->Source(), "not ( a = 1 )");
    EXPECT_EQ(nodes[1]->AsCondition()->Source(), "(b = 2)");
    const TKTextPosition position = result->PositionOf(nodes[1]->AsCondition()->Source());
    EXPECT_EQ(position.line, 3);
    EXPECT_EQ(position.column, 3);
}

TEST(SQLParser, OrderBy) {
    const std::pair<const char*, const char*> cases[] = {
        {"select a, b from t order by 2 desc, 1", "a up 2, b down 1"},
        {"select A.a, b from t order by B, a.A asc", "A.a up 2, b up 1"},
        {"select * from t order by A.x desc, y", "A.x down 1, y up 2"},
        {"select a from t where x = 1 order by a", "a up 1"},
        // GROUP BY hides what follows.
        {"select A.a from t group by A.a order by 1", "A.a"},
    };
    for (const auto& [sql, fields] : cases)
        EXPECT_EQ(Written(Parsed(sql)->ResultFields), fields) << sql;
}

TEST(SQLParser, WhatIsLeftOut) {
    const struct {
        const char* sql;
        const char* rest;
        int line, column;
    } cases[] = {
        {"select a from t as x where a = 1", "x where a = 1", 1, 20},
        {"select a from t where a = 1 having x", "having x", 1, 29},
        {"select a from t where t.limit > t.limit limit 5", "limit 5", 1, 41},
        {"select a from t where a = 1\nunion\nselect b from u", "union\nselect b from u", 2, 1},
        {"select a from t order by a limit 5 ", "limit 5", 1, 28},
        {"select a from t group by A.b having c", "b having c", 1, 28},
        {"select a from t;\n  select b from u", "select b from u", 2, 3},
        {"select a from t where a = 1 ; -- done", "", 1, 1},
    };
    for (const auto& each : cases) {
        const auto result = Parsed(each.sql);
        EXPECT_EQ(result->Rest.text, each.rest) << each.sql;
        EXPECT_EQ(result->Rest.position.line, each.line) << each.sql;
        EXPECT_EQ(result->Rest.position.column, each.column) << each.sql;
    }
}

TEST(SQLParser, Errors) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "Wrong SQL statement Line:1"},
        {"update t", "Wrong SQL statement Line:1"},
        {"select a", "Wrong SQL statement Line:1"},
        {"select (a from t", "Wrong SQL statement Line:1"},
        {"select *\nfrom t\nwhere a", "Wrong SQL statement Line:3"},
        {"select * from t\r\nwhere a =\r\n\r\n", "Wrong SQL statement Line:2"},
        {"select * from t where a = 1 and", "Wrong SQL statement Line:1"},
        {"select * from t where x between 1 or 2", "Wrong SQL statement Line:1"},
        {"select * from t where (a = 1", "Lost bracket Line:1"},
        {"select * from t where (a = 1 and b = 2", "Lost bracket Line:1"},
        {"select * from t left outer t2 on a = b", "Wrong SQL statement Line:1"},
        {"select * from t inner t2 on a = b", "Wrong SQL statement Line:1"},
        {"select * from t join t2 x where a = b", "Wrong SQL statement Line:1"},
        {"select * from t join t2", "Wrong SQL statement Line:1"},
        {"select a from t group a", "Wrong SQL statement Line:1"},
        {"select a from t group by a", "Wrong SQL statement Line:1"},
        {"select a from t order a", "Wrong SQL statement Line:1"},
        {"select a from t order by", "Wrong SQL statement Line:1"},
        {"select a from t order by 1, a", "Wrong SQL statement Line:1"},
        {"select a from t order by b", "Wrong SQL statement Line:1"},
        {"select * from t order by a.", "Wrong SQL statement Line:1"},
        {"select a from t order by 2", "Wrong SQL statement Line:1"},
        {"select a from t order by 99999999999", "Wrong SQL statement Line:1"},
        {"select * from t where a = 'open", ""},
        {"select \"open from t where a = 1", "Wrong SQL statement Line:1"},
    };
    for (const auto& [sql, failure] : cases)
        EXPECT_EQ(Failure(sql), failure) << sql;
}

TEST(SQLParser, RefusesDeepNestingOnBothSidesOfTheLimit) {
    const std::string start = "select * from t where\n";
    const auto nested = [&](std::string_view open, size_t depth) {
        return start + Repeated(open, depth, "a = 1 and b = 2") + Replicate(")", depth);
    };
    for (std::string_view open : {"(", "not ("}) {
        EXPECT_EQ(Failure(nested(open, 1000)), "") << open;
        EXPECT_EQ(Failure(nested(open, 1001)), "Wrong SQL statement Line:2") << open;
    }
    const auto subQueries = [](size_t depth) {
        return "select * from t where x in " +
               Repeated("(select y from t where x in ", depth, "(1)") + Replicate(")", depth);
    };
    EXPECT_EQ(Failure(subQueries(200)), "");
    EXPECT_EQ(Failure(subQueries(201)), "Wrong SQL statement Line:1");
}
