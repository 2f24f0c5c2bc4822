#include <tern7/core/query/read_sql/import_joins.h>

#include <algorithm>
#include <map>
#include <tuple>

#include <tern7/core/query/read_sql/report_reasons.h>
#include <tern7/core/query/read_sql/sql_pieces.h>

namespace tern7 {

namespace {

bool SaysPair(const TColumnPair& pair, const TDSLink& link, size_t i) {
    const auto textAt = [i](const TStrings& texts) {
        return i < texts.size() ? std::string_view(texts[i]) : std::string_view();
    };
    const std::string_view op = textAt(link.Operators());
    const auto fits = [&](const TNamedColumn& first, const TNamedColumn& second,
                          std::string_view written) {
        return SameText(first.name, link.Fields1()[i]) &&
               SameText(second.name, textAt(link.Fields2())) && written == (op.empty() ? "=" : op);
    };
    return pair.leftTable == link.Table1() ? fits(pair.left, pair.right, pair.op)
                                           : fits(pair.right, pair.left, MirroredOperator(pair.op));
}

} // namespace

TImportJoins::TImportJoins(TImportParser& statementParser, const TKCustomDBStructure& owner)
    : parser(statementParser), statement(statementParser.Statement()),
      names(owner, statementParser), onNodes(statement.tables.size()) {}

void TImportJoins::Find() {
    for (size_t i = 0; i < statement.tables.size(); ++i) {
        const TImportTable& table = statement.tables[i];
        if (table.on) CollectAnd(*table.on, i, true);
        anyRightOrFull =
            anyRightOrFull || table.join == TImportJoin::Right || table.join == TImportJoin::Full;
    }
    if (statement.where) CollectAnd(*statement.where, 0, false);
    names.ResolveTables(pairs);
    for (TColumnPair& pair : pairs) {
        const auto tableOf = [this](const TNamedColumn& column) {
            const std::optional<size_t> table = names.FindTable(column);
            return table ? names.TableOf(*table) : nullptr;
        };
        pair.leftTable = tableOf(pair.left);
        pair.rightTable = tableOf(pair.right);
    }
    for (size_t i = 0; i < statement.tables.size(); ++i)
        CollectUsing(i);

    using TKey = std::pair<int, int>; // places in the structure's list
    std::map<TKey, std::vector<const TColumnPair*>> byTables;
    for (const TColumnPair& pair : pairs) {
        if (!pair.leftTable || !pair.rightTable || pair.leftTable == pair.rightTable) continue;
        byTables[std::minmax(pair.leftTable->Index(), pair.rightTable->Index())].push_back(&pair);
    }
    for (const auto& [key, candidates] : byTables)
        FindLink(*candidates.front()->leftTable, *candidates.front()->rightTable, candidates);
}

void TImportJoins::CollectAnd(TImportNode& node, size_t table, bool isOn) {
    if (node.kind != TImportNode::TKind::And || node.negated) {
        if (isOn) onNodes[table].push_back(&node);
        AddPair(node, table, isOn);
        return;
    }
    for (TImportNode* each : node.nodes) {
        CollectAnd(*each, table, isOn);
        if (node.inBrackets && !pairs.empty() && pairs.back().node == each)
            pairs.back().isGrouped = true;
    }
}

void TImportJoins::AddPair(TImportNode& node, size_t table, bool isOn) {
    if (node.IsGroup() || node.right.IsEmpty() || node.notBefore || node.notInside) return;
    const auto left = names.ColumnAt(node.left);
    const auto right = left ? names.ColumnAt(node.right) : std::nullopt;
    if (!right) return;
    anyMarked = anyMarked || left->mayMiss || right->mayMiss;
    pairs.push_back({*left, *right, node.op, &node, table, isOn});
}

/// The columns of USING join the nearest table before it that has such a link.
void TImportJoins::CollectUsing(size_t table) {
    const TImportTable& written = statement.tables[table];
    const TDSTable* const own = names.TableOf(table);
    if (written.columns.empty() || !own) return;
    for (size_t other = table; other-- > 0;) {
        const TDSTable* const before = names.TableOf(other);
        if (!before || !own->LinkByTable(before)) continue;
        for (const std::string& column : written.columns) {
            TColumnPair pair{{{}, column}, {{}, column}, "=", nullptr, table, true};
            pair.leftTable = before;
            pair.rightTable = own;
            pairs.push_back(pair);
        }
        return;
    }
}

void TImportJoins::FindLink(const TDSTable& first, const TDSTable& second,
                            const std::vector<const TColumnPair*>& candidates) {
    const TDSLink* const link = first.LinkByTable(&second);
    if (!link || link->Fields1().empty()) return;
    // pairs that keep rows without partner belong together when they stand in one place and keep
    // the same rows
    const auto placeOf = [](const TColumnPair& pair) {
        const TDSTable* const kept = pair.left.mayMiss    ? pair.rightTable
                                     : pair.right.mayMiss ? pair.leftTable
                                                          : nullptr;
        return std::tuple(!pair.isOn, pair.isOn ? pair.table : 0, kept);
    };
    std::map<decltype(placeOf(*candidates.front())), std::vector<const TColumnPair*>> places;
    std::vector<const TColumnPair*> inner;
    for (const TColumnPair* pair : candidates) {
        if (!CanJoin(*pair)) continue;
        places[placeOf(*pair)].push_back(pair);
        if (IsInnerPair(*pair)) inner.push_back(pair);
    }
    std::optional<TImportedJoin> join;
    for (const auto& [place, pairsThere] : places)
        if (!join) join = SaidBy(*link, pairsThere);
    if (!join) join = SaidBy(*link, inner);
    if (join) joins.push_back(std::move(*join));
}

/// True when the pair can be a part of a join. A condition of an outer join says which rows of its
/// own table fit; one on two other tables is none that a link says.
bool TImportJoins::CanJoin(const TColumnPair& pair) const {
    const TDSTable* const own = names.TableOf(pair.table);
    if (!pair.isOn) return !anyRightOrFull; // WHERE sees the rows that such a join brings
    return own == pair.leftTable || own == pair.rightTable || IsInnerPair(pair);
}

/// True for a comparison that says the same in every place.
bool TImportJoins::IsInnerPair(const TColumnPair& pair) const {
    const TImportJoin kind = pair.isOn ? statement.tables[pair.table].join : TImportJoin::Inner;
    return !pair.left.mayMiss && !pair.right.mayMiss && !anyRightOrFull &&
           (kind == TImportJoin::Inner || kind == TImportJoin::Comma);
}

/// The link by these pairs; none when one of its own lacks.
std::optional<TImportedJoin>
TImportJoins::SaidBy(const TDSLink& link, const std::vector<const TColumnPair*>& candidates) const {
    TImportedJoin join{&link, false, false, false, false, {}};
    for (size_t i = 0; i < link.Fields1().size(); ++i) {
        const auto said =
            std::find_if(candidates.begin(), candidates.end(),
                         [&](const TColumnPair* pair) { return SaysPair(*pair, link, i); });
        if (said == candidates.end()) return std::nullopt;
        join.pairs.push_back(*said);
        join.isOn = join.isOn || (*said)->isOn;
    }
    TakeKind(join);
    return join;
}

void TImportJoins::TakeKind(TImportedJoin& join) const {
    const auto keep = [&join](const TDSTable* table) {
        (table == join.link->Table1() ? join.keeps1 : join.keeps2) = true;
    };
    for (const TColumnPair* pair : join.pairs) {
        if (pair->left.mayMiss) keep(pair->rightTable);
        if (pair->right.mayMiss) keep(pair->leftTable);
        if (!pair->isOn) continue;
        const TImportJoin kind = statement.tables[pair->table].join;
        const TDSTable* const own = names.TableOf(pair->table);
        if (own != join.link->Table1() && own != join.link->Table2()) continue; // inner
        if (kind == TImportJoin::Right || kind == TImportJoin::Full) keep(own);
        if (kind == TImportJoin::Left || kind == TImportJoin::Full)
            keep(own == pair->leftTable ? pair->rightTable : pair->leftTable);
    }
}

TSyntaxes TImportJoins::Syntaxes() const {
    const size_t count = statement.tables.size();
    if (count < 2) return TSyntaxes::All();
    if (statement.anyJoinWord) return {TSQLSyntax::ssSQL2};
    const auto allIn = [this](TSQLSyntax syntax) {
        return std::all_of(joins.begin(), joins.end(),
                           [&](const TImportedJoin& join) { return SameKind(join, syntax); });
    };
    // in the first form outer joins are left out, in the Oracle form nothing is
    const bool isSQL1 = !anyMarked && allIn(TSQLSyntax::ssSQL1);
    const bool isOracle = joins.size() + 1 >= count && allIn(TSQLSyntax::ssOracle);
    if (isSQL1 && isOracle) return {TSQLSyntax::ssSQL1, TSQLSyntax::ssOracle};
    if (isOracle || (anyMarked && !isSQL1)) return {TSQLSyntax::ssOracle};
    return {TSQLSyntax::ssSQL1};
}

/// True when the structure's link, written in the syntax, says what the statement says.
bool TImportJoins::SameKind(const TImportedJoin& join, TSQLSyntax syntax) const {
    const TDSLinkType type = join.link->LinkType();
    if (syntax == TSQLSyntax::ssSQL1 && type != TDSLinkType::ltInner) return false;
    const bool isFull = type == TDSLinkType::ltOuterFull && syntax == TSQLSyntax::ssSQL2;
    return join.keeps1 == (isFull || type == TDSLinkType::ltOuterLeft) &&
           join.keeps2 == (isFull || type == TDSLinkType::ltOuterRight);
}

/// An inner join is as well said by a condition, unless a later join brings rows back.
bool TImportJoins::CanBeRow(const TImportedJoin& join) const {
    return IsInner(join) &&
           std::all_of(join.pairs.begin(), join.pairs.end(),
                       [](const TColumnPair* pair) { return pair->node != nullptr; });
}

void TImportJoins::Decide(TSQLSyntax syntax, std::vector<TImportNode*>& rows, TSQLReport& report) {
    for (TImportedJoin& join : joins)
        DecideJoin(join, syntax, report);
    for (size_t i = 0; i < statement.tables.size(); ++i)
        DecideRest(i, rows, report);
}

void TImportJoins::DecideJoin(TImportedJoin& join, TSQLSyntax syntax, TSQLReport& report) {
    const bool isSame = SameKind(join, syntax);
    if (!isSame && CanBeRow(join)) return;
    join.isTaken = isSame;
    for (const TColumnPair* pair : join.pairs) {
        const TTokenRange all = pair->node ? pair->node->all : statement.tables[pair->table].all;
        report.Add(isSame ? TSQLReportKind::rkRecognised : TSQLReportKind::rkDropped, "join",
                   parser.Written(all), OffsetOf(all),
                   isSame ? std::string_view() : reasons::OtherKind);
        if (pair->node) pair->node->isJoin = true;
    }
}

void TImportJoins::DecideRest(size_t table, std::vector<TImportNode*>& rows, TSQLReport& report) {
    const TImportTable& written = statement.tables[table];
    const bool isInner =
        (written.join == TImportJoin::Comma || written.join == TImportJoin::Inner) &&
        !anyRightOrFull;
    for (TImportNode* node : onNodes[table]) {
        if (node->isJoin) continue;
        if (isInner) {
            rows.push_back(node);
            continue;
        }
        report.Add(TSQLReportKind::rkDropped, "join", parser.Written(node->all),
                   OffsetOf(node->all), reasons::NoLink);
    }
    const auto isUsed = [&] {
        return std::any_of(joins.begin(), joins.end(), [table](const TImportedJoin& join) {
            return join.pairs.front()->table == table && join.pairs.front()->isOn;
        });
    };
    const auto lose = [&](std::string_view reason) {
        report.Add(TSQLReportKind::rkDropped, "join", parser.Written(written.all),
                   OffsetOf(written.all), reason);
    };
    if (written.natural || (!written.columns.empty() && !isUsed()))
        lose(reasons::NoLink);
    else if (!written.columns.empty() && statement.allFields)
        lose(reasons::MergedColumns);
}

std::string TImportJoins::PairText(const TColumnPair& pair) {
    if (pair.node) return names.Rewrite(pair.node->body);
    return names.ColumnText(*pair.leftTable, pair.left.name) + " = " +
           names.ColumnText(*pair.rightTable, pair.right.name);
}

bool TImportJoins::IsCompared(const TDSTable& table) const {
    return std::any_of(pairs.begin(), pairs.end(), [&table](const TColumnPair& pair) {
        return pair.leftTable && pair.rightTable && pair.leftTable != pair.rightTable &&
               (pair.leftTable == &table || pair.rightTable == &table) && pair.node &&
               !pair.node->isJoin;
    });
}

std::optional<bool> TImportJoins::BracketConditions() const {
    for (const TImportedJoin& join : joins) {
        if (join.isOn) continue;
        const TColumnPair& first = *join.pairs.front();
        return join.pairs.size() > 1 ? first.isGrouped : first.node->brackets > 1;
    }
    return std::nullopt;
}

size_t TImportJoins::OffsetOf(TTokenRange range) {
    parser.Tokens().GotoBookmark(range.from);
    return parser.Tokens().GetTokOffset();
}

} // namespace tern7
