#pragma once

#include <memory>
#include <string_view>

#include <tern7/core/parser/sql_parser.h>
#include <tern7/core/query/read_sql/condition_recognition.h>
#include <tern7/core/query/read_sql/sql_report.h>

namespace tern7 {

class TFilterBracket;
class TFilterCond;

/// What nested statements may cost together: each is read again at every level around it, and kept
/// in a text that every level encodes once more. What is beyond it stays text.
class TSubSelectBudget {
public:
    explicit TSubSelectBudget(size_t statementSize)
        : left(16 * statementSize + (size_t{16} << 20)) {}
    /// To be asked before a statement is read.
    bool TakeStatement(size_t size) { return Take(8 * size); }
    /// To be asked before its query text is kept.
    bool TakeQueryText(size_t size) { return Take(size); }

private:
    bool Take(size_t size) {
        if (size > left) return false;
        left -= size;
        return true;
    }
    size_t left;
};

/// Reads a statement into the rows and columns of a query that were cleared.
class TSQLReader {
public:
    TSQLReader(TKQuery& owner, TSubSelectBudget& subSelectBudget)
        : query(owner), budget(subSelectBudget), recognition(owner, false) {}

    /// ESQLParserError; the query then holds nothing.
    TSQLReport Read(std::string_view sql);
    /// True when values, those of sub-selects included, are parameters.
    bool HasParams() const { return hasParams; }

private:
    void AddResultFields();
    void ProcessSQLBracket(TFilterBracket& bracket, const TSQLBracket& sqlBracket);
    void AddCondition(TFilterBracket& bracket, const TSQLCondition& sqlCondition);
    bool ProcessSubQuery(std::string_view sql, TFilterCond& row);
    void KeepText(TFilterCond& row, const TRecognisedCondition& found,
                  const TSQLCondition& sqlCondition);

    TKQuery& query;
    TSubSelectBudget& budget;
    TConditionRecognition recognition;
    TKSQLParser parser;
    std::shared_ptr<const TKSourceText> source;
    TSQLReport report;
    bool hasParams = false;
};

/// Gives a new row what was recognised. False when the row would not give the text back: a value
/// that looks like a placeholder is replaced by another.
bool FillCondition(TFilterCond& row, const TRecognisedCondition& found);

} // namespace tern7
