#pragma once

#include <QDialog>

namespace tern7 {

class TSQLReport;

/// What became of a statement that was read. Its result is TakenBack when the user wants it undone.
class TReportDialog : public QDialog {
    Q_OBJECT

public:
    static constexpr int TakenBack = 2;

    explicit TReportDialog(const TSQLReport& report, QWidget* parent = nullptr);
};

} // namespace tern7
