// What the result fields editor is made of.

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <tern7/ui/dialogs/result_fields_editor.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

/// A hint with its keys, which are written from left to right everywhere.
QString KeyHint(const QString& hint, const char* keys) {
    const QString shown =
        QKeySequence(QString::fromLatin1(keys)).toString(QKeySequence::NativeText);
    return QStringLiteral("%1 (\u2066%2\u2069)").arg(hint, shown);
}

} // namespace

QWidget* T_dlgRFieldsEdit::MakeFields() {
    auto* part = new QWidget(this);
    auto* caption = new QLabel(Title("ttlFields"), part);
    caption->setBuddy(fields->Tree());
    fields->Tree()->setAccessibleName(ToQt(PlainTitle(FromQt(caption->text()))));
    add = new QPushButton(Title("ttlAddBtnCaption"), part);
    add->setToolTip(Title("ttlAddBtnHint"));
    auto* menu = new QMenu(add);
    const QStringList names = Aggregates();
    for (int i = 0; i < names.size(); ++i)
        menu->addAction(names[i], this, [this, i] { AddFields(static_cast<TAggregate>(i)); });
    add->setMenu(menu);
    add->setMinimumWidth(add->sizeHint().width() + 2 * fontMetrics().averageCharWidth());
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    layout->addWidget(caption);
    layout->addWidget(fields);
    layout->addWidget(add, 0, Qt::AlignLeading);
    connect(fields, &TFieldTree::activated, this, &T_dlgRFieldsEdit::CreateColumn);
    connect(fields, &TFieldTree::selectionChanged, this, &T_dlgRFieldsEdit::ShowState);
    return part;
}

/// The keys are handled by the dialog (DialogKey and what it asks).
QToolButton* T_dlgRFieldsEdit::MakeTool(TDialogIcon icon, const QString& hint, const char* keys,
                                        void (T_dlgRFieldsEdit::*action)()) {
    auto* button = new QToolButton(this);
    button->setToolTip(KeyHint(hint, keys));
    button->setAccessibleName(hint);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    if (action) connect(button, &QToolButton::clicked, this, action);
    tools.push_back({button, icon});
    return button;
}

QWidget* T_dlgRFieldsEdit::MakeJoinButtons() {
    auto* part = new QWidget(this);
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    create = MakeTool(TDialogIcon::Create, Title("ttlMakeFldHint"), "Return",
                      &T_dlgRFieldsEdit::CreateColumn);
    layout->addStretch(1);
    layout->addWidget(create);
    layout->addSpacing(layout->spacing() * 2);
    const struct {
        TDialogIcon icon;
        const char* key;
        char operation;
        const char* keys;
    } operations[] = {{TDialogIcon::Plus, "ttlAddRFldHint", '+', "Ctrl++"},
                      {TDialogIcon::Minus, "ttlSubRFldHint", '-', "Ctrl+-"},
                      {TDialogIcon::Times, "ttlMulRFldHint", '*', "Ctrl+*"},
                      {TDialogIcon::Divide, "ttlDivRFldHint", '/', "Ctrl+/"}};
    for (const auto& each : operations) {
        QToolButton* button = MakeTool(each.icon, Title(each.key), each.keys, nullptr);
        connect(button, &QToolButton::clicked, this,
                [this, operation = each.operation] { Join(operation); });
        joins.push_back(button);
        layout->addWidget(button);
    }
    layout->addStretch(2);
    return part;
}

QTableView* T_dlgRFieldsEdit::MakeView(TDraftModel& model, const QString& name, int wideColumn) {
    auto* view = new QTableView(this);
    view->setModel(&model);
    view->setAccessibleName(name);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed);
    view->setTabKeyNavigation(false);
    view->setWordWrap(false);
    view->setShowGrid(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 8);
    view->horizontalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    view->horizontalHeader()->setSectionResizeMode(wideColumn, QHeaderView::Stretch);
    view->horizontalHeader()->resizeSection(1 - wideColumn,
                                            view->fontMetrics().averageCharWidth() * 24);
    view->installEventFilter(this);
    return view;
}

