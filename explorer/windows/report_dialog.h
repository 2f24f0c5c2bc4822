#pragma once

#include <QDialog>

namespace tern7 {

class TSQLReport;

/// What became of a statement that was read. Rejected: the user wants it undone.
class TReportDialog : public QDialog {
    Q_OBJECT

public:
    explicit TReportDialog(const TSQLReport& report, QWidget* parent = nullptr);
};

} // namespace tern7
