#pragma once

#include <initializer_list>

#include <tern7/core/global/sql_options.h>

namespace tern7 {

/// A set of syntaxes.
class TSyntaxes {
public:
    constexpr TSyntaxes(std::initializer_list<TSQLSyntax> syntaxes) {
        for (TSQLSyntax syntax : syntaxes)
            bits |= 1u << static_cast<unsigned>(syntax);
    }
    static constexpr TSyntaxes All() {
        return {TSQLSyntax::ssSQL1, TSQLSyntax::ssSQL2, TSQLSyntax::ssOracle};
    }
    bool Contains(TSQLSyntax syntax) const { return (bits >> static_cast<unsigned>(syntax)) & 1u; }
    bool IsEmpty() const { return bits == 0; }
    TSyntaxes operator&(TSyntaxes other) const {
        other.bits &= bits;
        return other;
    }
    /// The wanted one if it is here, else the first.
    TSQLSyntax Choose(TSQLSyntax wanted) const {
        if (Contains(wanted)) return wanted;
        if (Contains(TSQLSyntax::ssSQL1)) return TSQLSyntax::ssSQL1;
        return Contains(TSQLSyntax::ssSQL2) ? TSQLSyntax::ssSQL2 : TSQLSyntax::ssOracle;
    }

private:
    unsigned bits = 0;
};

} // namespace tern7
