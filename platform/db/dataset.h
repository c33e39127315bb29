// A dataset: the rows of a select on a named connection, walked one current row at a time, with
// fields read by name or index and, on a select from one table, rows edited, inserted and posted.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/db/dataset_observers.h"
#include "platform/db/field_types.h"
#include "platform/db/query.h"
#include "platform/db/variant.h"

namespace mv::db {

class TMVADODataSet;

enum TDataSetState { dsInactive, dsBrowse, dsEdit, dsInsert };

// Client: every row is fetched on open, the record count is known and First goes back.
// Server: rows come one by one as Next asks, forward only; the record count is -1.
enum TCursorLocation { clUseServer, clUseClient };

// ltReadOnly refuses Edit, Insert and Append. The other kinds allow them; every Post writes its
// row at once. An update names the row by its table's primary key, read from the schema and
// selected beside the columns the text reads when they do not include it; a row another
// connection changed since it was read is overwritten (the last writer wins). Only a table without
// a primary key has its row named by the old values of every column read (no long text, bytes or
// dates), and an edit that those cannot tell from other rows is refused.
enum TLockType { ltUnspecified, ltReadOnly, ltPessimistic, ltOptimistic, ltBatchOptimistic };

// Called with the dataset after it opened or refreshed.
using TDataSetNotifyEvent = std::function<void(TMVADODataSet&)>;

// One field of a dataset, owned by it and valid while it stays open. Values are those of the
// current row; setting one needs the dataset in dsEdit or dsInsert (EDatabaseError otherwise).
class TField {
 public:
  // The column name as the select gives it.
  const std::string& FieldName() const { return name_; }
  // The caption a grid shows, narrow text in the user's code page; the field name until set.
  // A change tells the dataset's observers (deLayoutChanged).
  const std::string& DisplayLabel() const { return label_; }
  void SetDisplayLabel(std::string_view label);
  // Whether a grid shows the field; true until set. A change tells the observers.
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  // True for a field computed by the program (AddCalculatedField), not read from the database.
  bool Calculated() const { return static_cast<bool>(compute_); }
  // The field type code (field_types.h).
  TFieldType DataType() const { return dataType_; }
  // The field's place in the dataset's field order (0-based).
  int Index() const;
  // Moves the field to `index` (clamped to the field range); the others keep their order. A move
  // tells the observers.
  void SetIndex(int index);

  // The value of the current row (null when there is none).
  Variant Value() const;
  // The value in row `recNo` (1-based) without moving the current row or telling anyone; the
  // row being edited gives its edited values. Null for a row number the dataset does not hold
  // (a server cursor holds only its current row).
  Variant ValueAt(int recNo) const;
  void SetValue(const Variant& value);
  bool IsNull() const { return Value().IsNull(); }
  // The value as narrow text (user's code page), wide text, date-time, whole or floating-point
  // number, as Variant reads it.
  std::string AsString() const { return Value().AsString(); }
  std::u16string AsWideString() const { return Value().AsWideString(); }
  TDateTime AsDateTime() const { return Value().AsDateTime(); }
  int64_t AsInteger() const { return Value().AsInteger(); }
  double AsFloat() const { return Value().AsFloat(); }
  void SetAsString(std::string_view v) { SetValue(Variant(std::string(v))); }
  void SetAsWideString(std::u16string_view v) { SetValue(Variant(std::u16string(v))); }
  void SetAsDateTime(TDateTime v) { SetValue(Variant(v)); }
  void SetAsInteger(int64_t v) { SetValue(Variant(v)); }
  void SetAsFloat(double v) { SetValue(Variant(v)); }
  // Sets the value to null.
  void Clear() { SetValue(Variant()); }

 private:
  friend class TMVADODataSet;
  TField(TMVADODataSet& owner, int column, std::string name, TFieldType type);

  TMVADODataSet& owner_;
  int column_;  // the column of the row buffer, or -1 for a calculated field
  std::string name_;
  std::string label_;
  bool visible_ = true;
  TFieldType dataType_;
  std::function<Variant(TMVADODataSet&)> compute_;
};

class TMVADODataSet : public TMVADOQuery {
 public:
  TMVADODataSet();
  ~TMVADODataSet() override;

  // The rows, fields and cursor, known only inside the database layer.
  struct Impl;

  // Runs the command text and moves to the first row; calls the after-open event. Raises
  // EDatabaseError (the driver's message) when the text fails or the connection is not open.
  void Open();
  // Drops the rows and fields; state dsInactive. An edit in progress is lost.
  void Close();
  // Runs the command text again (the dataset must be open; a pending edit is lost) and moves
  // to the first row; calls the after-refresh event.
  void Refresh();
  // True while open; SetActive(true) opens, false closes.
  bool Active() const;
  void SetActive(bool active);
  TDataSetState State() const;

  // Cursor location and lock kind, read when the dataset opens; client / optimistic by default.
  TCursorLocation CursorLocation() const { return cursorLocation_; }
  void SetCursorLocation(TCursorLocation location) { cursorLocation_ = location; }
  TLockType LockType() const { return lockType_; }
  void SetLockType(TLockType lockType) { lockType_ = lockType; }
  // True when the lock kind is ltReadOnly.
  bool ReadOnly() const { return lockType_ == ltReadOnly; }
  void SetReadOnly(bool readOnly) { lockType_ = readOnly ? ltReadOnly : ltOptimistic; }

