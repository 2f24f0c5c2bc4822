#pragma once

#include <any>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/field_types.h>
#include <tern7/core/global/sql_options.h>

namespace tern7 {

class TDSField;
class TDSOperator;
class TFilterBracket;
class TFilterCond;
class TKQuery;
class TSQLParam;

enum class TFilterRowType : uint8_t { frtCriteria = 0, frtBracket = 1 };
/// rsDestroying while a row is being freed: it sends no notifications any more.
enum class TRowState : uint8_t { rsNormal = 0, rsDestroying = 1 };
enum class TFilterLinkType : uint8_t { fltAll = 0, fltAny = 1, fltNone = 2, fltNotAll = 3 };

constexpr bool IsNegated(TFilterLinkType type) {
    return type == TFilterLinkType::fltNone || type == TFilterLinkType::fltNotAll;
}
/// True when the rows of such a bracket are joined by "and".
constexpr bool JoinsByAnd(TFilterLinkType type) {
    return type == TFilterLinkType::fltAll || type == TFilterLinkType::fltNotAll;
}

/// What OnConditionChange says was changed.
enum TWhatChanged : int {
    wcField = 1,
    wcOperator = 2,
    wcValue1 = 3,
    wcValue2 = 4,
    wcParam1 = 5,
    wcParam2 = 6,
    wcSubQuery = 7,
    wcEnabled = 8,
    wcCaption = 9
};

/// Why a condition takes no part in the statement although it is enabled.
enum class TUnfinished : uint8_t {
    No,
    NoField,
    NoOperator,
    UnknownField,    ///< the structure does not have it (any more)
    UnknownOperator, ///< the same
    NoSubQuery,
    NoValue,   ///< an empty value that would stand without quotes
    NotEntered ///< added on the screen, its values were not entered yet
};

/// A row of the filter: a bracket that holds rows, or a condition. Owned by its parent bracket (the
/// root by the query); a row that was taken out is owned by whoever took it, and keeps its
/// references right as long as the query lives.
class TFilterRow {
public:
    virtual ~TFilterRow();
    TFilterRow(const TFilterRow&) = delete;
    TFilterRow& operator=(const TFilterRow&) = delete;

    TFilterRowType RowType() const { return rowType; }
    bool IsBracket() const { return rowType == TFilterRowType::frtBracket; }
    TFilterBracket* AsBracket(); ///< none for a condition
    const TFilterBracket* AsBracket() const;
    TFilterCond* AsCond(); ///< none for a bracket
    const TFilterCond* AsCond() const;

    /// The query it belongs to; none when that is gone (a row that was taken out may outlive it).
    TKQuery* Query() const { return query; }
    /// None for the root and for rows that were taken out.
    TFilterBracket* Parent() const { return parent; }
    TRowState RowState() const { return rowState; }
    /// Number of brackets around the row; 0 for the root.
    int Level() const;

    /// Line position; -1 for a row that has no line of its own.
    int RowNum() const;
    void SetRowNum(int value) { rowNum = value; }
    /// Key of the row's section in the query text; given when a text is written or read.
    int RowID() const { return rowID; }
    void SetRowID(int value) { rowID = value; }

    /// A row that is off is kept and shown but takes no part in the statement. The root is always
    /// on.
    bool GetEnabled() const { return enabled; }
    /// Changes this row only.
    void SetEnabled(bool value);
    /// As a user switches it: a bracket's rows keep their own flags; a bracket follows when its
    /// last enabled row goes off, and it and those around it go on with a row.
    void SwitchEnabled(bool value);
    /// True when the row and all brackets around it are on.
    bool EffectivelyEnabled() const;

    bool Hidden() const { return hidden; }
    void SetHidden(bool value);
    bool Visible() const { return visible; }
    void SetVisible(bool value);

    /// Announce through the views and do nothing else.
    void RefreshValueEditors();
    void RefreshParamValueEditors();
    void UpdateBoolLabel();
    void CloseEdit();

