#include <tern7/core/global/sql_options.h>

#include <array>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

constexpr std::array<std::string_view, SQLOptionCount> optionNames = {
    "soASCIIRFields", "soSelectDistinct",    "soQuoteAliases",
    "soBracketJoins", "soBracketConditions", "soSortByNames"};

} // namespace

TSQLOptions IntToSQLOptions(int bits) {
    TSQLOptions options;
    for (int i = 0; i < SQLOptionCount; ++i)
        if ((bits >> i) & 1) options.Include(static_cast<TSQLOption>(i));
    return options;
}

std::string_view SQLOptionToStr(TSQLOption option) {
    return optionNames[static_cast<size_t>(option)];
}

std::optional<TSQLOption> StrToSQLOption(std::string_view name) {
    for (size_t i = 0; i < optionNames.size(); ++i)
        if (SameText(optionNames[i], name)) return static_cast<TSQLOption>(i);
    return std::nullopt;
}

} // namespace tern7
