// The process's named database connections. A connection string is "sqlite:PATH" (an existing
// SQLite file, PATH a narrow path in the system code page; ":memory:" for a database in memory)
// or "odbc:<ODBC connection string>" (a DSN or a driver string such as
// "Driver={ODBC Driver 18 for SQL Server};Server=...;Database=...;UID=...;PWD=...").
// Connections are opened and used on one thread, the user-interface thread.
#pragma once

#include <string>
#include <string_view>

namespace mv::db {

// The connection name datasets and commands use unless told otherwise.
inline constexpr std::string_view kMainConnection = "DBMAIN";

enum class TBackend { SQLite, Odbc };

// What is known of an open connection.
struct TConnectionInfo {
  std::string Name;
  std::string ConnectionString;
  TBackend Backend = TBackend::SQLite;
};

// Opens the connection `name` (replacing one of that name) from `connectionString`; raises
// EDatabaseError with the driver's message when the string has no known prefix or the database
// cannot be opened, and one naming the file when a SQLite file does not exist (none is made).
void OpenConnection(std::string_view name, std::string_view connectionString);

// Closes the connection `name`; nothing happens when there is none. Datasets still open on it
// must be closed first.
void CloseConnection(std::string_view name);

// The open connection `name`; raises EDatabaseError when there is none.
const TConnectionInfo& Connection(std::string_view name);

// True when the connection `name` is open.
bool HasConnection(std::string_view name);

}  // namespace mv::db
