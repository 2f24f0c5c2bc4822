#include <tern7/ui/dialogs/result_fields_editor.h>

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <tern7/core/titles/default_titles.h>
#include <tern7/ui/dialogs/mnemonics.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

const TRFieldList& WithStructure(const TRFieldList& columns) {
    columns.Query()->RequireStruct();
    return columns;
}

/// What can not be read: the field in braces, or all from there on.
void SelectProblem(QLineEdit& line, const QModelIndex& expression) {
    const QVariant at = expression.data(TResultColumnsModel::problemRole);
    if (!at.isValid()) return;
    const auto from = std::min(at.toInt(), static_cast<int>(line.text().size()));
    const auto brace = line.text().indexOf('}', from);
    const auto end = brace < 0 ? line.text().size() : brace + 1;
    line.setSelection(from, static_cast<int>(end) - from);
}

} // namespace

T_dlgRFieldsEdit::T_dlgRFieldsEdit(const TRFieldList& list, const TStrings& titleLines,
                                   QWidget* parent)
    : QDialog(parent), titles(DefaultQueryTitles(), titleLines),
      ownDraft(std::make_shared<TResultFieldsDraft>(WithStructure(list))), draft(*ownDraft),
      columns(new TResultColumnsModel(
          draft, {Title("ttlFieldNmColName"), Title("ttlFieldExprColName")}, this)),
      sorted(new TSortedColumnsModel(
          draft, {Title("ttlFieldNmColName"), Title("ttlSortingColName")},
          {Title("ttlNotSorted"), Title("ttlAscending"), Title("ttlDescending")}, this)),
      fields(new TFieldTree(this)) {
    setWindowTitle(Title("ttlRFETitle"));
    auto* right = new QSplitter(Qt::Vertical, this);
    auto* across = new QSplitter(this);
    auto* columnsPart = new QWidget(this);
    auto* beside = new QHBoxLayout(columnsPart);
    beside->setContentsMargins({});
    across->addWidget(MakeFields());
    beside->addWidget(MakeJoinButtons());
    right->addWidget(MakeColumns());
    right->addWidget(MakeSorted());
    beside->addWidget(right, 1);
    across->addWidget(columnsPart);
    for (QSplitter* splitter : {right, across})
        splitter->setChildrenCollapsible(false);
    across->setStretchFactor(0, 2);
    across->setStretchFactor(1, 4);
    right->setStretchFactor(0, 3);
    right->setStretchFactor(1, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(across);
    layout->addWidget(MakeButtons());
    const int unit = fontMetrics().averageCharWidth();
    resize(unit * 120, fontMetrics().height() * 32);

    for (QWidget* widget : {static_cast<QWidget*>(fields->SearchField()),
                            static_cast<QWidget*>(fields->Tree()), static_cast<QWidget*>(function)})
        widget->installEventFilter(this);
    fields->Fill(list.Query()->RequireStruct());
    connect(columnsView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &T_dlgRFieldsEdit::ShowState);
    connect(sortedView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &T_dlgRFieldsEdit::ShowState);
    connect(columns, &TResultColumnsModel::entered, this, [this] {
        ShowSorted(CurrentSorted());
        ShowState();
    });
    // queued: the editor that was used closes first
    connect(
        sorted, &TSortedColumnsModel::entered, this, [this] { ShowSorted(CurrentSorted()); },
        Qt::QueuedConnection);
    ShowIcons();
    GiveMnemonics(*this);
    ShowColumns(0);
    ShowSorted(0);
    fields->SearchField()->setFocus();
}

/// The views live on for a while in the parts of the dialog, the draft does not.
T_dlgRFieldsEdit::~T_dlgRFieldsEdit() {
    columnsView->setModel(nullptr);
    sortedView->setModel(nullptr);
}

QString T_dlgRFieldsEdit::Title(std::string_view key) const {
    return ToQt(titles.Text(ResultFieldsEditorTitles, key));
}

/// In the order of TAggregate.
QStringList T_dlgRFieldsEdit::Aggregates() const {
    return {Title("ttlAsIs"),       Title("ttlSUMCaption"), Title("ttlCOUNTCaption"),
            Title("ttlMINCaption"), Title("ttlMAXCaption"), Title("ttlAVERAGECaption")};
}

void T_dlgRFieldsEdit::SetHelp(std::function<void()> answer) {
    onHelp = std::move(answer);
    help->setVisible(static_cast<bool>(onHelp));
}

void T_dlgRFieldsEdit::GoToColumn(int i) {
    columnsView->setFocus();
    columnsView->setCurrentIndex(columns->index(i, TResultColumnsModel::Expression));
}

// --- what the user does

std::vector<TDSField*> T_dlgRFieldsEdit::ChosenFields() const {
    std::vector<TDSField*> chosen;
    for (const int id : fields->Selected())
        if (TDSField* field = draft.Field(id)) chosen.push_back(field);
    return chosen;
}

void T_dlgRFieldsEdit::AddFields(TAggregate aggregate) {
    int at = CurrentColumn() < 0 ? draft.Count() : CurrentColumn() + 1;
    const std::vector<TDSField*> chosen = ChosenFields();
    if (chosen.empty()) return;
    EndEditing();
    for (TDSField* field : chosen)
        draft.AddField(at++, *field, aggregate);
    ShowColumns(at - 1);
    fields->SearchField()->selectAll(); // the next name is typed over this one
}

/// What is being typed in the grid counts, whatever is done next.
void T_dlgRFieldsEdit::EndEditing() {
    QWidget* used = focusWidget();
    if (used && used != columnsView && columnsView->isAncestorOf(used)) columnsView->setFocus();
}

/// Joins all chosen fields, one after the other; without a column they make one.
void T_dlgRFieldsEdit::Join(char operation) {
    EndEditing();
    std::vector<TDSField*> chosen = ChosenFields();
    int at = CurrentColumn();
    if (at < 0 && !chosen.empty()) {
        at = draft.AddField(0, *chosen.front(), TAggregate::None);
        chosen.erase(chosen.begin());
    }
    for (TDSField* field : chosen)
        draft.Join(at, operation, *field);
    ShowColumns(at);
    fields->SearchField()->selectAll();
}

void T_dlgRFieldsEdit::NewColumn() {
    const int at = CurrentColumn() < 0 ? draft.Count() : CurrentColumn() + 1;
    draft.AddEmpty(at, PlainTitle(FromQt(Title("ttlNewFldHint"))));
    ShowColumns(at);
    EditExpression(at);
}

void T_dlgRFieldsEdit::DeleteColumn() {
    const int at = CurrentColumn();
    if (at < 0) return;
    QString question = Title("ttlMgsDeleteField");
    question.replace("%s", ToQt(draft.Caption(at)));
    if (QMessageBox::question(this, windowTitle(), question) != QMessageBox::Yes) return;
    draft.Delete(at);
    ShowColumns(std::min(at, draft.Count() - 1));
}

void T_dlgRFieldsEdit::MoveColumn(int step) {
    const int from = CurrentColumn(), to = from + step;
    if (from < 0 || to < 0 || to >= draft.Count()) return;
    draft.Move(from, to);
    ShowColumns(to);
}

void T_dlgRFieldsEdit::SortColumn() {
    const int at = CurrentColumn();
    if (at < 0) return;
    if (draft.Sorting(at) == TSortingType::stNoSort)
        draft.SetSorting(at, TSortingType::stAscending);
    const std::vector<int> order = draft.Sorted();
    ShowSorted(static_cast<int>(std::find(order.begin(), order.end(), at) - order.begin()));
}

void T_dlgRFieldsEdit::Unsort() {
    const int at = CurrentSorted();
    if (at < 0) return;
    draft.SetSorting(draft.Sorted().at(static_cast<size_t>(at)), TSortingType::stNoSort);
    ShowSorted(at);
}

void T_dlgRFieldsEdit::MoveSorted(int step) {
    const int from = CurrentSorted(), to = from + step;
    if (from < 0 || to < 0 || to >= sorted->rowCount()) return;
    draft.MoveSorted(from, to);
    ShowSorted(to);
}

void T_dlgRFieldsEdit::SetFunction(int aggregate) {
    const int at = CurrentColumn();
    if (at < 0) return;
    draft.SetAggregate(at, static_cast<TAggregate>(aggregate));
    ShowColumns(at);
}

void T_dlgRFieldsEdit::accept() {
    buttons->setFocus(); // what is being edited counts
    const int unfinished = draft.FirstUnfinished();
    if (unfinished < 0) return QDialog::accept();
    EditExpression(unfinished);
}

// --- what is shown

int T_dlgRFieldsEdit::CurrentColumn() const {
    return columnsView->currentIndex().row();
}

int T_dlgRFieldsEdit::CurrentSorted() const {
    return sortedView->currentIndex().row();
}

void T_dlgRFieldsEdit::ShowColumns(int current) {
    const int column = std::max(columnsView->currentIndex().column(), 0);
    columns->Reset();
    columnsView->setCurrentIndex(columns->index(current, column));
    ShowSorted(CurrentSorted());
}

void T_dlgRFieldsEdit::ShowSorted(int current) {
    sorted->Reset();
    sortedView->setCurrentIndex(
        sorted->index(std::min(current, sorted->rowCount() - 1), TSortedColumnsModel::Sorting));
    ShowState();
}

/// Which buttons would do something, the function of the current column, what is wrong with it.
void T_dlgRFieldsEdit::ShowState() {
    const int at = CurrentColumn(), rank = CurrentSorted();
    const bool chosen = !fields->Selected().empty();
    const bool readable = at < 0 || !draft.Problem(at);
    const QWidget* const used = focusWidget();
    add->setEnabled(chosen);
    create->setEnabled(chosen);
    for (QToolButton* button : joins)
        button->setEnabled(chosen && readable);
    remove->setEnabled(at >= 0);
    up->setEnabled(at > 0);
    down->setEnabled(at >= 0 && at + 1 < draft.Count());
    sort->setEnabled(at >= 0 && draft.Sorting(at) == TSortingType::stNoSort);
    sortedUp->setEnabled(rank > 0);
    sortedDown->setEnabled(rank >= 0 && rank + 1 < sorted->rowCount());
    function->setEnabled(at >= 0 && draft.CanAggregate(at));
    // what can do no more hands the keyboard on to its grid
    if (used && !used->isEnabled())
        (used == sortedUp || used == sortedDown ? sortedView : columnsView)->setFocus();
    function->setCurrentIndex(at < 0 ? 0 : static_cast<int>(draft.Aggregate(at)));
    QString wrong;
    if (!readable)
        wrong = draft.Problem(at)->Text();
    else if (at >= 0 && at == draft.FirstUnfinished())
        wrong = tr("This column has no expression yet");
    else if (at >= 0 && draft.LacksFields(at))
        wrong = tr("There is no field in it: fields stand in braces, {Name}");
    problem->setText(wrong);
    // a label takes the direction from its text
    const Qt::Alignment side =
        layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    problem->setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
    problem->setVisible(!wrong.isEmpty());
}

void T_dlgRFieldsEdit::EditExpression(int row) {
    const QModelIndex index = columns->index(row, TResultColumnsModel::Expression);
    columnsView->setFocus();
    columnsView->setCurrentIndex(index);
    columnsView->edit(index);
    if (auto* line = qobject_cast<QLineEdit*>(focusWidget())) SelectProblem(*line, index);
    ShowState();
}

/// Enter in an expression that can not be read: the editor opens again, once it is closed, with the
/// text as it was typed.
void T_dlgRFieldsEdit::EditAgain(int row) {
    if (row < 0 || !draft.Problem(row)) return;
    QMetaObject::invokeMethod(
        this, [this, row] { EditExpression(row); }, Qt::QueuedConnection);
}

// --- events

void T_dlgRFieldsEdit::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    const QEvent::Type type = event->type();
    if (type == QEvent::PaletteChange || type == QEvent::LayoutDirectionChange) ShowIcons();
}

} // namespace tern7
