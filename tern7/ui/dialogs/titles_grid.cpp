#include <tern7/ui/dialogs/titles_grid.h>

#include <algorithm>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/titles/title_sections.h>
#include <tern7/ui/support/text.h>
#include <tern7/ui/support/tool_tip_text.h>

namespace tern7 {

namespace {

QTableWidgetItem* TextItem(std::string_view text, bool editable) {
    auto* item = new QTableWidgetItem(ToQt(text));
    if (!editable) item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    item->setToolTip(ToolTipText(item->text()));
    return item;
}

/// Each text is written as its language is, whatever the direction of the dialog: "&" and "@" would
/// change places otherwise.
class TTitleDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool fromRight = option->direction == Qt::RightToLeft;
        const Qt::Alignment side = fromRight ? Qt::AlignRight : Qt::AlignLeft;
        option->displayAlignment = side | Qt::AlignAbsolute | Qt::AlignVCenter;
        option->direction = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    }
};

} // namespace

TKTitlesGrid::TKTitlesGrid(QWidget* parent) : QTableWidget(0, 2, parent) {
    setHorizontalHeaderLabels({tr("English"), tr("Translated")});
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setItemDelegate(new TTitleDelegate(this));
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                    QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    connect(this, &QTableWidget::cellChanged, this, &TKTitlesGrid::edited);
}

void TKTitlesGrid::FillGrid(const TStrings& defaults, const TStrings& titles) {
    const QSignalBlocker quiet(this);
    const TKTitleSections texts(titles);
    keys.clear();
    setRowCount(0);
    for (const std::string& line : defaults) {
        const std::string_view key = LineName(line);
        if (key.empty()) continue;
        const int row = rowCount();
        keys.emplace_back(key);
        insertRow(row);
        setItem(row, English, TextItem(LineValue(line), false));
        setItem(row, Translated, TextItem(texts.Text(key), true));
        item(row, Translated)->setData(Qt::AccessibleDescriptionRole, item(row, English)->text());
    }
    setCurrentCell(0, Translated);
    AdjustGrid();
}

void TKTitlesGrid::AdjustGrid() {
    const int line = showGrid() ? 1 : 0;
    const int width = (viewport()->width() - line * columnCount()) / 2;
    setColumnWidth(English, width);
    setColumnWidth(Translated, width);
}

void TKTitlesGrid::AppendLines(TStrings& lines) const {
    for (int row = 0; row < rowCount(); ++row) {
        QString text = item(row, Translated)->text();
        text.replace(QChar(u'\n'), QChar(u' ')).remove(QChar(u'\r'));
        lines.push_back(keys[static_cast<size_t>(row)] + "=" + FromQt(text));
    }
}

/// Enter and Tab in a text go on to the next one.
void TKTitlesGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableWidget::closeEditor(editor, hint);
    const bool byEnter = hint == QAbstractItemDelegate::SubmitModelCache;
    if (byEnter && currentRow() + 1 < rowCount()) setCurrentCell(currentRow() + 1, Translated);
}

QModelIndex TKTitlesGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action != MoveNext && action != MovePrevious)
        return QTableWidget::moveCursor(action, modifiers);
    const int row = currentRow() + (action == MoveNext ? 1 : -1);
    return model()->index(std::clamp(row, 0, rowCount() - 1), Translated);
}

/// Several lines of the clipboard fill several rows.
void TKTitlesGrid::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Paste) && state() != EditingState)
        Paste();
    else if (enter && state() != EditingState && currentColumn() == Translated)
        editItem(currentItem());
    else if (event->key() == Qt::Key_Delete && currentColumn() == Translated && currentItem())
        currentItem()->setText(QString());
    else
        QTableWidget::keyPressEvent(event);
}

void TKTitlesGrid::Paste() {
    QString text = QGuiApplication::clipboard()->text();
    if (text.endsWith('\n')) text.chop(1);
    int row = currentRow();
    if (row < 0 || text.isEmpty()) return;
    for (const QString& each : text.split('\n')) {
        if (row >= rowCount()) return;
        item(row++, Translated)->setText(each.trimmed());
    }
}

void TKTitlesGrid::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    AdjustGrid();
}

} // namespace tern7
