#include <tern7/ui/dialogs/result_fields_draft.h>

#include <algorithm>
#include <unordered_set>

#include <QCoreApplication>

#include <tern7/core/query/row_text.h>
#include <tern7/ui/dialogs/field_names.h>
#include <tern7/ui/support/plain_line.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

TResultFieldsDraft::TResultFieldsDraft(const TRFieldList& source)
    : query(source.DbStruct()), list(query.QResult().ResultFields()) {
    query.SetSQLOptions(source.Query()->SQLOptions());
    list.Assign(source);
    for (int i = 0; i < list.GetCount(); ++i)
        rows.push_back({list[i], source[i], false, {}, {}});
}

// --- expressions

namespace {

/// What would change the statement around the column, or how it looks.
void RequireWhole(const std::string& text) {
    if (const std::optional<size_t> at = UnclosedAt(text))
        throw EKExpressionError(
            FromQt(QCoreApplication::translate("tern7::T_dlgRFieldsEdit",
                                               "A bracket or quote has no counterpart")),
            *at);
    if (const std::optional<size_t> at = CommentOrEndAt(text))
        throw EKExpressionError(FromQt(QCoreApplication::translate(
                                    "tern7::T_dlgRFieldsEdit",
                                    "A comment or semicolon can not stand in an expression")),
                                *at);
    const QString shown = ToQt(text);
    const auto turning = std::find_if(shown.begin(), shown.end(), TurnsDirection);
    if (turning != shown.end())
        throw EKExpressionError(
            FromQt(QCoreApplication::translate(
                "tern7::T_dlgRFieldsEdit",
                "An invisible character that turns the direction of text can not stand in an "
                "expression")),
            FromQt(shown.left(turning - shown.begin())).size());
}

/// What stands in the braces that begin at `position`; inside, "}" is doubled.
std::string NameInBraces(std::string_view text, size_t position) {
    std::string name;
    for (size_t i = position + 1; i < text.size(); ++i) {
        if (text[i] == '}' && (++i >= text.size() || text[i] != '}')) break;
        name += text[i];
    }
    return name;
}

} // namespace

std::string TResultFieldsDraft::Expression(int i) const {
    return Row(i).problem ? Row(i).typed : Column(i).GetExpression();
}

int TResultFieldsDraft::FirstUnfinished() const {
    for (int i = 0; i < Count(); ++i)
        if (Row(i).problem || Trim(Column(i).Formula()).empty()) return i;
    return -1;
}

bool TResultFieldsDraft::LacksFields(int i) const {
    if (Row(i).problem || Column(i).GetDSFieldCount() > 0) return false;
    return HoldsWords(SplitAggregate(Column(i).Formula()).inner);
}

bool TResultFieldsDraft::SetExpression(int i, const std::string& text) {
    TRow& row = Row(i);
    if (text == Expression(i)) return !row.problem;
    try {
        // an unchanged formula is not read again, and a text that is the old one again changes none
        if (text != row.column->GetExpression()) {
            RequireWhole(text);
            row.column->ProcessExpression(text);
            row.changed = true;
        }
        row.problem.reset();
        row.typed.clear();
        return true;
    } catch (const EKExpressionError& error) {
        row.problem = TProblem{error.what(), error.Position(), HintAt(text, error.Position())};
        row.typed = text;
        return false;
    } catch (const EKQueryPanelError& error) { // the structure is gone
        row.problem = TProblem{error.what(), 0};
        row.typed = text;
        return false;
    }
}

QString TResultFieldsDraft::TProblem::Text() const {
    return hint.isEmpty() ? ToQt(message) : ToQt(message) + '\n' + hint;
}

QString TResultFieldsDraft::HintAt(const std::string& text, size_t position) {
    constexpr size_t most = 4;
    const TKCustomDBStructure* structure = query.DbStruct();
    const bool isName = position < text.size() && text[position] == '{' &&
                        text.find('}', position) != std::string::npos;
    if (!structure || !isName) return {};
    const std::string name = NameInBraces(text, position);
    std::vector<TDSField*> fields = FieldsOfName(*structure, name);
    const bool isAmbiguous = fields.size() > 1;
    if (!isAmbiguous) fields = FieldsLikeName(*structure, name, most);
    if (fields.empty()) return {};
    QStringList names;
    for (size_t i = 0; i < fields.size() && i < most; ++i) // each in its own direction
        names << QStringLiteral("\u2068%1\u2069").arg(ToQt(Operand(*fields[i])));
    if (fields.size() > most) names << QStringLiteral("...");
    const QString listed = names.join(QStringLiteral(", "));
    return isAmbiguous
               ? QCoreApplication::translate("tern7::T_dlgRFieldsEdit",
                                             "More than one field has this name: %1")
                     .arg(listed)
               : QCoreApplication::translate("tern7::T_dlgRFieldsEdit", "Perhaps it is meant: %1")
                     .arg(listed);
}