    /// A row with the same contents and copies of all rows below it, not yet in a bracket; its
    /// parameters get names of their own when it is put in.
    std::unique_ptr<TFilterRow> Clone() const;

    /// An object that a host attaches.
    std::any OleObject;

protected:
    TFilterRow(TKQuery& query, TFilterRowType type);
    virtual void EnabledChanged() {}
    /// To be called before the row's own contents change.
    void WillChange();
    /// Outside of the tree, a row that holds what this one does now, without the rows below.
    std::unique_ptr<TFilterRow> MakeTwin() const;
    /// Copies what a twin holds; what `source` refers to must be of the same query.
    virtual void CopyContents(const TFilterRow& source) = 0;
    /// Exchanges what a twin holds, in silence; the bits 1 << TWhatChanged say what differed, bit 0
    /// anything else.
    virtual unsigned Exchange(TFilterRow& twin) = 0;
    virtual void TellExchanged(unsigned what) = 0;

    friend class TFilterBracket;
    friend class TKQuery;
    friend class TKQueryRecord;
    TKQuery* query;
    TFilterBracket* parent = nullptr;
    int rowNum = -1;
    int rowID = -1;
    mutable int indexHint = 0; // where the parent has it, most likely
    TFilterRowType rowType;
    TRowState rowState = TRowState::rsNormal;
    bool enabled = true;
    bool hidden = false;
    bool visible = true;
    bool detached = false; // the query keeps an eye on its references
};

/// A bracket: rows that hold all, any, none or not all together.
class TFilterBracket : public TFilterRow {
public:
    ~TFilterBracket() override;

    TFilterLinkType LinkType() const { return linkType; }
    void SetLinkType(TFilterLinkType value);

    int GetRowCount() const { return static_cast<int>(rows.size()); }
    /// std::out_of_range outside 0..count-1.
    TFilterRow* GetRow(int i) const { return rows.at(static_cast<size_t>(i)).get(); }
    const std::vector<std::unique_ptr<TFilterRow>>& Rows() const { return rows; }
    int GetRowIndex(const TFilterRow* row) const; ///< -1 when absent
    int IndexByRowNum(int rowNum) const;          ///< -1 when absent
    /// Where a new row goes when `current` is the current row: behind it, or at the end.
    int IndexForNewRow(const TFilterRow* current) const;
    /// The first condition below, depth first; none when there is none.
    TFilterCond* GetFirstCondition() const;
    /// The last row below, depth first; this bracket when it has no rows.
    TFilterRow* GetLastRow();
    int GetLastRowNum();

    /// False when the row is this bracket or one around it, or would stand too deep: there are at
    /// most 1,000 levels.
    bool CanHold(const TFilterRow& row) const;
    /// EKQueryPanelError "Rows are nested too deep" beyond 1,000 levels.
    TFilterBracket* AddBracket() { return InsertBracket(GetRowCount()); }
    TFilterCond* AddCond() { return InsertCond(GetRowCount()); }
    TFilterBracket* InsertBracket(int index);
    TFilterCond* InsertCond(int index);
    /// Puts a row in (one that was taken out, or a new one); std::out_of_range outside 0..count.
    TFilterRow* InsertRow(int index, std::unique_ptr<TFilterRow> row);
    /// Takes a row out without freeing it; its parameters leave the query with it.
    std::unique_ptr<TFilterRow> TakeRow(TFilterRow* row);
    /// Removes and frees one row; nothing when it is not here.
    void DeleteRow(TFilterRow* row);
    void ClearRows();
    /// This bracket and those below: the row with that identifier; none when absent.
    TFilterRow* RowByID(int id);

