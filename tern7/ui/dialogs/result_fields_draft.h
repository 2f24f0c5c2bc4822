#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QString>

#include <tern7/core/query/formula_text.h>
#include <tern7/core/query/query.h>

namespace tern7 {

/// The columns of a query while they are edited: a copy, which can be put back into the list that
/// it was taken from. An expression that can not be read is kept as it was typed, with what is
/// wrong and where; the column has its former formula then.
///
/// Positions are 0-based; a wrong one is our own mistake (std::out_of_range).
class TResultFieldsDraft {
public:
    /// The list must have a structure.
    explicit TResultFieldsDraft(const TRFieldList& source);

    /// What can not be read.
    struct TProblem {
        std::string message;
        size_t position; ///< offset in bytes in the text
        QString hint =
            {}; ///< what may be meant, for the screen; empty when there is nothing to say
        QString Text() const;
    };

    /// None when there is no such field, or the structure is gone.
    TDSField* Field(int id) const {
        const TKCustomDBStructure* structure = query.DbStruct();
        return structure ? structure->FieldByID(id) : nullptr;
    }
    int Count() const { return static_cast<int>(rows.size()); }
    const std::string& Caption(int i) const { return Column(i).Caption(); }
    /// The user form, or what was typed instead.
    std::string Expression(int i) const;
    const std::optional<TProblem>& Problem(int i) const { return Row(i).problem; }
    /// The first column whose expression can not be read or is empty; -1 when all is well.
    int FirstUnfinished() const;

    /// Words, but no field among them: names were perhaps typed without braces.
    bool LacksFields(int i) const;

    int AddField(int index, TDSField& field, TAggregate aggregate);
    /// A column without an expression.
    int AddEmpty(int index, const std::string& caption);
    void SetCaption(int i, const std::string& caption);
    /// False, and a problem, when the text can not be read.
    bool SetExpression(int i, const std::string& text);
    /// Joins a field to the expression; false when there is a problem with it already.
    bool Join(int i, char operation, TDSField& field);
    TAggregate Aggregate(int i) const;
    /// False where a function already stands inside the expression.
    bool CanAggregate(int i) const;
    bool SetAggregate(int i, TAggregate aggregate);
    void Delete(int i);
    void Move(int from, int to);

    bool JustSorting() const { return list.JustSorting(); }
    void SetJustSorting(bool on) { list.SetJustSorting(on); }
    TSortingType Sorting(int i) const { return Column(i).Sorting(); }
    /// A column that was not sorted comes last in the sort order.
    void SetSorting(int i, TSortingType sorting);
    /// The sorted columns in the order of sorting.
    std::vector<int> Sorted() const;
    /// Moves the n-th sorted column to another rank.
    void MoveSorted(int from, int to);

    /// Puts what was changed into the list that the draft was taken from: columns that were there
    /// stay the same objects, and what was not changed in them stays untouched. Of columns that
    /// others added meanwhile none is left.
    void Apply(TRFieldList& target) const;

private:
    struct TRow {
        TResultField* column;
        const TResultField* origin; // in the source; none for a new column
        bool changed = false;
        std::string typed; // while there is a problem
        std::optional<TProblem> problem;
    };
    const TRow& Row(int i) const { return rows.at(static_cast<size_t>(i)); }
    TRow& Row(int i) { return rows.at(static_cast<size_t>(i)); }
    TResultField& Column(int i) const { return *Row(i).column; }
    /// The name of a field in braces.
    std::string Operand(TDSField& field);
    /// What to say about a field in braces that was not found.
    QString HintAt(const std::string& text, size_t position);
    int Insert(int index, TResultField* column);
    void Rank(const std::vector<int>& order);

    TKQuery query;
    TRFieldList& list;
    std::vector<TRow> rows;
};

} // namespace tern7
