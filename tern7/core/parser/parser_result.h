#pragma once

#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/corekit/source_text.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/parser/condition_tree.h>

namespace tern7 {

/// A column of the select list.
class TSQLResultField {
public:
    std::string Alias;
    int SortOrder = 0; ///< 0 not sorted, 1 ascending, 2 descending
    int SortIndex = 0; ///< place in ORDER BY from 1, 0 when not sorted
    /// The expression as written, blanks and comments included: a view of the result's text.
    std::string_view Source;

    const std::string& SQLExpr() const { return expression; }
    /// Sets FieldName too.
    void SetSQLExpr(std::string text);
    /// What stands behind the first point; the whole text when it has none, or has a bracket before
    /// it.
    const std::string& FieldName() const { return fieldName; }

private:
    std::string expression, fieldName;
};

class TSQLResultFieldList : public TKObjectList<TSQLResultField> {
public:
    bool AllFields = false; ///< the select list is "*"

    /// The first field of that alias, ignoring case; -1 when there is none. Linear.
    int IndexByAlias(std::string_view alias) const;
    /// The first field of that expression, ignoring case; -1 when there is none. Linear.
    int IndexByExpr(std::string_view expression) const;
};

class TSQLTable {
public:
    std::string Alias;

    const std::string& TableName() const { return name; }
    /// Gives the alias too while that is empty.
    void SetTableName(std::string text);

private:
    std::string name;
};

using TSQLTableList = TKObjectList<TSQLTable>;

/// Text of the statement that the parser took no notice of.
struct TSQLRest {
    std::string_view text; ///< empty when all was read
    TKTextPosition position;
};

/// What a SELECT statement says. Owns the nodes of the condition tree and every text that they
/// view.
class TKParserResult {
public:
    TKParserResult();
    TKParserResult(const TKParserResult&) = delete;
    TKParserResult& operator=(const TKParserResult&) = delete;

    bool Distinct = false;
    bool AllFields = false;
    TSQLResultFieldList ResultFields;
    TSQLTableList Tables;
    TSQLRest Rest;

    /// The root of the condition tree; without nodes when there is no WHERE.
    TSQLBracket& Where() { return *where; }
    const TSQLBracket& Where() const { return *where; }
    void SetWhere(TSQLBracket& root) { where = &root; }

    /// Nodes appended to the parent; without one they stand alone.
    TSQLBracket* NewBracket(TSQLBracket* parent);
    TSQLCondition* NewCondition(TSQLBracket* parent);
    /// A copy of the text that lives as long as the result.
    std::string_view KeepText(std::string_view text);
    /// Where a view of the statement stands in it; 1, 1 for any other text. Linear.
    TKTextPosition PositionOf(std::string_view piece) const;

    /// The statement that views point into.
    void SetSource(std::shared_ptr<const TKSourceText> text) { source = std::move(text); }
    const std::shared_ptr<const TKSourceText>& Source() const { return source; }

private:
    std::pmr::monotonic_buffer_resource memory;
    TSQLBracket* where;
    std::shared_ptr<const TKSourceText> source;
};

} // namespace tern7
