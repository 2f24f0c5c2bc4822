#include <tern7/ui/dialogs/field_tree.h>

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <tern7/core/query/row_text.h>
#include <tern7/core/structure/offered_fields.h>
#include <tern7/ui/controls/text_search.h>
#include <tern7/ui/support/text.h>
#include <tern7/ui/support/tool_tip_text.h>

namespace tern7 {

namespace {

constexpr int fieldRole = Qt::UserRole;

bool IsGroup(const QTreeWidgetItem& item) {
    return !item.data(0, fieldRole).isValid();
}

template <class Visit>
void ForEachField(const QTreeWidget& tree, const Visit& visit) {
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        QTreeWidgetItem* top = tree.topLevelItem(i);
        if (!IsGroup(*top)) visit(*top);
        for (int k = 0; k < top->childCount(); ++k)
            visit(*top->child(k));
    }
}

} // namespace

TFieldTree::TFieldTree(QWidget* parent)
    : QWidget(parent), search(new QLineEdit(this)), tree(new QTreeWidget(this)),
      nothing(new QLabel(tr("No field has this name"), tree)) {
    search->setPlaceholderText(tr("Search"));
    search->setAccessibleName(tr("Search"));
    search->setClearButtonEnabled(true);
    search->installEventFilter(this);
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setExpandsOnDoubleClick(true);
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setWordWrap(true);
    nothing->hide();
    auto* inTree = new QVBoxLayout(tree->viewport());
    inTree->addWidget(nothing);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(search);
    layout->addWidget(tree);
    setFocusProxy(tree);
    connect(search, &QLineEdit::textChanged, this, &TFieldTree::Search);
    connect(tree, &QTreeWidget::itemSelectionChanged, this, &TFieldTree::selectionChanged);
    connect(tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item && !IsGroup(*item)) emit activated();
    });
}

void TFieldTree::Fill(const TKCustomDBStructure& source) {
    const QSignalBlocker quiet(tree);
    tree->clear();
    const TKRowTexts texts;
    QTreeWidgetItem* group = nullptr;
    std::string_view groupName;
    for (const TOfferedField& offered : OfferedFields(source, TFieldUse::Result)) {
        if (offered.group != groupName || (!group && !offered.group.empty())) {
            groupName = offered.group;
            group = nullptr;
            if (!groupName.empty()) {
                group = new QTreeWidgetItem(tree, {ToQt(groupName)});
                group->setExpanded(false);
            }
        }
        auto* item = group ? new QTreeWidgetItem(group) : new QTreeWidgetItem(tree);
        item->setText(0,
                      ToQt(group ? offered.field->DisplayName() : texts.FieldText(*offered.field)));
        item->setToolTip(0, ToolTipText(ToQt(texts.FieldText(*offered.field))));
        item->setData(0, fieldRole, offered.field->ID());
    }
    if (tree->topLevelItemCount() == 1) tree->topLevelItem(0)->setExpanded(true);
    Search(search->text());
}

std::vector<int> TFieldTree::Selected() const {
    std::vector<int> fields;
    ForEachField(*tree, [&](const QTreeWidgetItem& item) {
        const QTreeWidgetItem* group = item.parent();
        const bool meant = item.isSelected() || (group && group->isSelected());
        if (meant && !item.isHidden()) fields.push_back(item.data(0, fieldRole).toInt());
    });
    return fields;
}

bool TFieldTree::IsAtField() const {
    const QTreeWidgetItem* current = tree->currentItem();
    return current && !IsGroup(*current);
}

void TFieldTree::Search(const QString& text) {
    const bool all = TTextSearch(text).IsEmpty();
    int hits = 0;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        hits += ShowHits(*tree->topLevelItem(i), text, all);
    nothing->setVisible(hits == 0 && !all);
    if (all) return;
    // Enter takes the first hit
    tree->clearSelection();
    tree->setCurrentItem(nullptr);
    bool found = false;
    ForEachField(*tree, [&](QTreeWidgetItem& item) {
        if (found || item.isHidden()) return;
        found = true;
        tree->setCurrentItem(&item);
    });
}

int TFieldTree::ShowHits(QTreeWidgetItem& item, const QString& text, bool all) const {
    const TTextSearch wanted(text);
    if (!IsGroup(item)) {
        const bool hit = wanted.Finds(item.text(0));
        item.setHidden(!hit);
        return hit ? 1 : 0;
    }
    int hits = 0;
    for (int i = 0; i < item.childCount(); ++i) {
        QTreeWidgetItem& field = *item.child(i);
        const bool hit = wanted.Finds(field.text(0) + ' ' + item.text(0));
        field.setHidden(!hit);
        hits += hit ? 1 : 0;
    }
    item.setHidden(hits == 0 && !all);
    if (!all) item.setExpanded(true);
    return hits;
}

/// From the search field: the arrows move in the tree, Enter takes what is current there.
bool TFieldTree::eventFilter(QObject* watched, QEvent* event) {
    if (watched != search || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
        tree->setFocus();
        if (!tree->currentItem() && tree->topLevelItemCount() > 0)
            tree->setCurrentItem(tree->topLevelItem(0));
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    if (!Selected().empty()) emit activated();
    return true;
}

} // namespace tern7
