#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tern7 {

class TDSTable;
class TKCustomDBStructure;

/// The text without brackets that enclose all of it, and without comments around.
std::string_view WithoutOuterBrackets(std::string_view sql);

/// The tokens put together; a blank stands only where two words would become one, or two signs a
/// comment.
std::string JoinedTokens(std::string_view sql);

/// The operator of "b op a" that says the same as "a op b"; empty when there is none.
std::string_view MirroredOperator(std::string_view op);

/// The tables whose alias stands before a point in the text, outside literals and sub-selects, in
/// order of appearance.
std::vector<TDSTable*> TablesOfText(const TKCustomDBStructure& structure, std::string_view sql);

} // namespace tern7
