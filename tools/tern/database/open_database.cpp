#include "open_database.h"

#include <QtCore/QCoreApplication>

namespace tern7 {

TKConnection OpenDatabase(const std::string& address) {
    static char name[] = "tern";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    static const QCoreApplication application(count, arguments); // database drivers need one
    return TKConnection(ParseDatabaseURL(address));
}

} // namespace tern7