QWidget* T_dlgRFieldsEdit::MakeColumns() {
    auto* part = new QWidget(this);
    columnsView = MakeView(*columns, Title("ttlResFields"), TResultColumnsModel::Expression);
    auto* delegate = new TExpressionDelegate(columnsView);
    columnsView->setItemDelegateForColumn(TResultColumnsModel::Expression, delegate);
    connect(delegate, &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget*, QAbstractItemDelegate::EndEditHint hint) {
                if (hint == QAbstractItemDelegate::SubmitModelCache) EditAgain(CurrentColumn());
            });
    function = new QComboBox(part);
    function->addItems(Aggregates());
    function->setAccessibleName(tr("Function"));
    function->setToolTip(tr("Function over the rows"));
    connect(function, &QComboBox::activated, this, &T_dlgRFieldsEdit::SetFunction);
    problem = new QLabel(part);
    problem->setWordWrap(true);
    problem->setTextFormat(Qt::PlainText);
    QFont bold = problem->font();
    bold.setBold(true);
    problem->setFont(bold);
    problem->hide();
    auto* caption = new QLabel(Title("ttlResFields"), part);
    caption->setBuddy(columnsView);
    auto* functionCaption = new QLabel(tr("Function"), part);
    functionCaption->setBuddy(function);
    auto* head = new QHBoxLayout;
    head->addWidget(caption);
    head->addStretch();
    head->addWidget(functionCaption);
    head->addWidget(function);
    head->addWidget(
        MakeTool(TDialogIcon::New, Title("ttlNewFldHint"), "Ins", &T_dlgRFieldsEdit::NewColumn));
    remove = MakeTool(TDialogIcon::Delete, Title("ttlDelFldHint"), "Del",
                      &T_dlgRFieldsEdit::DeleteColumn);
    up = MakeTool(TDialogIcon::Up, tr("Move up"), "Ctrl+Up", &T_dlgRFieldsEdit::ColumnUp);
    down = MakeTool(TDialogIcon::Down, tr("Move down"), "Ctrl+Down", &T_dlgRFieldsEdit::ColumnDown);
    for (QToolButton* button : {remove, up, down})
        head->addWidget(button);
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    layout->addLayout(head);
    layout->addWidget(columnsView);
    layout->addWidget(problem);
    return part;
}

QWidget* T_dlgRFieldsEdit::MakeSorted() {
    auto* part = new QWidget(this);
    sortedView = MakeView(*sorted, Title("ttlSortCaption"), TSortedColumnsModel::Caption);
    sortedView->setEditTriggers(sortedView->editTriggers() | QAbstractItemView::SelectedClicked);
    sortedView->setItemDelegateForColumn(TSortedColumnsModel::Sorting,
                                         new TSortingDelegate(sortedView));
    justSorting = new QCheckBox(Title("ttlJustSorting"), part);
    justSorting->setChecked(draft.JustSorting());
    connect(justSorting, &QCheckBox::toggled, this, [this](bool on) { draft.SetJustSorting(on); });
    auto* caption = new QLabel(Title("ttlSortCaption"), part);
    caption->setBuddy(sortedView);
    sort = MakeTool(TDialogIcon::Sort, Title("ttlSortRFldHint"), "Ctrl+S",
                    &T_dlgRFieldsEdit::SortColumn);
    sortedUp = MakeTool(TDialogIcon::Up, tr("Move up"), "Ctrl+Up", &T_dlgRFieldsEdit::SortedUp);
    sortedDown =
        MakeTool(TDialogIcon::Down, tr("Move down"), "Ctrl+Down", &T_dlgRFieldsEdit::SortedDown);
    auto* head = new QHBoxLayout;
    head->addWidget(caption);
    head->addStretch();
    head->addWidget(justSorting);
    for (QToolButton* button : {sort, sortedUp, sortedDown})
        head->addWidget(button);
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    layout->addLayout(head);
    layout->addWidget(sortedView);
    return part;
}

QWidget* T_dlgRFieldsEdit::MakeButtons() {
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(Title("ttlOkBtnCaption"));
    buttons->button(QDialogButtonBox::Ok)
        ->setToolTip(KeyHint(Title("ttlOkBtnCaption"), "Ctrl+Return"));
    buttons->button(QDialogButtonBox::Cancel)->setText(Title("ttlCancelBtnCaption"));
    help = buttons->addButton(Title("ttlHelpBtnCaption"), QDialogButtonBox::HelpRole);
    help->hide();
    connect(buttons, &QDialogButtonBox::accepted, this, &T_dlgRFieldsEdit::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &T_dlgRFieldsEdit::reject);
    connect(help, &QPushButton::clicked, this, [this] {
        if (onHelp) onHelp();
    });
    return buttons;
}

void T_dlgRFieldsEdit::ShowIcons() {
    for (const TTool& tool : tools)
        tool.button->setIcon(DialogIcon(tool.icon, palette(), layoutDirection()));
}

} // namespace tern7
