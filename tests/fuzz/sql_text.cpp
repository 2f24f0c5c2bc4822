// Any bytes are read as a SELECT statement: an error with its line, or a result whose views lie in
// the text, and the same again for the same text.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <tern7/core/parser/sql_parser.h>

using namespace tern7;

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

size_t CountNodes(const TSQLBracket& bracket, const TKSourceText& source) {
    size_t count = 0;
    for (const TSQLConditionNode* node : bracket.Nodes()) {
        Require(node->Parent() == &bracket);
        ++count;
        if (const TSQLBracket* inner = node->AsBracket()) {
            Require(inner->Nodes().GetCount() > 1);
            count += CountNodes(*inner, source);
        } else {
            Require(source.Owns(node->AsCondition()->Source()));
            Require(!node->AsCondition()->GetSQLExpr().empty());
        }
    }
    return count;
}

size_t Parsed(std::string_view text) {
    TKSQLParser parser;
    parser.SetText(std::string(text));
    try {
        parser.Parse();
    } catch (const ESQLParserError& error) {
        Require(std::string_view(error.what()).find("\r\nLine:") != std::string_view::npos);
        return 0;
    }
    const TKParserResult& result = parser.Result();
    Require(result.Rest.text.empty() || result.Source()->Owns(result.Rest.text));
    return 1 + CountNodes(result.Where(), *result.Source());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Require(Parsed(text) == Parsed(text));
    return 0;
}
