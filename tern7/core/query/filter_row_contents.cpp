// Copies and exchanges what rows hold, for steps that are taken back and for copies of rows.

#include <utility>

#include <tern7/core/query/query.h>
#include <tern7/core/query/query_record.h>

namespace tern7 {

namespace {

constexpr unsigned otherThings = 1;

constexpr unsigned Bit(int what) {
    return 1U << what;
}

} // namespace

void TFilterRow::WillChange() {
    if (!query || detached) return;
    if (TKQueryRecord* record = query->RecordOfChange()) record->RowChanges(*this);
}

std::unique_ptr<TFilterRow> TFilterRow::MakeTwin() const {
    std::unique_ptr<TFilterRow> twin;
    if (IsBracket())
        twin.reset(new TFilterBracket(*query));
    else
        twin.reset(new TFilterCond(*query));
    twin->CopyContents(*this);
    query->AddDetached(*twin);
    return twin;
}

std::unique_ptr<TFilterRow> TFilterRow::Clone() const {
    std::unique_ptr<TFilterRow> copy = MakeTwin();
    const TFilterBracket* bracket = AsBracket();
    for (size_t i = 0; bracket && i < bracket->Rows().size(); ++i) {
        std::unique_ptr<TFilterRow> inner = bracket->Rows()[i]->Clone();
        query->detachedRows.erase(inner.get()); // goes with the row around it
        inner->parent = copy->AsBracket();
        copy->AsBracket()->rows.push_back(std::move(inner));
    }
    return copy;
}

// --- brackets

void TFilterBracket::CopyContents(const TFilterRow& source) {
    enabled = source.GetEnabled();
    linkType = source.AsBracket()->linkType;
}

unsigned TFilterBracket::Exchange(TFilterRow& other) {
    TFilterBracket& twin = *other.AsBracket();
    const unsigned differs = linkType != twin.linkType ? otherThings : 0;
    std::swap(enabled, twin.enabled);
    std::swap(linkType, twin.linkType);
    return differs;
}

void TFilterBracket::TellExchanged(unsigned what) {
    if (!query || detached) return;
    if (what != 0)
        query->BracketChanged(*this);
    else
        query->RowChanged(*this);
}

// --- conditions

void TFilterCond::CopyContents(const TFilterRow& other) {
    const TFilterCond& source = *other.AsCond();
    enabled = source.enabled;
    field = source.field;
    op = source.op;
    unknownFieldID = source.unknownFieldID;
    entered = source.entered;
    recognized = source.recognized;
    for (int n = 0; n < 2; ++n) {
        values[n].text = source.values[n].text;
        values[n].caption = source.values[n].caption;
        values[n].isParam = source.values[n].isParam;
        const TSQLParam* param = source.values[n].param;
        if (!param && source.extras) param = source.extras->parked[n].get();
        if (param) MakeExtras().parked[n] = param->CopyFor(*this);
    }
    if (!source.extras) return;
    TExtras& own = MakeExtras();
    const TExtras& from = *source.extras;
    own.unknownFieldName = from.unknownFieldName;
    own.unknownOperator = from.unknownOperator;
    own.sqlText = from.sqlText;
    own.subQuery = from.subQuery;
    own.subQueryOptions = from.subQueryOptions;
    own.customData = from.customData;
    own.caption = from.caption;
    own.hint = from.hint;
}

unsigned TFilterCond::Differences(const TFilterCond& twin) const {
    const TExtras &mine = Extras(), &other = twin.Extras();
    unsigned what = entered != twin.entered || mine.hint != other.hint ? otherThings : 0;
    auto note = [&what](bool differs, TWhatChanged bit) {
        if (differs) what |= Bit(bit);
    };
    note(field != twin.field || unknownFieldID != twin.unknownFieldID ||
             mine.unknownFieldName != other.unknownFieldName || mine.sqlText != other.sqlText,
         wcField);
    note(op != twin.op || mine.unknownOperator != other.unknownOperator, wcOperator);
    for (int n = 0; n < 2; ++n) {
        note(values[n].text.Get() != twin.values[n].text.Get() ||
                 values[n].caption != twin.values[n].caption,
             n == 0 ? wcValue1 : wcValue2);
        const TSQLParam* param = values[n].param;
        const TSQLParam* parked = other.parked[n].get();
        note(values[n].isParam != twin.values[n].isParam ||
                 (param && parked &&
                  (param->caption != parked->caption || param->valueFormat != parked->valueFormat)),
             n == 0 ? wcParam1 : wcParam2);
    }
    note(mine.subQuery != other.subQuery || mine.subQueryOptions != other.subQueryOptions,
         wcSubQuery);
    note(enabled != twin.enabled, wcEnabled);
    note(mine.caption != other.caption, wcCaption);
    return what;
}

/// Exchanges the parameter of a value with the one parked in the twin; one that is on both sides
/// stays the same object. True when the query's list was changed.
bool TFilterCond::ExchangeParam(int n, TFilterCond& twin) {
    TSQLParam* mine = values[n - 1].param;
    std::unique_ptr<TSQLParam>& other = twin.MakeExtras().parked[n - 1];
    if (!mine && !other) return false;
    if (mine && other && mine->name == other->name) {
        mine->caption.swap(other->caption);
        mine->valueFormat.swap(other->valueFormat);
        std::swap(mine->generated, other->generated);
        return false;
    }
    std::unique_ptr<TSQLParam> put = std::move(other);
    if (mine) {
        other = std::move(query->QResult().TakeParams({mine}).front());
        other->Release();
        other->condition = &twin;
    }
    if (put) {
        put->condition = this;
        query->QResult().PutParam(std::move(put));
    }
    return true;
}

unsigned TFilterCond::Exchange(TFilterRow& other) {
    TFilterCond& twin = *other.AsCond();
    const unsigned what = Differences(twin);
    const bool params1 = ExchangeParam(1, twin);
    const bool params2 = ExchangeParam(2, twin);

    std::swap(enabled, twin.enabled);
    std::swap(field, twin.field);
    std::swap(op, twin.op);
    std::swap(unknownFieldID, twin.unknownFieldID);
    std::swap(entered, twin.entered);
    std::swap(recognized, twin.recognized);
    for (int n = 0; n < 2; ++n) {
        std::swap(values[n].text, twin.values[n].text);
        values[n].caption.swap(twin.values[n].caption);
        std::swap(values[n].isParam, twin.values[n].isParam);
    }
    extras.swap(twin.extras);
    // parked parameters stay with the twin, the nested query with its text
    for (int n = 0; n < 2; ++n)
        if (extras && extras->parked[n]) twin.MakeExtras().parked[n] = std::move(extras->parked[n]);
    if ((what & Bit(wcSubQuery)) == 0 && twin.extras && twin.extras->nested)
        MakeExtras().nested = std::move(twin.extras->nested);
    else if (twin.extras)
        twin.extras->nested.reset();
    if (what & Bit(wcSubQuery)) query->SubQueryChanged(*this);
    if (params1 || params2) query->ParametersListChanged();
    return what;
}

void TFilterCond::TellExchanged(unsigned what) {
    if (!query || detached) return;
    if (what == otherThings) query->RowChanged(*this);
    for (const int bit : {wcField, wcOperator, wcValue1, wcValue2, wcParam1, wcParam2, wcSubQuery,
                          wcEnabled, wcCaption})
        if (what & Bit(bit)) DoConditionChange(bit);
}

} // namespace tern7
