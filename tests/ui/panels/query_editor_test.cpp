// Steps: what is one, what belongs to it, what ends them.
#include <QApplication>
#include <QMimeData>

#include <ui/panels/query_editor_form.h>

namespace tern7 {
namespace {

TEST_F(TEditor, StepsHaveNames) {
    TFilterCond* row = Enter(query.Root(), "City", "Contains", "R");
    editor->SetValue(*row, 1, "Rome");
    editor->SetValue(*row, 2, "x");
    EXPECT_EQ(Steps(), "Add condition, Choose field, Choose operator, Change value, Change value, "
                       "Change value");
    for (const char* text : {"Rome", "R"}) {
        editor->Undo();
        EXPECT_EQ(row->Value(1), text);
    }
    editor->SetValue(*row, 1, "R");
    EXPECT_EQ(editor->Stack().index(), 4) << "the same again is no step";
    EXPECT_TRUE(editor->CanRedo());
}

TEST_F(TEditor, OneStepIsOneChangeForTheApplicationWithItsHandlersChanges) {
    TFilterCond* first = Enter(query.Root(), "City", "Equal", "a");
    TFilterCond* second = Enter(query.Root(), "City", "Equal", "a");
    QStringList events;
    query.OnChange = [&](TKQuery&) { events << "change"; };
    query.OnConditionChange = [&](TFilterCond& row, int what) {
        events << QString("%1 %2").arg(row.RowNum()).arg(what);
        if (&row == first) second->SetValue(1, first->Value(1)); // keeps two rows alike
    };
    const int steps = editor->Stack().count();
    editor->SetValue(*first, 1, "b");
    EXPECT_EQ(events.join(", "), "1 3, 2 3, change");
    EXPECT_EQ(editor->Stack().count(), steps + 1);
    events.clear();
    editor->Undo();
    EXPECT_EQ(second->Value(1), "a");
    EXPECT_EQ(events.join(", "), "2 3, 1 3, change");
    EXPECT_TRUE(editor->CanRedo()) << "a handler that has nothing to do leaves the steps alone";
    editor->Redo();
    EXPECT_EQ(second->Value(1), "b");

    query.OnConditionChange = [&](TFilterCond& row, int) { row.Parent()->AddCond(); };
    editor->Undo();
    EXPECT_EQ(query.Root().GetRowCount(), 4); // one more for each row that was put back
    EXPECT_EQ(editor->Stack().count(), 0) << "no step fits any more";
}

TEST_F(TEditor, ChangesBehindItsBackEmptyTheStack) {
    const std::function<void()> changes[] = {
        [&] { query.Root().AddCond(); },
        [&] { query.Root().ClearRows(); },
        [&] { query.Root().GetFirstCondition()->SetValue(1, "other"); },
        [&] { query.Root().SetLinkType(TFilterLinkType::fltAny); },
        [&] { query.QResult().ResultFields().Clear(); },
        [&] { query.QResult().ResultFields()[0]->SetSorting(TSortingType::stAscending); },
        [&] { query.SetQueryString(query.GetQueryString()); },
        [&] {
            query.SetActive(false);
            query.Root().ClearRows();
        },
    };
    for (const auto& change : changes) {
        query.SetActive(true);
        query.ClearAll();
        editor->AddResultField(0, *Field("City"));
        Enter(query.Root(), "City", "Equal", "x");
        ASSERT_GT(editor->Stack().count(), 0);
        change();
        EXPECT_EQ(editor->Stack().count(), 0);
        editor->Undo();
    }
    query.SetActive(true);
    query.ClearAll();
    TFilterCond* row = Enter(query.Root(), "City", "Equal", "x");
    const std::string text = query.GetQueryString();
    query.SetQueryName("name"); // no part of the steps
    query.BuildQuery();
    row->SetHint("hint");
    editor->Delete(*row);
    editor->Undo();
    query.SetQueryName({});
    EXPECT_EQ(query.GetQueryString(), text);
}

TEST_F(TEditor, WhateverRunsInAStepIsTakenBack) {
    Enter(query.Root(), "City", "Equal", "x");
    editor->AddBracket(query.Root(), 0);
    query.SetQueryName("first");
    const std::string before = State();
    TKQuery other(&structure);
    other.SetQueryName("other");
    other.Root().AddBracket()->AddCond()->SetField(Field("Amount"));
    other.QResult().ResultFields().AddByExpression("Sum", TSortingType::stAscending, "{Amount}");
    editor->Run("Open", [&] { query.SetQueryString(other.GetQueryString()); });
    const std::string after = State();
    EXPECT_EQ(query.QueryName(), "other");
    editor->Undo();
    EXPECT_EQ(State(), before);
    editor->Redo();
    EXPECT_EQ(State(), after);
    EXPECT_EQ(Steps().section(", ", -1), "Open");

    // a step that fails leaves nothing behind
    const int steps = editor->Stack().count();
    EXPECT_THROW(editor->Run("Fail",
                             [&] {
                                 query.Root().ClearRows();
                                 editor->AddResultField(0, *Field("City"));
                                 editor->AddFormula(0, "", "{no such field}");
                             }),
                 EKExpressionError);
    EXPECT_EQ(State(), after);
    EXPECT_EQ(editor->Stack().count(), steps);
    // a row that the application takes for itself can not come back
    std::unique_ptr<TFilterRow> kept;
    editor->Run("Take", [&] { kept = query.Root().TakeRow(query.Root().GetRow(0)); });
    EXPECT_EQ(editor->Stack().count(), 0);
    // outside of the tree it can be changed unseen, and be put back
    editor->AddCondition(query.Root(), 0);
    TFilterBracket& taken = *kept->AsBracket();
    taken.InsertCond(0)->SetField(Field("City"));
    taken.TakeRow(taken.GetRow(1));
    EXPECT_EQ(editor->Stack().count(), 1);
    editor->Run("Put back", [&] { query.Root().InsertRow(1, std::move(kept)); });
    EXPECT_EQ(query.UnfinishedRows().size(), 2U);
    editor->Undo();
    editor->Redo();
    EXPECT_EQ(taken.GetRowCount(), 1);
}

TEST_F(TEditor, RowsTravelAsText) {
    TFilterBracket* bracket = editor->AddBracket(query.Root(), 0);
    bracket->SetLinkType(TFilterLinkType::fltAny);
    TFilterCond* row = Enter(*bracket, "City", "Between", "a");
    editor->SetParameter(*row, 1, true);
    editor->SetParameterTexts(*row, 1, "From", "%@v");
    const auto data = editor->Copy({bracket, row});
    ASSERT_TRUE(TKQueryEditor::CanPaste(data.get()));

    // inside the program with the row that has no field, elsewhere without it
    QMimeData plain;
    plain.setText(data->text());
    TKQuery other(&structure);
    TKQueryEditor otherEditor(other);
    for (QMimeData* source : {data.get(), &plain}) {
        const auto pasted = otherEditor.Paste(other.Root(), 0, *source);
        ASSERT_EQ(pasted.size(), 1U);
        const TFilterBracket& copy = *pasted[0]->AsBracket();
        EXPECT_EQ(copy.LinkType(), TFilterLinkType::fltAny);
        ASSERT_EQ(copy.GetRowCount(), source == data.get() ? 2 : 1);
        const TFilterCond& last = *copy.GetRow(copy.GetRowCount() - 1)->AsCond();
        EXPECT_EQ(last.Field(), Field("City"));
        ASSERT_TRUE(last.Param(1));
        EXPECT_EQ(last.Param(1)->Caption() + last.Param(1)->ValueFormat(), "From%@v");
        EXPECT_EQ(copy.GetFirstCondition()->Field() != nullptr, source != data.get());
    }
    // a whole query keeps how its rows are joined
    QMimeData whole;
    other.Root().SetLinkType(TFilterLinkType::fltNone);
    whole.setText(QString::fromStdString(other.GetQueryString()));
    const auto pasted = editor->Paste(query.Root(), 1, whole);
    ASSERT_EQ(pasted.size(), 1U);
    EXPECT_EQ(pasted[0]->AsBracket()->LinkType(), TFilterLinkType::fltNone);
    EXPECT_EQ(pasted[0]->AsBracket()->GetRowCount(), 2);

    const std::string before = State();
    for (const char* text : {"", "Berlin", "[Main]", "[Main]\nVersion=3.3\n[Row0]\nRowType=1\n"}) {
        QMimeData damaged;
        damaged.setText(text);
        EXPECT_THROW(editor->Paste(query.Root(), 0, damaged), EKQueryPanelError) << text;
    }
    QMimeData deep;
    TFilterBracket* inner = &query.Root();
    while (inner->Level() < 999)
        inner = inner->AddBracket();
    deep.setText(QString::fromStdString(RowsToText({inner})));
    EXPECT_EQ(editor->Paste(*inner, 0, deep).size(), 1U);
    deep.setText(QString::fromStdString(RowsToText({inner->Parent()})));
    EXPECT_THROW(editor->Paste(*inner, 0, deep), EKQueryPanelError);
    EXPECT_THROW(editor->CopyTo(*inner->Parent(), *inner, 0), EKQueryPanelError);
}

TEST_F(TEditor, HandlersMayDeleteEditorAndQuery) {
    auto own = std::make_unique<TKQuery>(&structure);
    auto ownEditor = std::make_unique<TKQueryEditor>(*own);
    ownEditor->AddBracket(own->Root(), 0);
    TFilterCond* row = own->Root().GetFirstCondition();
    own->OnConditionChange = [&](TFilterCond&, int) {
        ownEditor.reset();
        own.reset();
    };
    ownEditor->SetField(*row, *Field("City"));
    EXPECT_FALSE(own || ownEditor);

    // the query goes first, while a sub-query is edited
    own = std::make_unique<TKQuery>(&structure);
    ownEditor = std::make_unique<TKQueryEditor>(*own);
    row = ownEditor->AddCondition(own->Root(), 0);
    own->Services.editSubQuery = [&](TFilterCond& edited) {
        EXPECT_NE(&edited, row);
        own.reset();
        edited.SetSubQuery("text");
        return true;
    };
    EXPECT_FALSE(ownEditor->EditSubQuery(*row));
    EXPECT_EQ(ownEditor->Query(), nullptr);
    ownEditor->Undo();
    EXPECT_EQ(ownEditor->Stack().count(), 0);
}

} // namespace
} // namespace tern7
