// What datasets and commands share: the connection they run on, the command text (SQL Server's
// dialect, as wide text that may hold marked literals), its parameters and the time-out. How a
// text is read on its way to the driver: sql_text.h (PrepareSql).
#pragma once

#include <string>
#include <string_view>

#include "platform/db/connections.h"
#include "platform/db/parameters.h"

namespace mv::db {

class TMVADOQuery {
 public:
  TMVADOQuery() = default;
  virtual ~TMVADOQuery() = default;
  TMVADOQuery(const TMVADOQuery&) = delete;
  TMVADOQuery& operator=(const TMVADOQuery&) = delete;

  // The name of the connection the query runs on; "DBMAIN" until set.
  const std::string& ConnectionName() const { return connectionName_; }
  void SetConnectionName(std::string_view name) { connectionName_ = name; }

  // The command text as wide text (UTF-16). A stretch between two U+0002 marks outside quoted
  // literals that is still in the text when it runs is bound as a wide-string value.
  const std::u16string& CommandText() const { return commandText_; }
  // Sets the command text (wide or narrow in the user's code page); with the parameter check on,
  // the parameters are re-read from it (see parameters.h).
  void SetCommandText(std::u16string_view text);
  void SetCommandText(std::string_view text);

  // Whether a new command text re-reads the parameters; on until switched off.
  bool ParamCheck() const { return paramCheck_; }
  void SetParamCheck(bool on) { paramCheck_ = on; }

  // The parameters, bound by name to the ":name" places of the text when the query runs.
  TParameters& Parameters() { return parameters_; }
  const TParameters& Parameters() const { return parameters_; }

  // Sets parameter `index` to the wide text `value` with data type 24 (wide string). With
  // `fromCarrier` true, `value` is a wide-value carrier and its literal marks are removed (the
  // value the carrier holds); with false, `value` is stored as it stands.
  // Raises EDatabaseError when `index` is out of range.
  void SetUnicodeParamValue(int index, std::u16string_view value, bool fromCarrier);

  // Seconds the database may take for one statement, a wait for a SQLite file that another
  // connection has locked included; 0 sets no limit, -1 (the default) leaves the driver's own.
  int CommandTimeout() const { return commandTimeout_; }
  void SetCommandTimeout(int seconds) { commandTimeout_ = seconds; }

 protected:
  // Called after the command text changed.
  virtual void CommandTextChanged() {}

 private:
  std::string connectionName_{kMainConnection};
  std::u16string commandText_;
  bool paramCheck_ = true;
  TParameters parameters_;
  int commandTimeout_ = -1;
};

}  // namespace mv::db
