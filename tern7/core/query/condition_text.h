#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/line_buffer.h>
#include <tern7/core/query/bound_value.h>
#include <tern7/core/query/filter_row.h>

namespace tern7 {

class TDSTable;
class TKCustomDBStructure;

/// Writes conditions of one query as text. The template of an operator with everything but the
/// values put in is kept for each field, since conditions over the same few fields come in
/// thousands.
class TConditionWriter {
public:
    explicit TConditionWriter(const TKQuery& owner) : query(owner) {}

    /// To be called before a run over conditions: drops what a changed structure made wrong.
    void Begin(const TKCustomDBStructure& structure);
    /// Drops what was kept: the structure is another one.
    void Forget() { revision = 0; }
    /// The name that stands for "@m"; empty without a main table.
    std::string_view MainTableName() const;
    /// Another one drops the forms.
    void SetMainTable(const TDSTable* table);
    bool HasForms() const { return !forms.empty(); }

    /// Appends the text of a condition that is finished. EKWrongValueError for a value that may not
    /// stand without quotes.
    void Append(const TFilterCond& condition, std::string& out);

    /// A template without its values: texts[0] value texts[1] value texts[2].
    struct TForm {
        const TDSField* field = nullptr;
        const TDSOperator* op = nullptr;
        const TDSTable* table = nullptr; ///< that of a data field
        size_t length = 0;               ///< of the texts together
        bool simple = false; ///< one pass gives what the replacements one after the other give
        bool keepsQuotes = false;
        int valueCount = 0;
        bool bare[2] = {};
        uint8_t places = 0;
        uint8_t valueAt[2] = {}; ///< the value, from 0, at the first and at the second place
        std::string texts[3];
    };
    /// The form of a condition that is finished, can be written in one pass and needs no check;
    /// otherwise none. It is valid until the form of another condition is asked for.
    const TForm* SimpleForm(const TFilterCond& condition);
    /// Writes `before` and the text of a condition with such a form. False, and nothing is written,
    /// for one whose values need the replacements one after the other.
    static bool AppendSimple(const TForm& form, const TFilterCond& condition,
                             std::string_view before, TKLineWriter& out);

private:
    void DropForms();
    const TForm& FindForm(const TFilterCond& condition);
    void PutForm(size_t cell, TForm form);
    TForm MakeForm(const TDSField& field, const TDSOperator& op) const;
    static bool AppendDoubled(const TForm& form, const TFilterCond& condition,
                              std::string_view before, TKLineWriter& out);
    bool NeedsNoCheck(const TForm& form, const TFilterCond& condition) const;
    std::string SequentialText(const TFilterCond& condition) const;

    const TKQuery& query;
    const TDSTable* mainTable = nullptr;
    uint64_t revision = 0; // of the structure that the forms are made from
    std::vector<TForm> forms;
    // The forms by field and operator: position in `forms` plus one, in one of the cells from the
    // hash on. When they are all taken the first one is given away, so the memory has a limit.
    static constexpr size_t CellBits = 10, Cells = size_t{1} << CellBits, CellsTried = 4;
    std::vector<uint16_t> cells;
};

/// Where bound values go: placeholders in the present style, values in text order.
class TBoundValues {
public:
    TBoundValues(TPlaceholderStyle placeholderStyle, bool escape)
        : style(placeholderStyle), escapeWildcards(escape) {}
    /// Appends a placeholder to the text and the value to the list. EKQueryPanelError for a NUL.
    void Bind(std::string& out, TBoundValue value);
    bool EscapeWildcards() const { return escapeWildcards; }
    std::vector<TBoundValue> Take() { return std::move(values); }

private:
    TPlaceholderStyle style;
    bool escapeWildcards;
    std::vector<TBoundValue> values;
};

/// Appends the text of a condition with its constants as placeholders.
void AppendBoundCondition(TConditionWriter& textWriter, const TKQuery& query,
                          const TFilterCond& condition, TBoundValues& values, std::string& out);

/// The statement of a condition's nested query on one line: lines trimmed, joined with one blank.
std::string NestedStatement(const TFilterCond& condition);
std::string NestedBoundStatement(const TFilterCond& condition, TBoundValues& values);

/// EKWrongValueError unless value n, where it stands without quotes, is one number or word (one per
/// item of a list).
void CheckBareValue(const TFilterCond& condition, int n);

/// True for a number with sign, a hex literal, or one word; blanks around it aside.
bool IsBareToken(std::string_view text);

/// True when the text can stand in a statement that is executed: no ";", no comment, no bracket or
/// quote left open, under both readings of a backslash in a literal.
bool IsSafeFragment(std::string_view text);

} // namespace tern7
