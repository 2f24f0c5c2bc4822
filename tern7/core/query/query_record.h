#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <variant>
#include <vector>

#include <tern7/core/query/query.h>

namespace tern7 {

/// What one step changed in a query, in order; takes it back and does it again. Rows, columns and
/// options tell it of each change while a TKQueryRecording lives. Rows and columns that were
/// deleted live on in it; what a row or column held before is kept in a twin that is in no tree, so
/// that the query keeps its references right, whatever happens to the structure.
///
/// Undo and Redo alternate, and between them the query is as the record left it: whoever keeps
/// records drops them on TKQuerySteps::ForgetSteps. A record may outlive its query.
class TKQueryRecord {
public:
    explicit TKQueryRecord(TKQuery& owner) : query(owner) {}
    TKQueryRecord(const TKQueryRecord&) = delete;
    TKQueryRecord& operator=(const TKQueryRecord&) = delete;

    bool IsEmpty() const { return changes.empty(); }
    /// False when a row or column was taken out and is neither back nor in the record's keeping.
    bool IsComplete() const { return outside.empty() && !lost; }
    /// Views are told at once, the application when all is done. Linear in what was changed.
    void Undo();
    void Redo();
    /// Adds what a later step changed, which is empty afterwards.
    void Append(TKQueryRecord& later);

    /// The row that the step is about: the first changed one that is in the query, else what stands
    /// in the place of one that is not. None when there is none.
    TFilterRow* Row() const;

    // --- told by what changes
    /// Before the row's own contents change (not the rows in it).
    void RowChanges(TFilterRow& row);
    void RowPut(TFilterBracket& parent, int index, TFilterRow& row);
    void RowTaken(TFilterBracket& parent, int index, TFilterRow& row);
    /// A row or column that was taken out and is not needed any more.
    void Keep(std::unique_ptr<TFilterRow> row);
    void Keep(std::unique_ptr<TResultField> column);
    /// It was freed by somebody else.
    void Freed(const void* rowOrColumn);
    void ColumnChanges(TResultField& column);
    void ColumnPut(int index, TResultField& column);
    void ColumnTaken(int index, TResultField& column);
    void ColumnMoved(int from, int to);
    void JustSortingChanges();
    void OptionsChange(TSQLOptions to);
    void SyntaxChanges();
    /// Before the main table or the avoided joins change.
    void JoiningChanges();
    void ReportChanges(std::shared_ptr<const TSQLReport> from);
    /// Before another query text is read.
    void TextsChange();

private:
    struct TRowContents {
        TFilterRow* row;
        std::unique_ptr<TFilterRow> twin;
    };
    struct TRowPlace {
        TFilterBracket* parent;
        int index;
        TFilterRow* row;
        bool put; // else taken
    };
    struct TColumnContents {
        TResultField* column;
        std::unique_ptr<TResultField> twin;
    };
    struct TColumnPlace {
        int index;
        TResultField* column;
        bool put;
    };
    struct TColumnMove {
        int from, to;
    };
    struct TJustSorting {
        bool other;
    };
    struct TOptions {
        int mask, other; // only the bits that this step changed; those of the other state
    };
    struct TSyntax {
        TSQLSyntax other;
    };
    struct TJoining {
        std::string mainTable;
        TAvoidedJoins avoided;
    };
    struct TReport {
        std::shared_ptr<const TSQLReport> other;
    };
    struct TTexts {
        std::string name;
        double version;
        TStrings titles, description, userData;
    };
    using TChange =
        std::variant<TRowContents, TRowPlace, TColumnContents, TColumnPlace, TColumnMove,
                     TJustSorting, TOptions, TSyntax, TJoining, TReport, TTexts>;
    struct TToldRow {
        TFilterRow* row;
        unsigned what; // see TFilterRow::Exchange
    };
    using TToldRows = std::vector<TToldRow>;

    void Replay(bool undo);
    void Turn(TRowContents& change, bool undo, TToldRows& told);
    void Turn(TRowPlace& change, bool undo, TToldRows& told);
    void Turn(TColumnContents& change, bool undo, TToldRows& told);
    void Turn(TColumnPlace& change, bool undo, TToldRows& told);
    void Turn(TColumnMove& change, bool undo, TToldRows& told);
    void Turn(TJustSorting& change, bool undo, TToldRows& told);
    void Turn(TOptions& change, bool undo, TToldRows& told);
    void Turn(TSyntax& change, bool undo, TToldRows& told);
    void Turn(TJoining& change, bool undo, TToldRows& told);
    void Turn(TReport& change, bool undo, TToldRows& told);
    void Turn(TTexts& change, bool undo, TToldRows& told);

    TKQuery& query;
    std::vector<TChange> changes;
    std::unordered_map<const TFilterRow*, std::unique_ptr<TFilterRow>> rows; // kept alive
    std::unordered_map<const TResultField*, std::unique_ptr<TResultField>> columns;
    // while recording
    std::unordered_set<const void*> known;   // has a twin, or came with this step and goes with it
    std::unordered_set<const void*> fresh;   // rows that came with this step
    std::unordered_set<const void*> taken;   // was taken out at some time of this step
    std::unordered_set<const void*> outside; // is out now, and not kept here
    bool lost = false;
};

/// Records the changes of a query while it lives. The application's events wait, so that a step is
/// one change for it. The query may go meanwhile.
class TKQueryRecording {
public:
    TKQueryRecording(TKQuery& owner, TKQueryRecord& target);
    ~TKQueryRecording();
    TKQueryRecording(const TKQueryRecording&) = delete;
    TKQueryRecording& operator=(const TKQueryRecording&) = delete;
    /// Raises the events that waited; what their handlers change belongs to the step. Without this
    /// call they wait for the next change.
    void SendEvents();

private:
    TKQuery& query;
    std::weak_ptr<const char> life;
    TKQueryRecord* before;
    TKQuery::THeldEvents events;
};

} // namespace tern7
