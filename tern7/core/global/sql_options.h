#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace tern7 {

/// How joins are written; the ordinals stand in stored queries.
enum class TSQLSyntax : uint8_t {
    ssSQL1 = 0,  ///< tables listed with commas, inner joins in WHERE, outer joins dropped
    ssSQL2 = 1,  ///< JOIN ... ON
    ssOracle = 2 ///< tables listed with commas, every join in WHERE, outer ones with (+)
};

enum class TSQLOption : uint8_t {
    soASCIIRFields = 0,
    soSelectDistinct = 1,
    soQuoteAliases = 2,
    soBracketJoins = 3,
    soBracketConditions = 4,
    soSortByNames = 5
};
inline constexpr int SQLOptionCount = 6;

class TSQLOptions {
public:
    constexpr TSQLOptions() = default;
    constexpr TSQLOptions(std::initializer_list<TSQLOption> options) {
        for (TSQLOption option : options)
            Include(option);
    }
    constexpr bool Contains(TSQLOption option) const {
        return (bits >> static_cast<int>(option)) & 1;
    }
    constexpr void Include(TSQLOption option) {
        bits = static_cast<uint8_t>(bits | (1 << static_cast<int>(option)));
    }
    constexpr void Exclude(TSQLOption option) {
        bits = static_cast<uint8_t>(bits & ~(1 << static_cast<int>(option)));
    }
    constexpr bool operator==(const TSQLOptions&) const = default;
    constexpr uint8_t Bits() const { return bits; }

private:
    uint8_t bits = 0;
};

/// What a new query starts with.
inline constexpr TSQLOptions DefaultSQLOptions{TSQLOption::soASCIIRFields,
                                               TSQLOption::soSelectDistinct};

/// One bit per option in the order of the ordinals; unknown bits are ignored.
constexpr int SQLOptionsToInt(TSQLOptions options) {
    return options.Bits();
}
TSQLOptions IntToSQLOptions(int bits);

/// The enumeration names, and back without regard to case.
std::string_view SQLOptionToStr(TSQLOption option);
std::optional<TSQLOption> StrToSQLOption(std::string_view name);

enum class TSortingType : uint8_t { stNoSort = 0, stAscending = 1, stDescending = 2 };

enum class TKBuilderState : uint8_t { stIdle, stBuilding, stLoading, stSaving };

} // namespace tern7
