#include <tern7/core/parser/parser_result.h>

#include <algorithm>
#include <new>

namespace tern7 {

namespace {

template <class TMatch>
int FirstIndex(const TSQLResultFieldList& fields, TMatch matches) {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const auto& field) { return matches(*field); });
    return found == fields.end() ? -1 : static_cast<int>(found - fields.begin());
}

} // namespace

void TSQLResultField::SetSQLExpr(std::string text) {
    expression = std::move(text);
    const size_t point = expression.find('.');
    const size_t bracket = expression.find('(');
    const bool isCall =
        bracket != std::string::npos && point != std::string::npos && point >= bracket;
    fieldName = point == std::string::npos || isCall ? expression : expression.substr(point + 1);
}

int TSQLResultFieldList::IndexByAlias(std::string_view alias) const {
    return FirstIndex(*this,
                      [&](const TSQLResultField& field) { return SameText(field.Alias, alias); });
}

int TSQLResultFieldList::IndexByExpr(std::string_view expression) const {
    return FirstIndex(
        *this, [&](const TSQLResultField& field) { return SameText(field.SQLExpr(), expression); });
}

void TSQLTable::SetTableName(std::string text) {
    name = std::move(text);
    if (Alias.empty()) Alias = name;
}

TKParserResult::TKParserResult() : where(NewBracket(nullptr)) {}

TSQLBracket* TKParserResult::NewBracket(TSQLBracket* parent) {
    void* const room = memory.allocate(sizeof(TSQLBracket), alignof(TSQLBracket));
    return new (room) TSQLBracket(memory, parent);
}

TSQLCondition* TKParserResult::NewCondition(TSQLBracket* parent) {
    void* const room = memory.allocate(sizeof(TSQLCondition), alignof(TSQLCondition));
    return new (room) TSQLCondition(parent);
}

std::string_view TKParserResult::KeepText(std::string_view text) {
    if (text.empty()) return {};
    char* const copy = static_cast<char*>(memory.allocate(text.size(), 1));
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
}

TKTextPosition TKParserResult::PositionOf(std::string_view piece) const {
    if (!source || !source->Owns(piece)) return {};
    return source->PositionOf(static_cast<size_t>(piece.data() - source->Text().data()));
}

} // namespace tern7
