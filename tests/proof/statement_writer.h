#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "cells.h"

#include <tern7/core/structure/structure.h>

namespace tern7::proof {

/// The statements that make the small database the writer writes about: columns of equal names,
/// NULLs, rows without partner, texts that differ in case and blanks only.
std::vector<std::string> WriterDatabase();

/// A structure of it with links of one and two columns that close a ring, a copy of a table, and
/// virtual fields with literals. The kinds of its links follow the number.
void FillWriterStructure(TKCustomDBStructure& structure, uint32_t number);

/// The parameters of the statements; they are named like columns, too.
const std::map<std::string, TCell>& WriterParameters();

/// Writes SELECT statements by hand, so to speak: aliases that hide tables, names with or without
/// quotes and qualifiers, joins in ON, USING and WHERE, outer ones too, literals of the wrong type,
/// any blanks and case. Not all mean something to a structure; the same seed writes the same.
class TStatementWriter {
public:
    TStatementWriter(const TKCustomDBStructure& over, uint32_t seed)
        : structure(over), random(seed) {}
    std::string Statement();

private:
    struct TWrittenTable {
        size_t table;
        std::string name; // its alias, else its name
    };
    using TScope = std::vector<TWrittenTable>;

    unsigned Below(unsigned count) { return static_cast<unsigned>(random() % count); }
    bool OneIn(unsigned count) { return Below(count) == 0; }
    template <class List>
    const auto& AnyOf(const List& list) {
        return list[Below(static_cast<unsigned>(std::size(list)))];
    }
    std::string Cased(std::string_view text);

    std::string From(TScope& scope, TStrings& where, unsigned most);
    static bool IsTaken(const TScope& scope, std::string_view name);
    std::string Table(TScope& scope, size_t table);
    std::string On(const TScope& scope, TStrings& where);
    std::string Using(const TScope& scope);
    std::string JoinWords(const TScope& scope);
    std::string Columns(const TScope& scope, std::string& tail);
    std::string Column(const TScope& scope, char type = ' ');
    std::string Named(const TScope& scope, const TWrittenTable& table, std::string_view column);
    std::string Expression(const TScope& scope, char type);
    std::string Virtual(const TScope& scope);
    std::string Literal(char type);
    std::string Operator();
    std::string Condition(const TScope& scope);
    std::string Comparison(const TScope& scope);
    std::string SubSelect(const TScope& scope);

    const TKCustomDBStructure& structure;
    std::mt19937 random;
    int nesting = 0;
    bool merged = false; // two tables by USING
};

} // namespace tern7::proof
