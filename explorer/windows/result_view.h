#pragma once

#include <optional>

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "../run/result_model.h"
#include "message_bar.h"

class QLabel;
class QProgressBar;
class QTableView;

namespace tern7 {

/// The rows of the last run: a table, messages above it, and below it how many rows there are and
/// how long it took.
class TResultView : public QWidget {
    Q_OBJECT

public:
    explicit TResultView(QWidget* parent = nullptr);

    /// Follows the runs of a runner.
    void Attach(TQueryRunner& runner);
    /// What the columns of the next run are called; aliases are not always what users wrote.
    void SetCaptions(std::vector<std::string> list) { captions = std::move(list); }
    /// What the next run asks the database.
    void SetStatement(const TBoundSQL& statement);
    /// The statement of the query as it is now, none when there is none: rows of another one are
    /// marked.
    void CompareWith(const std::optional<TBoundSQL>& present);
    bool IsOutdated() const { return outdated; }
    TResultModel& Model() { return *model; }
    QTableView& Table() { return *table; }
    TMessageBar& Messages() { return *messages; }
    QString Summary() const;
    void Clear();
    /// Marks a column's header as sorted; -1 for none.
    void ShowSorted(int column, Qt::SortOrder order);
    /// The selected cells as tabbed lines on the clipboard, with a line of names when whole rows
    /// are selected.
    void CopySelected() const;
    /// All rows as comma separated values. EKFileError.
    void SaveAsCsv(const QString& file) const;

protected:
    void changeEvent(QEvent* event) override;

signals:
    void headerClicked(int column);
    /// The run has ended in some way.
    void runEnded();

private:
    void RunStarted();
    void RunEnded(TWording words);
    void ShowCount();
    void Summarise(TWording words);
    void ShowSummary();
    void MarkOutdated(bool value);
    void FitColumns();
    std::vector<int> WidthsFor(const std::vector<TKResultColumn>& columns) const;
    void FitRows();

    TMessageBar* messages;
    QTableView* table = nullptr;
    QLabel* summary;
    TWording summaryWords, rowWords; // of the last run, of that which the rows are of
    std::vector<std::string> captions;
    std::optional<TBoundSQL> asked, shown, present; // of the next or last run, of the rows, now
    bool outdated = false;
    QProgressBar* progress;
    TResultModel* model;
    QElapsedTimer sinceStart;
    QTimer clock; // shows the time that passes
    bool fitted = false;
    int received = 0; // rows of this run
    bool rowsAreOfRun = false;
};

} // namespace tern7
