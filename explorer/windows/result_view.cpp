#include "result_view.h"

#include <algorithm>

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QStyle>
#include <QStyleOptionHeader>
#include <QTableView>
#include <QVBoxLayout>

#include <tern7/core/corekit/files.h>
#include <tern7/sql/csv_row.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

constexpr int widestColumn = 360;

QString Seconds(qint64 milliseconds) {
    return QLocale().toString(static_cast<double>(milliseconds) / 1000, 'f',
                              milliseconds < 10'000 ? 2 : 0);
}

/// Its arrow points up where small values come first, as in tables elsewhere. Two styles of Qt draw
/// it the other way round.
class TResultHeader : public QHeaderView {
public:
    explicit TResultHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
        QHeaderView::initStyleOptionForIndex(option, section);
        const QString name = style()->name();
        if (name != QLatin1String("fusion") && name != QLatin1String("windows")) return;
        if (option->sortIndicator == QStyleOptionHeader::SortDown)
            option->sortIndicator = QStyleOptionHeader::SortUp;
        else if (option->sortIndicator == QStyleOptionHeader::SortUp)
            option->sortIndicator = QStyleOptionHeader::SortDown;
    }
};

QString TabbedText(QString text) {
    return text.replace(u'\t', u' ').replace(u'\n', u' ').replace(u'\r', u' ');
}

} // namespace

TResultView::TResultView(QWidget* parent)
    : QWidget(parent), messages(new TMessageBar(this)), table(new QTableView), summary(new QLabel),
      progress(new QProgressBar), model(new TResultModel(this)) {
    table->setHorizontalHeader(new TResultHeader(table));
    table->setModel(model);
    table->setAlternatingRowColors(true);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setWordWrap(false);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->horizontalHeader()->setSectionsClickable(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->setAccessibleName(tr("Result rows"));
    FitRows();
    connect(table->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &TResultView::headerClicked);
    progress->setRange(0, 0);
    progress->setMaximumWidth(120);
    progress->setMaximumHeight(summary->sizeHint().height());
    progress->setTextVisible(false);
    progress->hide();
    Clear();

    auto* below = new QHBoxLayout;
    below->addWidget(summary, 1);
    below->addWidget(progress);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(messages);
    column->addWidget(table, 1);
    column->addLayout(below);
    clock.setInterval(200);
    connect(&clock, &QTimer::timeout, this, &TResultView::ShowCount);
}

void TResultView::Attach(TQueryRunner& runner) {
    connect(&runner, &TQueryRunner::started, this, &TResultView::RunStarted);
    connect(&runner, &TQueryRunner::columnsRead, this, [this](std::vector<TKResultColumn> columns) {
        for (size_t i = 0; i < columns.size() && captions.size() == columns.size(); ++i)
            columns[i].name = captions[i];
        const std::vector<int> widths = WidthsFor(columns);
        model->SetColumns(columns);
        shown = asked;
        rowsAreOfRun = true;
        CompareWith(present);
        FitColumns();
        for (size_t i = 0; i < widths.size(); ++i)
            table->setColumnWidth(static_cast<int>(i), widths[i]);
        fitted = !widths.empty();
    });
    connect(&runner, &TQueryRunner::rowsRead, this,
            [this](const std::shared_ptr<TResultRows>& rows) {
                received += static_cast<int>(rows->size());
                model->Append(std::move(*rows));
                if (!fitted) FitColumns();
                fitted = true;
                ShowCount();
            });
    connect(&runner, &TQueryRunner::finished, this, [this](bool truncated) {
        RunEnded([truncated, rows = model->rowCount(), time = sinceStart.elapsed()] {
            const QString count = tr("%n row(s)", nullptr, rows);
            return tr("%1, %2 s")
                .arg(truncated ? tr("the first %1; there are more").arg(count) : count,
                     Seconds(time));
        });
    });
    connect(&runner, &TQueryRunner::failed, this,
            [this] { RunEnded([] { return tr("The database refused the query"); }); });
    connect(&runner, &TQueryRunner::cancelled, this, [this] {
        RunEnded([time = sinceStart.elapsed()] {
            return tr("Cancelled after %1 s").arg(Seconds(time));
        });
    });
}

void TResultView::RunStarted() {
    messages->Clear();
    received = 0;
    rowsAreOfRun = false;
    sinceStart.start();
    clock.start();
    progress->show();
    Summarise([] { return tr("Running..."); });
}

void TResultView::RunEnded(TWording words) {
    clock.stop();
    progress->hide();
    if (rowsAreOfRun) rowWords = words;
    Summarise(std::move(words));
    emit runEnded();
}

void TResultView::ShowCount() {
    if (!clock.isActive()) return;
    Summarise([rows = received, time = sinceStart.elapsed()] {
        return tr("Running... %1, %2 s").arg(tr("%n row(s)", nullptr, rows), Seconds(time));
    });
}

void TResultView::Summarise(TWording words) {
    summaryWords = std::move(words);
    ShowSummary();
}

void TResultView::ShowSummary() {
    const QString words = summaryWords();
    const bool marked = outdated && !clock.isActive();
    summary->setText(marked ? tr("Rows of the query before the last changes · %1").arg(words)
                            : words);
    table->setAccessibleDescription(summary->text());
}

void TResultView::SetStatement(const TBoundSQL& statement) {
    asked = statement;
    CompareWith(statement);
}

void TResultView::CompareWith(const std::optional<TBoundSQL>& statement) {
    present = statement;
    const bool same =
        shown && present && shown->text == present->text && shown->values == present->values;
    MarkOutdated(shown && !same);
}

void TResultView::MarkOutdated(bool value) {
    const bool again = outdated && !value && !clock.isActive() && rowWords;
    outdated = value;
    if (again) summaryWords = rowWords; // perhaps another run has failed meanwhile
    model->SetPale(value);
    ShowSummary();
}

void TResultView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && table) {
        FitRows();
        FitColumns();
    }
    if (event->type() != QEvent::LanguageChange) return;
    table->setAccessibleName(tr("Result rows"));
    ShowSummary();
}

