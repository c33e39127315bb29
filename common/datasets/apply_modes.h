// The library's preparations of a dataset before it opens: how it reads and writes, and the
// time-out its statements get. Each sets the cursor location, the lock kind and the command
// time-out; all take effect when the dataset next opens. The time-outs iReadTimeOut and
// iWriteTimeOut are seconds as the database components read them: 0 sets no limit, -1 leaves the
// driver's own, and on SQLite they also bound the wait for a file another connection has locked.
#pragma once

namespace mv::db {
class TMVADODataSet;
}

namespace mv {

// For reading: client cursor (every row fetched, record count known, Locate and First work),
// read-only, time-out iReadTimeOut.
void ApplyRead(db::TMVADODataSet& dataset);

// For writing one row at a time under a lock: client cursor, pessimistic lock, time-out
// iWriteTimeOut. Rows are written by their table's primary key; the last writer wins.
void ApplyWrite(db::TMVADODataSet& dataset);

// For writing without a lock: client cursor, optimistic lock, time-out iWriteTimeOut. Rows are
// written as ApplyWrite writes them.
void ApplyWriteWoLck(db::TMVADODataSet& dataset);

// For writing many rows: client cursor, batch-optimistic lock, time-out iWriteTimeOut.
void ApplyBatchWrite(db::TMVADODataSet& dataset);

// For reports, which count their rows, page back and forth through them and look rows up (a
// holiday set handed to GetMonthDayRpt, for one): client cursor (every row fetched on open, record
// count known, First, SetRecNo and Locate over every row), read-only, time-out iReadTimeOut. A
// server cursor would save the memory of a long result but could only walk it forward once.
void ApplyReport(db::TMVADODataSet& dataset);

}  // namespace mv
