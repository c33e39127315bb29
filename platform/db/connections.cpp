#include "platform/db/connections.h"

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <algorithm>
#include <map>
#include <optional>

#include "platform/db/connection_qt_p.h"
#include "platform/db/db_error.h"
#include "platform/db/sqlite_functions_p.h"
#include "platform/files/file_names.h"

namespace mv::db {
namespace {

std::string Key(std::string_view name) {
  std::string key(name);
  std::transform(key.begin(), key.end(), key.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return key;
}

std::map<std::string, TConnectionInfo>& Registry() {
  static std::map<std::string, TConnectionInfo> registry;
  return registry;
}

QString QtName(std::string_view name) {
  return QString::fromStdString("mvdb:" + Key(name));
}

bool StartsWith(std::string_view s, std::string_view prefix) {
  return s.substr(0, prefix.size()) == prefix;
}

// The SQLite file `path` as a URI that opens it for reading and writing but never makes it: a
// missing file is an error rather than a new empty database.
QString ExistingSqliteFile(const QString& path) {
  if (path == ":memory:") return path;
  if (path.isEmpty() || !QFileInfo::exists(path)) {
    throw EDatabaseError("The database file \"" + path.toStdString() + "\" does not exist");
  }
  return "file:" + QString::fromLatin1(QUrl::toPercentEncoding(path, "/")) + "?mode=rw";
}

void OpenQt(const TConnectionInfo& info, std::string_view target) {
  const QString driver = info.Backend == TBackend::SQLite ? "QSQLITE" : "QODBC";
  QString name = QString::fromUtf8(target.data(), static_cast<qsizetype>(target.size()));
  QSqlDatabase db = QSqlDatabase::addDatabase(driver, QtName(info.Name));
  if (info.Backend == TBackend::SQLite) {
    name = ExistingSqliteFile(name);
    db.setConnectOptions("QSQLITE_OPEN_URI");
  }
  db.setDatabaseName(name);
  if (!db.isValid())
    throw EDatabaseError("The database driver " + driver.toStdString() + " is missing");
  if (!db.open()) throw EDatabaseError(db.lastError().text().toStdString());
  if (info.Backend == TBackend::SQLite &&
      !RegisterSqlServerFunctions(static_cast<sqlite3*>(SqliteHandleOf(db)))) {
    throw EDatabaseError("The SQL Server functions cannot be registered on " + info.Name);
  }
}

}  // namespace

void OpenConnection(std::string_view name, std::string_view connectionString) {
  TConnectionInfo info{std::string(name), std::string(connectionString), TBackend::SQLite};
  std::string target;
  if (StartsWith(connectionString, "sqlite:")) {
    // PATH is a narrow path in the system code page; SQLite takes the system's file name bytes.
    const std::optional<std::string> file = files::EncodeFileName(connectionString.substr(7));
    if (!file) {
      throw EDatabaseError("The database file name of " + info.Name + " holds a zero byte");
    }
    target = *file;
  } else if (StartsWith(connectionString, "odbc:")) {
    info.Backend = TBackend::Odbc;
    target = connectionString.substr(5);
  } else {
    throw EDatabaseError("Unknown connection string for " + info.Name +
                         ": it must start with sqlite: or odbc:");
  }
  CloseConnection(name);
  try {
    OpenQt(info, target);
  } catch (...) {
    QSqlDatabase::removeDatabase(QtName(name));
    throw;
  }
  Registry()[Key(name)] = std::move(info);
}

void CloseConnection(std::string_view name) {
  if (Registry().erase(Key(name)) == 0) return;
  {
    QSqlDatabase db = QSqlDatabase::database(QtName(name), false);
    db.close();
  }
  QSqlDatabase::removeDatabase(QtName(name));
}

const TConnectionInfo& Connection(std::string_view name) {
  const auto it = Registry().find(Key(name));
  if (it == Registry().end()) {
    throw EDatabaseError("The connection " + std::string(name) + " is not open");
  }
  return it->second;
}

bool HasConnection(std::string_view name) {
  return Registry().count(Key(name)) != 0;
}

QSqlDatabase DatabaseOf(std::string_view name) {
  Connection(name);
  return QSqlDatabase::database(QtName(name), false);
}

void* SqliteHandleOf(const QSqlDatabase& database) {
  const QVariant handle = database.driver()->handle();
  if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0) return nullptr;
  return *static_cast<void* const*>(handle.data());
}

}  // namespace mv::db
