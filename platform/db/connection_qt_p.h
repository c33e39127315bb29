// The Qt side of the named connections. Private to the database layer.
#pragma once

#include <QtSql/QSqlDatabase>
#include <string_view>

#include "platform/db/connections.h"

namespace mv::db {

// The Qt database of the open connection `name`; raises EDatabaseError when there is none.
QSqlDatabase DatabaseOf(std::string_view name);

// The SQLite handle (sqlite3*) of a database on the SQLite driver; nullptr for any other.
void* SqliteHandleOf(const QSqlDatabase& database);

}  // namespace mv::db