QString TResultView::Summary() const {
    return summary->text();
}

void TResultView::Clear() {
    model->Clear();
    messages->Clear();
    shown.reset();
    rowWords = nullptr;
    outdated = false;
    model->SetPale(false);
    Summarise([] { return tr("Not run yet"); });
}

void TResultView::FitRows() {
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
}

/// As wide as the first rows need, within reason.
void TResultView::FitColumns() {
    table->resizeColumnsToContents();
    for (int i = 0; i < model->columnCount(); ++i)
        table->setColumnWidth(i, std::min(table->columnWidth(i) + 8, widestColumn));
}

/// As users have made them, when the columns are those that are shown.
std::vector<int> TResultView::WidthsFor(const std::vector<TKResultColumn>& columns) const {
    std::vector<int> widths;
    if (model->columnCount() != static_cast<int>(columns.size())) return widths;
    for (int i = 0; i < model->columnCount(); ++i) {
        const QVariant name = model->headerData(i, Qt::Horizontal, Qt::DisplayRole);
        if (name.toString() != ToQt(columns[static_cast<size_t>(i)].name)) return {};
        widths.push_back(table->columnWidth(i));
    }
    return widths;
}

void TResultView::ShowSorted(int column, Qt::SortOrder order) {
    QHeaderView* header = table->horizontalHeader();
    header->setSortIndicatorShown(column >= 0);
    if (column >= 0) header->setSortIndicator(column, order);
}

void TResultView::CopySelected() const {
    const QItemSelectionModel& selection = *table->selectionModel();
    QModelIndexList cells = selection.selectedIndexes();
    if (cells.isEmpty()) return;
    std::sort(cells.begin(), cells.end());
    QString text;
    if (!selection.selectedRows().isEmpty()) {
        QStringList names;
        for (const TKResultColumn& column : model->Columns())
            names << TabbedText(ToQt(column.name));
        text = names.join(u'\t') + u'\n';
    }
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (i > 0) text += cells[i].row() == cells[i - 1].row() ? u'\t' : u'\n';
        const TBoundValue& cell =
            model->Row(cells[i].row())[static_cast<size_t>(cells[i].column())];
        text += TabbedText(ToQt(cell.text));
    }
    QGuiApplication::clipboard()->setText(text);
}

void TResultView::SaveAsCsv(const QString& file) const {
    std::vector<std::string> names;
    for (const TKResultColumn& column : model->Columns())
        names.push_back(column.name);
    std::string text = CsvRow(names);
    for (int i = 0; i < model->rowCount(); ++i)
        text += CsvRow(model->Row(i));
    WriteWholeFile(FromQt(file), text);
}

} // namespace tern7
