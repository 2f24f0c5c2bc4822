// A structure taken from a database, a query over it, and the rows: the statement is executed with
// its values bound, so that nothing a user types can become SQL.
#include <iostream>

#include <QtCore/QCoreApplication>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <tern7/core/query/query.h>
#include <tern7/sql/bde_info.h>

using namespace tern7;

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(":memory:");
    if (!database.open()) {
        std::cerr << database.lastError().text().toStdString() << "\n";
        return 1;
    }
    for (const char* sql : {"create table customers (id integer primary key, city varchar(40))",
                            "create table orders (id integer primary key, amount decimal(9, 2),"
                            " customer_id integer not null references customers (id))",
                            "insert into customers values (1, 'Berlin'), (2, 'L''Aquila')",
                            "insert into orders values (1, 120, 1), (2, 80.5, 2), (3, 9.5, 2)"})
        QSqlQuery(database).exec(sql);

    TKBDEInfo info; // Qt's default connection
    TKCustomDBStructure structure;
    structure.SetDatabaseInfo(&info);
    ImportDatabase(structure);

    TKQuery query(&structure);
    TRFieldList& columns = query.QResult().ResultFields();
    columns.AddByExpression("City", TSortingType::stNoSort, "{City}");
    columns.AddByExpression("Total", TSortingType::stNoSort, "SUM({Amount})");
    TFilterCond* row = query.Root().AddCond();
    row->SetField(structure.FieldByName(true, "City"));
    row->SetOperator(structure.OperatorByName("Equal"));
    row->SetValue(1, "L'Aquila");
    query.BuildQuery();

    const TBoundSQL bound = query.QResult().GetBoundSQL();
    std::cout << bound.text << "\n";
    QSqlQuery statement(database);
    statement.prepare(QString::fromStdString(bound.text));
    for (const TBoundValue& value : bound.values)
        statement.addBindValue(QString::fromStdString(value.text));
    if (!statement.exec()) {
        std::cerr << statement.lastError().text().toStdString() << "\n";
        return 1;
    }
    while (statement.next())
        std::cout << statement.value(0).toString().toStdString() << " "
                  << statement.value(1).toString().toStdString() << "\n";
}
