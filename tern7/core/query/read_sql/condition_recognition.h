#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tern7/core/parser/condition_tree.h>
#include <tern7/core/query/read_sql/sql_template_match.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

class TKQuery;

/// What a condition of a statement says in terms of the structure.
struct TRecognisedCondition {
    TDSField* field = nullptr;  ///< none when the structure has none of that expression
    TDSOperator* op = nullptr;  ///< none when no template fits
    std::string values[2];      ///< as a row stores them
    std::string params[2];      ///< names of those that are parameters
    std::string_view subSelect; ///< of a sub-query operator

    bool IsComplete() const { return field && op; }
};

/// Recognises conditions by the fields' SQL expressions and the operators' templates. Among
/// templates that fit, the one that sorts highest is taken, where "@" sorts below everything else,
/// so that "contains" comes before "starts with". Both are looked up by hash; a condition is tried
/// against the templates of its operator word only. A value that may not stand in a statement, or
/// that the row would not give back, is not recognised.
class TConditionRecognition {
public:
    /// Complete: a value keeps its meaning or is not recognised at all, and "not" before a
    /// comparison belongs to an operator only where the template says so. Boolean columns are also
    /// compared with bare 1, 0, true and false.
    TConditionRecognition(const TKQuery& owner, bool completeReading);

    /// The field whose SQL expression is the condition's left-hand text is looked up.
    TRecognisedCondition Recognise(const TSQLCondition& condition) const;

private:
    struct TPattern {
        TSQLTemplateMatch match;
        TDSOperator* op;
    };
    using TPatterns = std::vector<TPattern>;
    struct TTry;

    bool LosesQuotes(const TTry& attempt) const;
    TDSOperator* OperatorBySQLCond(TTry& attempt) const;
    TDSOperator* FirstFitting(TTry& attempt, std::string_view word, bool negated) const;
    TDSOperator* LikeOperator(TTry& attempt) const;
    bool TakeValues(TTry& attempt, TDSOperator& op) const;
    bool TakeValue(TTry& attempt, const TDSOperator& op, int n) const;
    bool TakeList(const TSQLCapture& capture, const TDSOperator& op, const TDSField& field,
                  bool booleans, std::string& value) const;
    bool TakeScalar(const TSQLCapture& capture, const TDSOperator& op, const TDSField& field, int n,
                    std::string& value) const;
    bool ComparesAsText(const TDSField& field) const;
    bool TakeDate(TFieldType type, std::string& value) const;

    const TKQuery& query;
    const TKCustomDBStructure& structure;
    const bool complete;
    std::unordered_map<std::string, TPatterns> patterns; // by operator word
};

} // namespace tern7
