#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shop.h"

namespace tern7 {
namespace {

/// Writes down what a view is told.
class TRecordingView : public TKQueryView {
public:
    void RowsAdded(TFilterBracket&, int index, int count) override {
        Note("added " + std::to_string(index) + "+" + std::to_string(count));
    }
    void RowsRemoved(TFilterBracket&, int index, int count) override {
        Note("removed " + std::to_string(index) + "+" + std::to_string(count));
    }
    void RowsRenumbered() override {}
    void RowChanged(TFilterRow&) override { Note("row"); }
    void ValueEditorsChanged(TFilterRow&) override { Note("editors"); }
    void ResultFieldsChanged() override { Note("fields"); }
    void ParametersChanged() override { Note("params"); }
    void EverythingChanged() override { Note("everything"); }
    void CloseEditors() override {}
    void QueryDestroyed() override { Note("destroyed"); }

    TStrings Take() { return std::exchange(notes, {}); }

private:
    void Note(std::string text) { notes.push_back(std::move(text)); }
    TStrings notes;
};

class TRows : public TShop {
protected:
    TRows() {
        query.OnChange = [this](TKQuery&) { events.push_back("change"); };
        query.OnParamListChange = [this](TKQuery&) { events.push_back("params"); };
        query.OnActive = [this](TKQuery&) { events.push_back("active"); };
        query.OnConditionChange = [this](TFilterCond&, int what) {
            events.push_back("condition " + std::to_string(what));
        };
        query.AddView(&view);
    }
    ~TRows() override { query.RemoveView(&view); }
    TStrings Events() { return std::exchange(events, {}); }