  // True when no current row is left (past the last row, or no rows at all, or closed).
  bool Eof() const;
  // True on the first row, or with no rows.
  bool Bof() const;
  // Moves to the next row (posting a pending edit first); at the end Eof becomes true.
  void Next();
  // Moves back to the first row; a server cursor raises EDatabaseError unless still on it.
  void First();
  // The number of rows with a client cursor; -1 with a server cursor; 0 when closed.
  int RecordCount() const;
  // The 1-based number of the current row; 0 when there is none.
  int RecNo() const;
  // Moves to row `recNo` (1-based, client cursor; a pending edit is posted first); raises
  // EDatabaseError for a number outside 1 .. RecordCount or with a server cursor.
  void SetRecNo(int recNo);
  // Moves to the first row, from the first, whose field `fieldName` equals `value` (text exact,
  // numbers and date-times by value); returns false and stays put when none does. A server
  // cursor searches forward from the current row and ends at Eof when no row matches.
  bool Locate(std::string_view fieldName, const Variant& value);

  // The fields in their current order.
  int FieldCount() const;
  TField& Fields(int index);
  // The field `name` (case-insensitive); raises EDatabaseError when there is none.
  TField& FieldByName(std::string_view name);
  // The field `name`, or nullptr.
  TField* FindField(std::string_view name);
  // Adds a field computed from the current row by `compute`, after the others; the dataset must
  // be open. Calculated fields cannot be set and are not written.
  TField& AddCalculatedField(std::string_view name, TFieldType dataType,
                             std::function<Variant(TMVADODataSet&)> compute);

  // Field `index` of the current row as wide text; with `asCarrier` true the wide-value carrier
  // of it (any U+0002 in the data removed, so it never opens a literal). Null gives "".
  std::u16string GetUnicodeFieldValue(int index, bool asCarrier);

  // Start editing the current row / a new row (Insert before the current row, Append at the
  // end); raise EDatabaseError when closed, read-only, not a select from one table, or (Edit)
  // without a current row. A pending edit is posted first.
  void Edit();
  void Insert();
  void Append();
  // Writes the edited or new row to its table and returns to dsBrowse; a refused write raises
  // EDatabaseError and the dataset stays in its state. Nothing happens in dsBrowse.
  void Post();
  // Deletes the current row from its table, named as Post names it, and moves to the row after
  // it; a new row not yet posted is only dropped, and a pending edit is dropped first. Raises
  // EDatabaseError, keeping the row, when the dataset cannot be modified (as Edit), has no current
  // row, or the row is not found or not told apart from others.
  void Delete();
  // Drops the pending edit or new row and returns to dsBrowse.
  void Cancel();

  // Stops telling the dataset's observers anything (the after-open and after-refresh events still
  // run). Calls nest: each DisableControls needs its EnableControls. When the last one comes,
  // every observer is told deDataSetChanged once. An EnableControls with none pending does
  // nothing.
  void DisableControls();
  void EnableControls();
  // True while a DisableControls is pending.
  bool ControlsDisabled() const { return controlsDisabled_ > 0; }

  // The after-open and after-refresh events; empty until set. They belong to the dataset's
  // caller; others follow the dataset through a TDataSetLink.
  const TDataSetNotifyEvent& AfterOpen() const { return afterOpen_; }
  void SetAfterOpen(TDataSetNotifyEvent event) { afterOpen_ = std::move(event); }
  const TDataSetNotifyEvent& AfterRefresh() const { return afterRefresh_; }
  void SetAfterRefresh(TDataSetNotifyEvent event) { afterRefresh_ = std::move(event); }

 private:
  friend class TField;
  friend class TDataSetLink;

  Variant ColumnValue(const TField& field);
  Variant ColumnValueAt(const TField& field, int recNo);
  void SetColumnValue(const TField& field, const Variant& value);
  void MoveField(const TField& field, int index);
  int FieldIndex(const TField& field) const;
  void CheckOpen() const;
  void CheckEditable() const;
  // After a refresh: the fields of `old` keep their order, labels and visibility.
  void KeepFieldSettings(std::vector<std::unique_ptr<TField>> old);
  // Runs the command text into the rows and fields, telling no one.
  void OpenRows();
  // Tells the observers about `event` unless controls are disabled; `recNo` -1 stands for the
  // current row. Returns false when an observer destroyed the dataset.
  bool Notify(TDataSetEvent event, int recNo = -1);
  void MoveTo(size_t row);
  void StartInsert(bool appending);

  std::unique_ptr<Impl> impl_;
  TCursorLocation cursorLocation_ = clUseClient;
  TLockType lockType_ = ltOptimistic;
  TDataSetNotifyEvent afterOpen_;
  TDataSetNotifyEvent afterRefresh_;
  std::shared_ptr<TDataSetObservers> observers_;
  int controlsDisabled_ = 0;
};

}  // namespace mv::db
