#include <tern7/sql/value_list.h>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/read_only_session.h>
#include <tern7/sql/result_cell.h>
#include <tern7/sql/select_text.h>

namespace tern7 {

TValueList ReadValueList(const QSqlDatabase& database, TKEngine engine, const std::string& sql) {
    const TKSelectText select = ReadSelect(sql, LexisOf(database, engine));
    if (!select.placeholders.empty())
        throw EKDBInfoError(FormatMessage(messages::ParameterWithoutValue, {"?"}));
    const TKReadOnlySession session(database, engine);
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.setNumericalPrecisionPolicy(QSql::HighPrecision);
    if (!query.prepare(ToQt(select.text)) || !query.exec()) RaiseDriverError(query.lastError());
    const QSqlRecord record = query.record();
    if (record.count() < 2) throw EKDBInfoError(std::string(messages::FieldCountTooSmall));
    const auto valueKind = ColumnKind(database, record.field(0));
    const auto captionKind = ColumnKind(database, record.field(1));
    const bool textAsBytes = engine == TKEngine::MySQL;
    TValueList list;
    while (query.next()) {
        list.values.push_back(CellOf(query, 0, valueKind, textAsBytes).text);
        list.captions.push_back(CellOf(query, 1, captionKind, textAsBytes).text);
    }
    if (query.lastError().isValid()) RaiseDriverError(query.lastError());
    return list;
}

} // namespace tern7
