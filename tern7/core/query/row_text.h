#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/list_captions.h>
#include <tern7/core/query/query.h>

namespace tern7 {

/// What a piece of a row's line is.
enum class TRowLabelKind : uint8_t {
    rlText,        ///< fixed words around a bracket's word
    rlBracketWord, ///< all, any, none or not all
    rlBoolWord,    ///< and, or
    rlOpen,        ///< "(", in the and/or style
    rlField,
    rlOperator,
    rlValue,
    rlValueJoiner, ///< the operator's word between two values
    rlParameter,   ///< a value that is asked for
    rlSubQuery,
    rlKept, ///< what a condition keeps that was not recognised: SQL text, ID, operator, values
    rlClose ///< ")", in the and/or style
};

struct TRowLabel {
    TRowLabelKind kind;
    /// One line, cut; empty where something is still to be chosen or entered.
    std::string text;
    /// Says more than the text: the whole of what was cut, a parameter's caption and format, the
    /// SQL text of a condition that was not recognised. Empty when there is nothing more.
    std::string hint;
    /// 1 or 2 for values, parameters and sub-queries; otherwise 0.
    int valueNumber = 0;
    /// The bracket whose word the label shows; for rlBracketWord and rlBoolWord.
    const TFilterBracket* bracket = nullptr;
};

/// What stands in a sentence for a text that is empty.
inline constexpr std::string_view EmptyLabelText = "_____";

/// Line breaks as blanks, cut behind `limit` characters with an ellipsis.
std::string OneLine(std::string_view text, size_t limit = 200);

/// Why a row takes no part in the statement, in words; empty for TUnfinished::No.
std::string_view UnfinishedText(TUnfinished reason);

/// The texts of rows, in the language of the captions. Keeps what it found out about long lists and
/// names until the structure changes, so use one for many rows.
class TKRowTexts {
public:
    /// Captions that are missing take the default texts.
    explicit TKRowTexts(const TStrings& titles = {});

    /// A field's text begins with the name of its group.
    bool ShowGroupName = false;
    /// In sentences texts of the database and of users stand between U+2068 and U+2069: beside
    /// words that are read from the right they keep their own order.
    bool IsolateTexts = false;
    /// What is shown for 1 and 0 of Boolean operands without a list; empty: the value.
    std::string TrueText;
    std::string FalseText;

    /// The labels of a row in display order; those of the root are the header line. In the style
    /// psAndOr brackets have none: their marks stand at their first and last conditions.
    std::vector<TRowLabel> Labels(const TFilterRow& row, TQPStyle style) const;
    /// The row as one reads it aloud, without indentation; a parameter is followed by its caption.
    std::string Sentence(const TFilterRow& row, TQPStyle style) const;

    /// The display name; with the table's where several fields share it.
    std::string FieldText(const TDSField& field) const;
    /// What is shown for value n, whole: the parameter text, the sub-query text, what the
    /// application said, list captions joined by ", ", or the value.
    std::string ValueText(const TFilterCond& condition, int n) const;
    /// "all", "any", "none", "not all".
    const std::string& BracketWord(TFilterLinkType type) const {
        return linkWords[static_cast<size_t>(type)];
    }
    /// "and", "or".
    const std::string& BoolWord(TFilterLinkType type) const {
        return JoinsByAnd(type) ? andWord : orWord;
    }

private:
    void AddBracketLine(std::vector<TRowLabel>& labels, const TFilterBracket& bracket) const;
    void AddOpening(std::vector<TRowLabel>& labels, const TFilterCond& condition) const;
    void AddClosing(std::vector<TRowLabel>& labels, const TFilterCond& condition) const;
    void AddCondition(std::vector<TRowLabel>& labels, const TFilterCond& condition) const;
    TRowLabel ValueLabel(const TFilterCond& condition, int n) const;
    std::string Isolate(const std::string& text) const;
    std::string SentencePiece(const TRowLabel& label) const;
    std::string ListText(const TFilterCond& condition, int n) const;
    void Refresh(const TKCustomDBStructure& structure) const;

    std::string headerLine, bracketLine, andWord, orWord, parameterText, subQueryText;
    std::string linkWords[4];
    mutable const TKCustomDBStructure* known = nullptr; // what follows was found out about it
    mutable uint64_t knownRevision = 0;
    mutable TListCaptions listCaptions;
    mutable std::unordered_map<const TDSField*, std::string> fieldTexts;
};

/// The whole query as sentences, indented by two blanks a level, in the language of the captions:
/// the columns with their sorting, then the filter, nested queries below their condition. Rows that
/// are off or unfinished say so.
TStrings DescribeQuery(const TKQuery& query, const TStrings& titles);

} // namespace tern7