    TStrings events;
    TRecordingView view;
};

TEST_F(TRows, EveryChangeIsToldInOrder) {
    TFilterCond* row = query.Root().AddCond();
    EXPECT_EQ(Events(), (TStrings{"change"}));
    EXPECT_EQ(view.Take(), (TStrings{"added 0+1"}));
    row->SetField(Field("C.city"));
    row->SetField(Field("C.city"));
    row->SetOperator(structure.OperatorByName("equal"));
    row->SetValue(1, "x");
    row->SetValue(1, "x");
    EXPECT_EQ(Events(), (TStrings{"condition 1", "change", "condition 2", "change", "condition 3",
                                  "change"}));
    row->SetValue1IsParam(true);
    EXPECT_EQ(Events(), (TStrings{"condition 5", "params", "change"}));
    view.Take();
    {
        TKQueryUpdate update(query);
        row->SetValue1IsParam(false);
        row->SetEnabled(false);
        query.Root().AddBracket()->AddCond();
    }
    EXPECT_EQ(Events(), (TStrings{"condition 5", "condition 8", "params", "change"}));
    EXPECT_EQ(view.Take(), (TStrings{"everything"})) << "one refresh stands for all";

    query.SetActive(false);
    query.Root().DeleteRow(row);
    query.Root().AddCond();
    EXPECT_EQ(view.Take(), (TStrings{"removed 0+1"})) << "the end of rows is always told";
    query.SetActive(true);
    EXPECT_EQ(Events(), (TStrings{"active"}));
    EXPECT_EQ(view.Take(), (TStrings{"everything"}));
}

TEST_F(TRows, HandlersMayChangeWhatIsStored) {
    query.OnSetValue = [](TFilterCond&, std::string& value, std::string& caption) {
        value = UpperCase(value);
        caption = "said " + caption;
    };
    query.OnChangeValue = [](TDSField&, const std::string& value, std::string& caption) {
        caption = "entered " + value;
    };
    TFilterCond* row = Add("C.city", "Equal", "rome");
    EXPECT_EQ(row->Value(1), "ROME");
    row->EnterValue(1, "oslo");
    EXPECT_EQ(row->ValueCaption(1), "said entered oslo");
    query.SetBuilderState(TKBuilderState::stLoading);
    row->SetValue(1, "bern");
    EXPECT_EQ(row->Value(1), "bern");
}

TEST_F(TRows, HandlersMayRaiseAndMayEndWhatCallsThem) {
    TFilterCond* row = Add("C.city", "Equal", "rome");
    query.OnChange = [](TKQuery&) { throw EKTernError("no"); };
    EXPECT_THROW(row->SwitchEnabled(false), EKTernError);
    EXPECT_THROW(query.ClearAll(), EKTernError);
    query.OnChange = nullptr;
    EXPECT_EQ(query.Root().GetRowCount(), 0);

    row = Add("C.city", "Equal", "rome");
    const std::unique_ptr<TFilterRow> copy = row->Clone();
    query.OnSetValue = [this](TFilterCond& told, std::string&, std::string&) {
        EXPECT_EQ(told.Parent(), &query.Root()) << "nobody is told of rows outside of the tree";
        query.Root().DeleteRow(&told);
    };
    copy->AsCond()->SetValue(1, "oslo");
    row->EnterValue(1, "oslo");
    EXPECT_EQ(query.Root().GetRowCount(), 0);

    const auto endedBy = [this](const std::function<void(TKQuery&)>& reading) {
        auto* other = new TKQuery(&structure);
        other->OnActive = [](TKQuery& told) { delete &told; };
        const std::weak_ptr<const char> life = other->Life();
        reading(*other);
        return life.expired();
    };
    EXPECT_TRUE(endedBy([this](TKQuery& q) { q.SetQueryString(query.GetQueryString()); }));
    EXPECT_TRUE(endedBy([](TKQuery& q) { q.ParseSQL("select C.id from Customer C"); }));
    EXPECT_TRUE(endedBy([](TKQuery& q) { q.ImportSQL("select C.id from Customer C"); }));
}

TEST_F(TRows, NumbersFollowTheStyle) {
    TFilterCond* first = query.Root().AddCond();
    TFilterBracket* bracket = query.Root().AddBracket();
    TFilterCond* inner = bracket->AddCond();
    TFilterCond* last = query.Root().AddCond();
    auto numbers = [&] {
        return std::vector<int>{query.Root().RowNum(), first->RowNum(), bracket->RowNum(),
                                inner->RowNum(), last->RowNum()};
    };
    EXPECT_EQ(numbers(), (std::vector<int>{-1, 1, 2, 3, 4}));
    query.SetStyle(TQPStyle::psAndOr);
    EXPECT_EQ(numbers(), (std::vector<int>{-1, 0, -1, 1, 2}));
    query.Root().DeleteRow(first);
    EXPECT_EQ(last->RowNum(), 1);
    EXPECT_EQ(query.Root().IndexByRowNum(1), 1);
    EXPECT_EQ(query.Root().GetLastRow(), last);
    EXPECT_EQ(query.Root().GetFirstCondition(), inner);
    EXPECT_EQ(query.Root().IndexForNewRow(bracket), 1);
    EXPECT_EQ(query.Root().IndexForNewRow(inner), 2);
}

TEST_F(TRows, SwitchingAsAUserDoes) {
    TFilterBracket* bracket = query.Root().AddBracket();
    TFilterCond* a = bracket->AddCond();
    TFilterCond* b = bracket->AddCond();
    a->SwitchEnabled(false);
    EXPECT_TRUE(bracket->GetEnabled());
    b->SwitchEnabled(false);
    EXPECT_FALSE(bracket->GetEnabled()) << "the last row takes its bracket with it";
    b->SwitchEnabled(true);
    EXPECT_TRUE(bracket->GetEnabled());
    EXPECT_FALSE(a->GetEnabled());
    bracket->SwitchEnabled(false);
    EXPECT_TRUE(b->GetEnabled()) << "rows keep their own flags";
    EXPECT_FALSE(b->EffectivelyEnabled());
    query.Root().SetEnabled(false);
    EXPECT_TRUE(query.Root().GetEnabled()) << "the root is always on";
    a->SetEnabled(true);
    EXPECT_FALSE(bracket->GetEnabled()) << "by code only the row itself";
}

TEST_F(TRows, TakenRowsAndColumnsComeBackAsTheyWere) {
    TFilterBracket* bracket = query.Root().AddBracket();
    TFilterCond* row = Add(*bracket, "C.id", "Equal", "5");
    row->SetValue1IsParam(true);
    TFilterCond* other = Add("C.city", "Equal", "x");
    other->SetValue1IsParam(true);
    query.QResult().ResultFields().AddByExpression("n", TSortingType::stAscending, "{C.id}");
    const std::string before = SQL();

    std::unique_ptr<TFilterRow> taken = query.Root().TakeRow(bracket);
    std::unique_ptr<TResultField> column = query.QResult().ResultFields().TakeField(0);
    EXPECT_EQ(query.QResult().GetParamCount(), 1);
    EXPECT_EQ(SQL(), "SELECT *\nFROM Customer C\nWHERE\n (\nC.city = :Param2\n)");
    // while they are out the field goes and comes back
    const int id = Field("C.id")->ID();
    for (int i = 0; i < structure.GetFieldCount(); ++i)
        if (structure.GetField(i)->ID() == id) structure.DelField(i);
    EXPECT_EQ(row->Field(), structure.PlaceholderField());
    EXPECT_EQ(row->FieldID(), id);
    EXPECT_EQ(column->GetDSField(0), structure.PlaceholderField());
    query.Root().InsertRow(0, std::move(taken));
    query.QResult().ResultFields().PutField(0, std::move(column));
    EXPECT_EQ(row->Unfinished(), TUnfinished::UnknownField);
    EXPECT_THROW(query.BuildQuery(), EKQueryPanelError) << "a column never vanishes in silence";
    query.QResult().ResultFields().Delete(0);
    row->SetField(Field("O.id"));
    EXPECT_THAT(SQL(), testing::HasSubstr("O.id = :Param1"));
    EXPECT_NE(SQL(), before);

    // parameters that come and go while their row is out
    taken = query.Root().TakeRow(other);
    other->SetValue1IsParam(false);
    query.Root().InsertRow(0, std::move(taken));
    EXPECT_EQ(other->Param(1), nullptr);
    taken = query.Root().TakeRow(other);
    other->SetValue1IsParam(true);
    EXPECT_EQ(query.QResult().GetParamCount(), 1) << "none while it is out";
    query.Root().InsertRow(0, std::move(taken));
    ASSERT_TRUE(other->Param(1));
    EXPECT_EQ(query.QResult().GetParamCount(), 2);

    std::unique_ptr<TFilterRow> late;
    {
        TKQuery shortLived(&structure);
        late = shortLived.Root().TakeRow(shortLived.Root().AddCond());
        EXPECT_THROW(query.Root().InsertRow(0, std::move(late)), std::invalid_argument);
        late = shortLived.Root().TakeRow(shortLived.Root().AddCond());
    }
    EXPECT_EQ(late->Query(), nullptr) << "a row may outlive its query";
}

TEST_F(TRows, NothingDanglesWhenTheStructureGoes) {
    auto owned = std::make_unique<TKCustomDBStructure>();
    owned->Assign(structure);
    query.SetDbStruct(owned.get());
    TFilterCond* row = query.Root().AddCond();
    row->SetField(owned->FieldByName(false, "C.id"));
    row->SetOperator(owned->OperatorByName("Equal"));
    row->SetValue(1, "1");
    query.QResult().ResultFields().AddByExpression("n", TSortingType::stNoSort, "{C.id}");
    const std::string before = SQL();
    TFilterCond* unknown = query.Root().AddCond();
    unknown->SetField(owned->PlaceholderField());
    unknown->SetOperator(owned->PlaceholderOperator());
    owned->SetStructString(owned->GetStructString());
    EXPECT_EQ(SQL(), before) << "found again after a reload";
    EXPECT_EQ(unknown->Field(), owned->PlaceholderField()) << "without ID or name";
    EXPECT_EQ(unknown->Operator(), owned->PlaceholderOperator());
    owned->DeleteOperatorByName("Equal");
    EXPECT_EQ(row->Unfinished(), TUnfinished::UnknownOperator);
    EXPECT_EQ(row->OperatorName(), "Equal");
    owned.reset();
    EXPECT_EQ(query.DbStruct(), nullptr);
    EXPECT_EQ(row->Field(), nullptr);
    EXPECT_THROW(query.BuildQuery(), EKQueryPanelError);
    EXPECT_THROW(query.QResult().GetSQL(), EKQueryPanelError);
    query.SetDbStruct(&structure);
    EXPECT_EQ(SQL(), before);
}

TEST_F(TRows, NestingHasALimit) {
    TFilterBracket* bracket = &query.Root();
    for (int level = 1; level <= 1000; ++level)
        bracket = bracket->AddBracket();
    EXPECT_THROW(bracket->AddBracket(), EKQueryPanelError);
    EXPECT_EQ(bracket->GetRowCount(), 0);
    Add(*bracket, "C.id", "Equal", "1");
    EXPECT_EQ(CharCount(SQL(), '('), 1001u);
    std::unique_ptr<TFilterRow> all = query.Root().TakeRow(query.Root().GetRow(0));
    TFilterBracket* deeper = query.Root().AddBracket();
    EXPECT_THROW(deeper->InsertRow(0, std::move(all)), EKQueryPanelError);
}

} // namespace
} // namespace tern7
