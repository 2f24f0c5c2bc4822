#include <tern7/core/query/read_sql/import_names.h>

#include <algorithm>

#include <tern7/core/query/read_sql/report_reasons.h>

namespace tern7 {

namespace {

std::string JoinedName(const std::vector<std::string>& names, size_t count) {
    std::string joined;
    for (size_t i = 0; i < count; ++i)
        joined += (i > 0 ? "." : "") + names[i];
    return joined;
}

bool HasComment(std::string_view gap) {
    return gap.find_first_not_of(" \t\r\n\f\v") != std::string_view::npos;
}

} // namespace

TImportNames::TImportNames(const TKCustomDBStructure& owner, TImportParser& statementParser)
    : structure(owner), parser(statementParser), tokens(statementParser.Tokens()),
      written(statementParser.Statement().tables) {
    tables.resize(written.size());
    for (size_t i = 0; i < written.size(); ++i) {
        const TImportTable& table = written[i];
        if (!table.alias.empty()) {
            qualifiers.try_emplace(LowerCase(table.alias), i);
            if (table.name.size() > 1) // SQLite takes the schema before the alias too
                qualifiers.try_emplace(
                    LowerCase(JoinedName(table.name, table.name.size() - 1) + "." + table.alias),
                    i);
        } else if (!table.name.empty()) {
            qualifiers.try_emplace(LowerCase(table.name.back()), i);
            qualifiers.try_emplace(LowerCase(JoinedName(table.name, table.name.size())), i);
        }
    }
}

// --- tables

/// The structure's tables of that name, with schema or without.
std::vector<TDSTable*> TImportNames::Candidates(const TImportTable& table) const {
    if (table.name.empty()) return {};
    std::vector<TDSTable*> found =
        structure.TablesByName(JoinedName(table.name, table.name.size()));
    if (found.empty() && table.name.size() > 1) found = structure.TablesByName(table.name.back());
    return found;
}

bool TImportNames::TakeFree(size_t table, TDSTable* candidate) {
    if (!candidate || tables[table] || !taken.try_emplace(candidate, table).second) return false;
    tables[table] = candidate;
    return true;
}

void TImportNames::ResolveTables(const std::vector<TColumnPair>& pairs) {
    std::vector<std::vector<TDSTable*>> candidates;
    for (const TImportTable& table : written)
        candidates.push_back(Candidates(table));
    // the alias of one of them
    for (size_t i = 0; i < written.size(); ++i)
        for (TDSTable* candidate : candidates[i])
            if (SameText(candidate->TableAlias(),
                         written[i].alias.empty() ? written[i].name.back() : written[i].alias))
                TakeFree(i, candidate);
    // the only one
    for (size_t i = 0; i < written.size(); ++i)
        if (candidates[i].size() == 1) TakeFree(i, candidates[i].front());
    // the one that is joined as written; else the first
    for (size_t i = 0; i < written.size(); ++i) {
        const bool anyFree = std::any_of(candidates[i].begin(), candidates[i].end(),
                                         [&](TDSTable* each) { return !taken.contains(each); });
        if (!tables[i] && anyFree) TakeFree(i, JoinedCandidate(i, pairs));
        for (TDSTable* candidate : candidates[i])
            if (!tables[i]) TakeFree(i, candidate);
        if (tables[i]) known.push_back(i);
    }
}

std::optional<size_t> TImportNames::PlaceOf(const TDSTable& table) const {
    const auto found = taken.find(&table);
    return found == taken.end() ? std::nullopt : std::optional(found->second);
}

/// A free table of that name with a link that a comparison with a known table says.
TDSTable* TImportNames::JoinedCandidate(size_t table, const std::vector<TColumnPair>& pairs) const {
    const auto saysPair = [](const TDSLink& link, const TDSTable* first, const std::string& name1,
                             const std::string& name2) {
        const bool isFirst = link.Table1() == first;
        const TStrings& own = isFirst ? link.Fields1() : link.Fields2();
        const TStrings& other = isFirst ? link.Fields2() : link.Fields1();
        for (size_t i = 0; i < own.size() && i < other.size(); ++i)
            if (SameText(own[i], name1) && SameText(other[i], name2)) return true;
        return false;
    };
    for (const TColumnPair& pair : pairs) {
        const auto left = FindQualifier(LowerCase(pair.left.qualifier));
        const auto right = FindQualifier(LowerCase(pair.right.qualifier));
        if (!left || !right || (*left != table && *right != table)) continue;
        const bool isLeft = *left == table;
        const TDSTable* const other = tables[isLeft ? *right : *left];
        if (!other) continue;
        for (TDSTable* candidate : Candidates(written[table])) {
            const TDSLink* const link =
                taken.contains(candidate) ? nullptr : candidate->LinkByTable(other);
            if (link && saysPair(*link, candidate, isLeft ? pair.left.name : pair.right.name,
                                 isLeft ? pair.right.name : pair.left.name))
                return candidate;
        }
    }
    return nullptr;
}

std::optional<size_t> TImportNames::FindQualifier(const std::string& qualifier) const {
    const auto found = qualifiers.find(qualifier);
    if (found == qualifiers.end()) return std::nullopt;
    return found->second;
}

std::optional<size_t> TImportNames::FindTable(const TNamedColumn& column) {
    return column.qualifier.empty() ? FindUnqualified(LowerCase(column.name)).table
                                    : FindQualifier(LowerCase(column.qualifier));
}

/// The one table that has a field of that name; of those joined by columns of that name the one
/// whose rows are all there.
const TImportNames::TUnqualified& TImportNames::FindUnqualified(const std::string& column) {
    const auto [place, isNew] = unqualified.try_emplace(column);
    TUnqualified& found = place->second;
    if (!isNew) return found;
    for (const size_t i : known) {
        if (!structure.FieldByName(false, tables[i]->TableAlias() + "." + column)) continue;
        const bool isMerged = StrInList(column, written[i].columns);
        if (found.table && (!isMerged || written[i].join == TImportJoin::Full)) {
            found = {std::nullopt, true};
            break;
        }
        if (!found.table || written[i].join == TImportJoin::Right) found.table = i;
    }
    return found;
}

// --- columns

bool TImportNames::IsName() const {
    if (tokens.GetTokType() == TKTokenType::Name) return true;
    return tokens.GetTokType() == TKTokenType::Word && tokens.GetTokCode() == 0;
}

std::string TImportNames::Name() const {
    const std::string_view text = tokens.GetRealStr();
    if (tokens.GetTokType() != TKTokenType::Name) return std::string(text);
    const char doubled[] = {text.back(), text.back()};
    return ReplaceStr(text.substr(1, text.size() - 2), {doubled, 2}, {doubled, 1});
}

/// The names joined by points at the present token; stands behind them afterwards.
TImportNames::TChain TImportNames::ReadChain() {
    TChain chain;
    chain.range.from = tokens.GetBookmark();
    while (IsName() || (!chain.names.empty() && tokens.GetTokType() == TKTokenType::Word)) {
        chain.names.push_back(Name());
        tokens.NextToken();
        chain.range.to = tokens.GetBookmark();
        if (!Is(".")) return chain;
        tokens.NextToken();
    }
    chain.range.to = tokens.GetBookmark(); // ends with a point: "t.*"
    chain.names.emplace_back();
    return chain;
}

std::optional<TNamedColumn> TImportNames::ColumnAt(TTokenRange range) {
    tokens.GotoBookmark(range.from);
    while (range.from + 2 < range.to && Is("(") && parser.CloseOf(range.from) == range.to - 1) {
        tokens.GotoBookmark(++range.from);
        --range.to;
    }
    if (range.IsEmpty() || !IsName()) return std::nullopt;
    const TChain chain = ReadChain();
    if (chain.names.back().empty()) return std::nullopt;
    TNamedColumn column;
    column.name = chain.names.back();
    column.qualifier = JoinedName(chain.names, chain.names.size() - 1);
    if (tokens.GetBookmark() + 3 == range.to && Is("(")) {
        tokens.NextToken();
        column.mayMiss = Is("+");
        tokens.GotoBookmark(range.to);
        if (!column.mayMiss) return std::nullopt;
    }
    return tokens.GetBookmark() == range.to ? std::optional(column) : std::nullopt;
}

std::string TImportNames::ColumnText(const TDSTable& table, const std::string& column) const {
    const std::string name = table.TableAlias() + "." + column;
    const TDSField* const field = structure.FieldByName(false, name);
    return field ? field->GetSQLExpr() : name;
}

std::string TImportNames::ChainText(const TChain& chain, const TAliases& inner, bool inSubSelect) {
    const std::string_view asWritten = parser.Written(chain.range);
    const std::string& name = chain.names.back();
    const std::string qualifier = LowerCase(JoinedName(chain.names, chain.names.size() - 1));
    if (inSubSelect && (qualifier.empty() || inner.contains(qualifier)))
        return std::string(asWritten);
    const bool isAlone = qualifier.empty();
    const std::optional<size_t> table =
        isAlone ? FindUnqualified(LowerCase(name)).table : FindQualifier(qualifier);
    if (isAlone && FindUnqualified(LowerCase(name)).isOfSeveral) obstacle = reasons::NameOfSeveral;
    const TDSTable* const own = table ? tables[*table] : nullptr;
    if (!own) {
        unknown = unknown || !qualifier.empty();
        return std::string(asWritten);
    }
    if (inSubSelect && inner.contains(LowerCase(own->TableAlias()))) obstacle = reasons::HiddenName;
    if (const TDSField* field = structure.FieldByName(false, own->TableAlias() + "." + name))
        return field->GetSQLExpr();
    plainColumn = true;
    std::string text = own->TableAlias() + ".";
    if (!name.empty()) // as it is written, with its quotes
        text += parser.Written({chain.range.to - 1, chain.range.to});
    return text;
}

/// The blanks between a token and the one before it; a comment is one blank.
std::string_view TImportNames::GapBefore(size_t token) const {
    const size_t length = tokens.ExtractPiece(token - 1, token, false).size();
    const std::string_view gap = tokens.ExtractPiece(token - 1, token, true).substr(length);
    return HasComment(gap) ? " " : gap;
}

/// True for a name that is no column, to be asked behind it: of a function, of the type of a
/// literal, of a parameter, of a collation, of a part of a date.
bool TImportNames::IsOtherName(const TChain& chain) const {
    if (chain.names.size() == 1 && tokens.GetTokType() == TKTokenType::Literal) return true;
    const size_t here = tokens.GetBookmark(), from = chain.range.from;
    if (Is("(") && !tokens.ExtractPiece(here, here + 2, false).ends_with('+')) return true;
    if (from == 0) return false;
    tokens.GotoBookmark(from - 1);
    const std::string_view before = tokens.GetRealStr();
    const bool isBehindValue = tokens.GetTokType() == TKTokenType::Literal;
    bool isOther = isBehindValue || before == ":" || before == "@" || SameText(before, "collate");
    if (before == "(" && from > 1) {
        tokens.GotoBookmark(from - 2);
        isOther = SameText(tokens.GetRealStr(), "extract");
    }
    tokens.GotoBookmark(here);
    return isOther;
}

std::string TImportNames::Rewrite(TTokenRange range) {
    struct TSubSelect {
        size_t close;
        TAliases aliases;
    };
    static const TAliases none;
    std::vector<TSubSelect> subSelects;
    std::vector<size_t> brackets; // where they close
    size_t typeEnd = 0;           // the names up to it are those of a type: cast(a as b)
    std::string text;
    tokens.GotoBookmark(range.from);
    while (tokens.GetBookmark() < range.to) {
        const size_t at = tokens.GetBookmark();
        if (at > range.from) text += GapBefore(at);
        if (!subSelects.empty() && subSelects.back().close == at) subSelects.pop_back();
        if (!brackets.empty() && brackets.back() == at) brackets.pop_back();
        if (IsName()) {
            const TChain chain = ReadChain();
            const bool isColumn = at >= typeEnd && !IsOtherName(chain);
            const TAliases& inner = subSelects.empty() ? none : subSelects.back().aliases;
            text += isColumn ? ChainText(chain, inner, !subSelects.empty())
                             : std::string(parser.Written(chain.range));
            continue;
        }
        text += tokens.GetRealStr();
        const bool isOpen = Is("(");
        const bool isInSubSelect =
            !subSelects.empty() && !brackets.empty() && subSelects.back().close == brackets.back();
        if (isOpen) brackets.push_back(parser.CloseOf(at));
        if (!brackets.empty() && !isInSubSelect && SameText(tokens.GetRealStr(), "as"))
            typeEnd = brackets.back();
        tokens.NextToken();
        if (!isOpen || !SameText(tokens.GetRealStr(), "select")) continue;
        subSelects.push_back(
            {parser.CloseOf(at), subSelects.empty() ? none : subSelects.back().aliases});
        AddAliases(at + 1, subSelects.back().close, subSelects.back().aliases);
        tokens.GotoBookmark(at + 1);
    }
    return text;
}

/// The names by which the tables of the sub-select between the bookmarks are known.
void TImportNames::AddAliases(size_t from, size_t to, TAliases& aliases) {
    bool inFrom = false, expectsTable = false;
    for (tokens.GotoBookmark(from); tokens.GetBookmark() < to; tokens.NextToken()) {
        if (Is("(") && !expectsTable) {
            tokens.GotoBookmark(parser.CloseOf(tokens.GetBookmark()));
        } else if (tokens.GetTokType() == TKTokenType::Keyword) {
            inFrom = SameText(tokens.GetRealStr(), "from") || SameText(tokens.GetRealStr(), "join");
            expectsTable = inFrom;
        } else if (inFrom && Is(",")) {
            expectsTable = true;
        } else if (expectsTable && IsName()) {
            const TChain chain = ReadChain();
            expectsTable = false;
            if (SameText(tokens.GetRealStr(), "as")) tokens.NextToken();
            const std::string_view behind = tokens.GetRealStr();
            const bool hasAlias = IsName() && !SameText(behind, "using") &&
                                  !SameText(behind, "natural") && !SameText(behind, "cross");
            aliases.insert(LowerCase(hasAlias ? Name() : chain.names.back()));
            if (chain.names.size() > 1) // a schema is no table around
                aliases.insert(LowerCase(JoinedName(chain.names, chain.names.size() - 1)));
            tokens.GotoBookmark(tokens.GetBookmark() - 1);
        }
        if (tokens.EOS()) return;
    }
}

} // namespace tern7
