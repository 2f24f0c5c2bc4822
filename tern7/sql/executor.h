#pragma once

#include <memory>
#include <string>
#include <vector>

#include <tern7/core/query/bound_value.h>

namespace tern7 {

class TKConnection;

/// A column of a result. The kind is what the driver says; SQLite says it value by value, so look
/// at the values there.
struct TKResultColumn {
    std::string name;
    TBoundValue::TKind kind = TBoundValue::TKind::Text;
};

/// Executes a statement with bound values and hands out its rows one by one, so that the result may
/// be larger than the memory. The database can not be changed by it: it takes one SELECT statement
/// only, in a read-only transaction (SQLite: a read-only session) that is rolled back at the end.
/// One executor at a time has a statement open on a connection, and the connection is in no
/// transaction then. Errors are EKDBInfoError with the words of the database.
///
///     TKConnection connection(ParseDatabaseURL("sqlite:shop.db"));
///     TKExecutor executor(connection);
///     executor.Open(query.QResult().GetBoundSQL());
///     while (executor.Next())
///         Print(executor.Value(0).text);
class TKExecutor {
public:
    /// The connection must outlive the executor.
    explicit TKExecutor(const TKConnection& connection);
    ~TKExecutor();
    TKExecutor(const TKExecutor&) = delete;
    TKExecutor& operator=(const TKExecutor&) = delete;

    /// Executes a statement with "?" placeholders. A second statement, anything but SELECT, a NUL
    /// or a wrong number of values is refused before anything is sent. Not more than `limit` rows
    /// are given out, 0 for all of them; the database is told the limit where that is possible.
    void Open(const TBoundSQL& statement, long long limit = 0);
    /// The columns of the open statement, of the last one after its end.
    const std::vector<TKResultColumn>& Columns() const { return columns; }
    /// Goes to the next row; false, and the statement closed, when there is none.
    bool Next();
    /// A value of the present row: its kind (Null for NULL) and its canonical text. Times have a
    /// fraction of a second behind them where there is one; bytes are 0x and hexadecimal digits.
    const TBoundValue& Value(int column) const { return row.at(static_cast<size_t>(column)); }
    const std::vector<TBoundValue>& Row() const { return row; }
    /// True when the limit kept rows back.
    bool IsTruncated() const { return truncated; }
    /// Ends the statement and its transaction; also done by the end of the rows, by Open and by the
    /// destructor.
    void Close();

private:
    class TReadOnlyTransaction;
    struct TOpened;

    const TKConnection& connection;
    std::unique_ptr<TOpened> opened;
    std::vector<TKResultColumn> columns;
    std::vector<TBoundValue> row;
    long long rowsLeft = 0; // negative for no limit
    bool truncated = false;
};

} // namespace tern7
