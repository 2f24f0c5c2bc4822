#pragma once

#include <string>
#include <utility>
#include <vector>

#include <QDialog>

class QLabel;
class QLineEdit;

namespace tern7 {

class TKQuery;
class TSQLParam;

/// Asks for the values of all parameters of a query at once.
class TParameterDialog : public QDialog {
    Q_OBJECT

public:
    /// Each parameter's field shows the value that it has.
    explicit TParameterDialog(const TKQuery& query, QWidget* parent = nullptr);

    /// Gives the entered values to the parameters.
    void Apply() const;

    /// Values that are missing or no dates are refused.
    void accept() override;

private:
    QString ProblemOf(const TSQLParam& param, const QString& value) const;

    QLabel* error;
    std::vector<std::pair<TSQLParam*, QLineEdit*>> fields;
};

} // namespace tern7
