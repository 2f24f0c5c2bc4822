// FROM as ImportSQL reads it.

#include <tern7/core/global/messages.h>
#include <tern7/core/query/read_sql/import_parser.h>

namespace tern7 {

void TImportParser::ProcessFrom() {
    Require(wFrom);
    do
        ReadTables(TImportJoin::Comma);
    while (Take(wComma));
    SkipHaving();
}

/// Tables joined to each other, the whole or its beginning in brackets.
void TImportParser::ReadTables(TImportJoin join) {
    const size_t open = At();
    if (Take(wOpen)) {
        if (Is(wSelect)) {
            Scanner().GotoBookmark(open);
            ReadTable(join);
        } else {
            statement.bracketJoins = true;
            ReadTables(join);
            if (!Take(wClose)) Error(messages::LostBracket);
        }
    } else {
        ReadTable(join);
    }
    while (AtJoin())
        ReadJoined();
}

bool TImportParser::AtJoin() {
    if (IsJoinWord()) return true;
    return IsText("cross") || IsText("natural");
}

TImportJoin TImportParser::TakeJoinWords(bool& natural) {
    TImportJoin join = TImportJoin::Inner;
    statement.anyJoinWord = true;
    if (IsText("natural")) {
        natural = true;
        Step();
    }
    if (IsText("cross")) {
        join = TImportJoin::Comma;
        Step();
    } else if (Is(wLeft) || Is(wRight) || Is(wFull)) {
        join = Is(wLeft) ? TImportJoin::Left : Is(wRight) ? TImportJoin::Right : TImportJoin::Full;
        Step();
        Take(wOuter);
    } else {
        Take(wInner);
    }
    Require(wJoin);
    return join;
}

void TImportParser::ReadJoined() {
    bool natural = false;
    const TImportJoin join = TakeJoinWords(natural);
    const size_t first = statement.tables.size();
    const bool bracketsBefore = statement.bracketJoins;
    const size_t open = At();
    const bool isBracket = Take(wOpen) && !Is(wSelect);
    if (isBracket) {
        ReadTables(join);
        if (!Take(wClose)) Error(messages::LostBracket);
        statement.nestedJoins = statement.nestedJoins || statement.tables.size() > first + 1;
    } else {
        Scanner().GotoBookmark(open);
        ReadTable(join);
    }
    statement.bracketJoins = bracketsBefore;
    statement.tables[first].natural = natural;
    ReadJoinCondition(first);
}

void TImportParser::ReadJoinCondition(size_t table) {
    if (Take(wOn)) {
        const bool outer = inOn;
        inOn = true;
        TImportNode* const condition = ReadOr();
        inOn = outer;
        statement.tables[table].on = condition;
        return;
    }
    if (!IsText("using")) {
        const TImportTable& joined = statement.tables[table];
        if (!joined.natural && joined.join != TImportJoin::Comma) Error(messages::WrongSQL);
        return;
    }
    Step();
    Require(wOpen);
    do
        statement.tables[table].columns.push_back(ProcessIdentifier());
    while (Take(wComma));
    if (!Take(wClose)) Error(messages::LostBracket);
}

void TImportParser::ReadTable(TImportJoin join) {
    TImportTable table;
    table.join = join;
    const size_t start = At();
    if (IsText("lateral")) Step();
    if (Is(wOpen)) { // a derived table
        Scanner().GotoBookmark(CloseOf(At()));
        if (!Take(wClose)) Error(messages::LostBracket);
    } else {
        ReadTableName(table);
    }
    const auto ends = [this] {
        return Is(wComma) || Is(wClose) || Is(wOn) || IsText("using") || AtJoin() || AtClauseEnd();
    };
    if (Take(wAs) || !ends()) table.alias = ProcessIdentifier();
    table.all = {start, At()};
    while (!ends()) {
        if (Is(wOpen)) Scanner().GotoBookmark(CloseOf(At()));
        if (Scanner().EOS()) Error(messages::LostBracket);
        Step();
    }
    table.hints = {table.all.to, At()};
    statement.tables.push_back(std::move(table));
}

void TImportParser::ReadTableName(TImportTable& table) {
    const TKTokenType type = Scanner().GetTokType();
    if (Scanner().EOS() || (type != TKTokenType::Word && type != TKTokenType::Name))
        Error(messages::WrongSQL);
    table.name.push_back(ProcessIdentifier());
    while (Take(wPoint))
        table.name.push_back(ProcessIdentifier());
    if (!Is(wOpen)) return;
    table.name.clear(); // a function
    Scanner().GotoBookmark(CloseOf(At()));
    if (!Take(wClose)) Error(messages::LostBracket);
}

} // namespace tern7