std::string TResultFieldsDraft::Operand(TDSField& field) {
    const std::unique_ptr<TResultField> scratch = list.CreateRField();
    scratch->SetFields({&field}, "@1");
    return scratch->GetExpression();
}

bool TResultFieldsDraft::Join(int i, char operation, TDSField& field) {
    if (Row(i).problem) return false;
    const std::string operand = Operand(field);
    // what stands behind the name may be joined by a weaker sign
    const bool loose = field.Kind() == TKFieldKind::kfkVirtual;
    const std::string shown = loose ? "(" + operand + ")" : operand;
    const bool first = Trim(Column(i).Formula()).empty();
    return SetExpression(i, JoinedBy(operation, Expression(i), first ? operand : shown));
}

TAggregate TResultFieldsDraft::Aggregate(int i) const {
    return SplitAggregate(Expression(i)).aggregate;
}

bool TResultFieldsDraft::CanAggregate(int i) const {
    return !Row(i).problem && !Trim(Column(i).Formula()).empty() && !HoldsAggregate(Expression(i));
}

bool TResultFieldsDraft::SetAggregate(int i, TAggregate aggregate) {
    return CanAggregate(i) && SetExpression(i, WithAggregate(Expression(i), aggregate));
}

// --- columns

int TResultFieldsDraft::Insert(int index, TResultField* column) {
    rows.insert(rows.begin() + index, {column, nullptr, true, {}, {}});
    return index;
}

int TResultFieldsDraft::AddField(int index, TDSField& field, TAggregate aggregate) {
    const int at = Insert(index, list.Insert(index, TKRowTexts().FieldText(field), {&field}));
    if (aggregate != TAggregate::None) SetAggregate(at, aggregate);
    return at;
}

int TResultFieldsDraft::AddEmpty(int index, const std::string& caption) {
    return Insert(index, list.Insert(index, list.GetUniqCaption(caption), {}));
}

void TResultFieldsDraft::SetCaption(int i, const std::string& caption) {
    if (caption == Caption(i)) return;
    Column(i).SetCaption(caption);
    Row(i).changed = true;
}

void TResultFieldsDraft::Delete(int i) {
    list.Delete(i);
    rows.erase(rows.begin() + i);
}

void TResultFieldsDraft::Move(int from, int to) {
    list.Move(from, to);
    TRow row = std::move(Row(from));
    rows.erase(rows.begin() + from);
    rows.insert(rows.begin() + to, std::move(row));
}

// --- sorting

void TResultFieldsDraft::SetSorting(int i, TSortingType sorting) {
    if (sorting == Sorting(i)) return;
    const bool newlySorted = Sorting(i) == TSortingType::stNoSort;
    std::vector<int> order = Sorted();
    Column(i).SetSorting(sorting);
    Row(i).changed = true;
    if (newlySorted) {
        order.push_back(i); // a rank that it had before does not count
        Rank(order);
    }
}

std::vector<int> TResultFieldsDraft::Sorted() const {
    std::vector<int> order;
    for (int i = 0; i < Count(); ++i)
        if (Sorting(i) != TSortingType::stNoSort) order.push_back(i);
    std::stable_sort(order.begin(), order.end(), [this](int a, int b) {
        return Column(a).SortOrder() < Column(b).SortOrder();
    });
    return order;
}

void TResultFieldsDraft::Rank(const std::vector<int>& order) {
    for (size_t rank = 0; rank < order.size(); ++rank) {
        const int wanted = static_cast<int>(rank) + 1;
        if (Column(order[rank]).SortOrder() == wanted) continue;
        Column(order[rank]).SetSortOrder(wanted);
        Row(order[rank]).changed = true;
    }
}

void TResultFieldsDraft::MoveSorted(int from, int to) {
    std::vector<int> order = Sorted();
    const int moved = order.at(static_cast<size_t>(from));
    order.erase(order.begin() + from);
    order.insert(order.begin() + to, moved);
    Rank(order);
}

// --- the result

void TResultFieldsDraft::Apply(TRFieldList& target) const {
    const TKQueryUpdate update(*target.Query());
    // the list may have been changed behind an open dialog: a column that went comes as a new one
    std::unordered_set<const TResultField*> present, kept;
    for (const auto& column : target)
        present.insert(column.get());
    for (const TRow& row : rows)
        if (present.contains(row.origin)) kept.insert(row.origin);
    for (int i = target.GetCount() - 1; i >= 0; --i)
        if (!kept.contains(target[i])) target.Delete(i);
    for (int i = 0; i < Count(); ++i) {
        const TRow& row = Row(i);
        const bool isNew = !kept.contains(row.origin);
        if (isNew)
            target.New(i);
        else if (target[i] != row.origin)
            target.Move(target.IndexOf(row.origin), i);
        if (isNew || row.changed) target[i]->Assign(*row.column);
    }
    target.SetJustSorting(JustSorting());
}

} // namespace tern7