    /// Switches the bracket off when none of its rows is on any more.
    void CheckIfAllDisabled();
    /// Deepest level of brackets below; 0 without brackets inside.
    int Depth() const;

private:
    friend class TKQuery;
    friend class TFilterRow;
    explicit TFilterBracket(TKQuery& query);
    void CopyContents(const TFilterRow& source) override;
    unsigned Exchange(TFilterRow& twin) override;
    void TellExchanged(unsigned what) override;
    std::vector<std::unique_ptr<TFilterRow>> rows;
    TFilterLinkType linkType = TFilterLinkType::fltAll;
};

/// The text of a value, and whether it can stand in a statement as it is. That is found out when
/// the text is given, which happens once, and asked for with each build.
class TValueText {
public:
    const std::string& Get() const { return text; }
    void Set(std::string newText) {
        text = std::move(newText);
        isPlain = text.find_first_of("'@") == std::string::npos;
    }
    /// True when the text holds no quote, which would be doubled, and no "@".
    bool IsPlain() const { return isPlain; }

private:
    std::string text;
    bool isPlain = true;
};

/// A condition: a field, an operator, up to two values. Values are numbered 1 and 2.
class TFilterCond : public TFilterRow {
public:
    ~TFilterCond() override;

    /// None for a new condition; the structure's placeholder for a field that it doesn't know.
    TDSField* Field() const { return field; }
    TDSOperator* Operator() const { return op; }
    void SetField(TDSField* value);
    void SetOperator(TDSOperator* value);
    /// What the condition refers to when the structure doesn't know it: the field ID (or, from
    /// texts of old, a name) and the operator's name; written back as they were read.
    void SetUnknownField(int id, std::string name = {});
    void SetUnknownOperator(std::string name);
    int FieldID() const;
    const std::string& UnknownFieldName() const { return Extras().unknownFieldName; }
    std::string OperatorName() const;
    bool IsRecognized() const { return recognized; }
    /// The text of a condition that was read from SQL and not recognised; stands in the statement
    /// as it is.
    const std::string& SQLText() const { return Extras().sqlText; }
    void SetSQLText(std::string value);

    const std::string& Value(int n) const { return values[Slot(n)].text.Get(); }
    /// What the user reads instead of the value; empty: the value itself.
    const std::string& ValueCaption(int n) const { return values[Slot(n)].caption; }
    /// The application's OnSetValue may change both before they are stored (not while loading, nor
    /// for a row outside of the tree).
    void SetValue(int n, std::string text, std::string caption = {});
    /// As SetValue, from the screen: OnChangeValue may say how the value is shown, and the values
    /// count as entered.
    void EnterValue(int n, std::string text, std::string caption = {});
    /// The operator's text between the values.
    std::string ValueFormat() const;
    /// Number of values that the operator takes; 0 without operator.
    int ValueCount() const;

    bool GetValue1IsParam() const { return values[0].isParam; }
    bool GetValue2IsParam() const { return values[1].isParam; }
    bool ValueIsParam(int n) const { return values[Slot(n)].isParam; }
    void SetValue1IsParam(bool value) { SetValueIsParam(1, value); }
    void SetValue2IsParam(bool value) { SetValueIsParam(2, value); }
    void SetValueIsParam(int n, bool value);
    /// The parameter that stands for a value; none when it is a constant.
    TSQLParam* Param(int n) const { return values[Slot(n)].param; }
    void SetParam1(TSQLParam* value) { values[0].param = value; }
    void SetParam2(TSQLParam* value) { values[1].param = value; }
    /// Caption and value format of the parameter of a value; nothing happens without one.
    void SetParamTexts(int n, std::string caption, std::string format);
    /// Creates, renames or deletes parameters, so that exactly the values flagged as parameters
    /// that the operator takes have one.
    void UpdateSQLParams();

    /// The query text of the nested query of a sub-query operator.
    const std::string& SubQuery() const { return Extras().subQuery; }
    TSQLOptions SubQueryOptions() const { return Extras().subQueryOptions; }
    void SetSubQuery(std::string text, TSQLOptions options = DefaultSQLOptions);
    /// The nested query, read from its text and kept; none without a text. EKQueryPanelError when
    /// the text can not be read.
    TKQuery* NestedQuery() const;
    /// Edits the sub-query through the services; false when nothing was changed.
    bool RunSubQueryEditor();

