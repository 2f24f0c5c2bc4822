// Whatever users do is taken back to the first text and done again to the last.
#include <functional>
#include <random>

#include <ui/panels/query_editor_form.h>

namespace tern7 {
namespace {

/// A user who does anything at all.
class TMonkey : public TEditor, public ::testing::WithParamInterface<int> {
protected:
    int Below(size_t n) { return static_cast<int>(random() % n); }
    template <class T>
    auto& Any(T& items) {
        return items[static_cast<size_t>(Below(std::size(items)))];
    }
    TFilterBracket& AnyBracket() {
        std::vector<TFilterBracket*> brackets;
        for (TFilterRow* row : AllRows())
            if (row->IsBracket()) brackets.push_back(row->AsBracket());
        return *Any(brackets);
    }
    TFilterCond* AnyCondition() {
        std::vector<TFilterCond*> conditions;
        for (TFilterRow* row : AllRows())
            if (row->AsCond()) conditions.push_back(row->AsCond());
        return conditions.empty() ? nullptr : Any(conditions);
    }
    TDSField& AnyField() {
        return *structure.Fields()[Below(static_cast<size_t>(structure.Fields().GetCount()))];
    }
    void Step();
    void ChangeRows(TFilterRow& row);
    void ChangeCondition(TFilterCond& condition);
    void ChangeColumns();

    std::mt19937 random{static_cast<unsigned>(GetParam())};
};

void TMonkey::Step() {
    const int size = static_cast<int>(AllRows().size());
    const int kind = Below(10);
    if (kind < 2 && size < 60) {
        TFilterBracket& bracket = AnyBracket();
        const int at = Below(static_cast<size_t>(bracket.GetRowCount() + 1));
        if (Below(3) > 0)
            editor->AddCondition(bracket, at);
        else
            editor->AddBracket(bracket, at);
    } else if (kind < 5) {
        if (TFilterCond* condition = AnyCondition()) ChangeCondition(*condition);
    } else if (kind < 8) {
        std::vector<TFilterRow*> rows = AllRows(false);
        if (!rows.empty()) ChangeRows(*Any(rows));
    } else {
        ChangeColumns();
    }
}

void TMonkey::ChangeRows(TFilterRow& row) {
    TFilterBracket& to = AnyBracket();
    const int at = Below(static_cast<size_t>(to.GetRowCount() + 1));
    const bool room = AllRows().size() < 60;
    const std::function<void()> changes[] = {
        [&] { editor->Delete(row); },
        [&] { editor->Move(row, to, at); },
        [&] { editor->MoveUp(row); },
        [&] { editor->MoveDown(row); },
        [&] {
            if (room) editor->Duplicate(row);
        },
        [&] {
            if (room) editor->CopyTo(row, to, at);
        },
        [&] {
            if (room) editor->Paste(to, at, *editor->Copy({&row}));
        },
        [&] { editor->Cut(row); },
        [&] { editor->SetBracketKind(to, static_cast<TFilterLinkType>(Below(4))); },
        [&] { editor->SetBracketJoin(to, Below(2) == 0); },
        [&] {
            if (Below(20) == 0) editor->ClearAll();
        },
        [&] { editor->SetEnabled(row, !row.GetEnabled()); },
    };
    Any(changes)();
}

void TMonkey::ChangeCondition(TFilterCond& condition) {
    static const std::string values[] = {"", "1", "Rome", "a, b", " ", "2026-05-01", "line\nbreak"};
    const int n = 1 + Below(2);
    const std::function<void()> changes[] = {
        [&] { editor->SetField(condition, AnyField()); },
        [&] { editor->SetField(condition, AnyField()); },
        [&] {
            if (condition.Field() && condition.Field()->GetOperatCount() > 0)
                editor->SetOperator(condition, *condition.Field()->GetOperator(
                                                   Below(condition.Field()->Operators().size())));
        },
        [&] { editor->SetValue(condition, n, Any(values), Below(2) ? "shown" : ""); },
        [&] { editor->SetValue(condition, n, "Ber"); },
        [&] { editor->SetParameter(condition, n, !condition.ValueIsParam(n)); },
        [&] { editor->SetParameterTexts(condition, n, Any(values), "%@v%"); },
        [&] { editor->SetSubQuery(condition, Any(values), {}); },
    };
    Any(changes)();
}

void TMonkey::ChangeColumns() {
    TRFieldList& list = query.QResult().ResultFields();
    const size_t count = static_cast<size_t>(list.GetCount());
    if (count < 3 || (count < 12 && Below(4) == 0)) {
        editor->AddResultField(Below(count + 1), AnyField());
        return;
    }
    const int i = Below(count);
    const std::function<void()> changes[] = {
        [&] { editor->DeleteResultField(i); },
        [&] { editor->MoveResultField(i, Below(count)); },
        [&] { editor->DuplicateResultField(i); },
        [&] { editor->SetResultField(*list[i], AnyField()); },
        [&] { editor->SetFormula(*list[i], "SUM({Amount}) / {Gross amount}"); },
        [&] { editor->SetSorting(*list[i], static_cast<TSortingType>(Below(3))); },
        [&] { editor->SetResultCaption(*list[i], "Caption " + std::to_string(Below(5))); },
        [&] { editor->SetJustSorting(!list.JustSorting()); },
        [&] {
            editor->SetSQLOption(static_cast<TSQLOption>(Below(SQLOptionCount)), Below(2) == 0);
        },
        [&] {
            editor->SetAvoidedJoins(Below(2) ? TAvoidedJoins{{"C", "O"}} : TAvoidedJoins{});
        },
        [&] { editor->SetMainTable(Below(2) ? "C" : "O"); },
    };
    Any(changes)();
}

TEST_P(TMonkey, EveryStepIsTakenBackAndDoneAgain) {
    editor->SetNonEmptyBrackets(GetParam() % 2 == 0);
    QUndoStack& stack = editor->Stack();
    std::vector<std::string> states{State()};
    for (int i = 0; i < 1000; ++i) {
        if (Below(6) == 0) {
            for (int back = Below(4); back > 0; --back)
                editor->Undo();
            for (int again = Below(3); again > 0; --again)
                editor->Redo();
            ASSERT_EQ(State(), states.at(static_cast<size_t>(stack.index())));
        }
        Step();
        // one call, one step at most; what was undone is gone
        const size_t index = static_cast<size_t>(stack.index());
        ASSERT_LE(index, states.size());
        if (stack.count() != stack.index()) continue; // nothing happened
        states.resize(index);
        states.push_back(State());
    }
    ASSERT_GT(stack.count(), 300);
    while (editor->CanRedo())
        editor->Redo();
    for (int i = stack.count() - 1; i >= 0; --i) {
        editor->Undo();
        ASSERT_EQ(State(), states[static_cast<size_t>(i)]) << stack.text(i).toStdString();
        if (i % 100 == 50) { // the structure goes and comes back under a filled stack
            TStrings text;
            structure.SaveToStrings(text);
            structure.LoadFromStrings(text);
            ASSERT_EQ(State(), states[static_cast<size_t>(i)]);
        }
    }
    for (int i = 1; i <= stack.count(); ++i) {
        editor->Redo();
        ASSERT_EQ(State(), states[static_cast<size_t>(i)]) << stack.text(i - 1).toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TMonkey, ::testing::Range(1, 5));

} // namespace
} // namespace tern7