    /// Type of the operand: the operator's, or the field's.
    TFieldType GetExprType() const;
    bool IsSubQueryOperator() const;
    bool IsListOperator() const;
    /// Data for the application's own value editor.
    TStrings& GetCustomData() { return MakeExtras().customData; }
    const std::string& GetCaption() const { return Extras().caption; }
    void SetCaption(std::string value);
    const std::string& GetHint() const { return Extras().hint; }
    void SetHint(std::string value) { MakeExtras().hint = std::move(value); }

    /// False for a condition that was just added on the screen: unfinished until a value was
    /// entered.
    bool Entered() const { return entered; }
    void SetEntered(bool value);
    TUnfinished Unfinished() const;
    /// True when value n would stand in the statement without quotes.
    bool ValueIsBare(int n) const;

    void DoValueChange(int n);
    /// Tells the query what was changed; it raises OnConditionChange and OnChange.
    void DoConditionChange(int whatChanged);

private:
    friend class TKQuery;
    friend class TFilterRow;
    friend class TFilterBracket;
    friend class TQueryResult;
    friend class TConditionWriter;
    struct TValue {
        TSQLParam* param = nullptr;
        TValueText text;
        std::string caption;
        bool isParam = false;
    };
    /// What few conditions have.
    struct TExtras {
        std::string unknownFieldName;
        std::string unknownOperator; // while `op` is none or the placeholder
        std::string sqlText;
        std::string subQuery;
        TSQLOptions subQueryOptions = DefaultSQLOptions;
        std::unique_ptr<TKQuery> nested;
        std::unique_ptr<TSQLParam> parked[2]; // parameters while the row is out of the tree
        TStrings customData;
        std::string caption;
        std::string hint;

        TExtras();
        ~TExtras();
    };
    explicit TFilterCond(TKQuery& query);
    void CopyContents(const TFilterRow& source) override;
    unsigned Exchange(TFilterRow& twin) override;
    void TellExchanged(unsigned what) override;
    unsigned Differences(const TFilterCond& twin) const;
    bool ExchangeParam(int n, TFilterCond& twin);
    static size_t Slot(int n) {
        if (n != 1 && n != 2) throw std::out_of_range("a condition has the values 1 and 2");
        return static_cast<size_t>(n - 1);
    }
    const TExtras& Extras() const { return extras ? *extras : NoExtras(); }
    TExtras& MakeExtras() const;
    static const TExtras& NoExtras();
    bool WouldBeEmpty(int n) const;
    void ReferencesChanged();
    void HoldParams();
    void ReleaseReferences();
    void RestoreReferences();

    // what building reads stands together
    TDSField* field = nullptr;
    TDSOperator* op = nullptr;
    int unknownFieldID = -1; // while `field` is none or the placeholder
    bool entered = true;
    bool recognized = false;   // field and operator are there and no placeholders
    bool unknownField = false; // noted while references are released: a placeholder stood there
    bool unknownOp = false;
    mutable uint16_t formHint = 0; // where the writer keeps its template, most likely
    TValue values[2];
    mutable std::unique_ptr<TExtras> extras;
};

inline TFilterBracket* TFilterRow::AsBracket() {
    return IsBracket() ? static_cast<TFilterBracket*>(this) : nullptr;
}
inline const TFilterBracket* TFilterRow::AsBracket() const {
    return IsBracket() ? static_cast<const TFilterBracket*>(this) : nullptr;
}
inline TFilterCond* TFilterRow::AsCond() {
    return IsBracket() ? nullptr : static_cast<TFilterCond*>(this);
}
inline const TFilterCond* TFilterRow::AsCond() const {
    return IsBracket() ? nullptr : static_cast<const TFilterCond*>(this);
}

} // namespace tern7
