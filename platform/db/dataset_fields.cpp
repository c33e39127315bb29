#include <strings.h>

#include <algorithm>

#include "platform/db/dataset.h"
#include "platform/db/dataset_impl_p.h"
#include "platform/db/db_error.h"
#include "platform/db/wide_literals.h"

namespace mv::db {
namespace {

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

// Locate's comparison: text as text (exact), anything else by number.
bool SameValue(const Variant& a, const Variant& b) {
  using K = Variant::Kind;
  if (a.IsNull() || b.IsNull()) return a.IsNull() && b.IsNull();
  const bool textA = a.kind() == K::Text || a.kind() == K::WideText;
  const bool textB = b.kind() == K::Text || b.kind() == K::WideText;
  if (textA || textB) return a.AsWideString() == b.AsWideString();
  if (a.kind() == K::Bytes || b.kind() == K::Bytes) return a == b;
  return a.AsFloat() == b.AsFloat();
}

}  // namespace

TField::TField(TMVADODataSet& owner, int column, std::string name, TFieldType type)
    : owner_(owner), column_(column), name_(name), label_(std::move(name)), dataType_(type) {}

int TField::Index() const {
  return owner_.FieldIndex(*this);
}

void TField::SetIndex(int index) {
  owner_.MoveField(*this, index);
}

void TField::SetDisplayLabel(std::string_view label) {
  if (label_ == label) return;
  label_ = label;
  owner_.Notify(deLayoutChanged);
}

void TField::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  owner_.Notify(deLayoutChanged);
}

Variant TField::Value() const {
  return owner_.ColumnValue(*this);
}

Variant TField::ValueAt(int recNo) const {
  return owner_.ColumnValueAt(*this, recNo);
}

void TField::SetValue(const Variant& value) {
  owner_.SetColumnValue(*this, value);
}

int TMVADODataSet::FieldCount() const {
  return static_cast<int>(impl_->fields.size());
}

TField& TMVADODataSet::Fields(int index) {
  if (index < 0 || index >= FieldCount()) {
    throw EDatabaseError("Field index " + std::to_string(index) + " out of bounds");
  }
  return *impl_->fields[static_cast<size_t>(index)];
}

TField* TMVADODataSet::FindField(std::string_view name) {
  for (auto& f : impl_->fields) {
    if (SameName(f->FieldName(), name)) return f.get();
  }
  return nullptr;
}

TField& TMVADODataSet::FieldByName(std::string_view name) {
  if (TField* f = FindField(name)) return *f;
  throw EDatabaseError("Field '" + std::string(name) + "' not found");
}

TField& TMVADODataSet::AddCalculatedField(std::string_view name, TFieldType dataType,
                                          std::function<Variant(TMVADODataSet&)> compute) {
  CheckOpen();
  impl_->fields.emplace_back(new TField(*this, -1, std::string(name), dataType));
  TField& field = *impl_->fields.back();
  field.compute_ = std::move(compute);
  Notify(deLayoutChanged);
  return field;
}

int TMVADODataSet::FieldIndex(const TField& field) const {
  for (size_t i = 0; i < impl_->fields.size(); ++i) {
    if (impl_->fields[i].get() == &field) return static_cast<int>(i);
  }
  return -1;
}

void TMVADODataSet::MoveField(const TField& field, int index) {
  auto& fields = impl_->fields;
  const int from = FieldIndex(field);
  const int to = std::clamp(index, 0, FieldCount() - 1);
  if (from < 0 || from == to) return;
  auto moved = std::move(fields[static_cast<size_t>(from)]);
  fields.erase(fields.begin() + from);
  fields.insert(fields.begin() + to, std::move(moved));
  Notify(deLayoutChanged);
}

Variant TMVADODataSet::ColumnValue(const TField& field) {
  if (field.compute_) return Active() ? field.compute_(*this) : Variant();
  const TRow* row = impl_->CurrentRow();
  return row ? (*row)[static_cast<size_t>(field.column_)] : Variant();
}

Variant TMVADODataSet::ColumnValueAt(const TField& field, int recNo) {
  Impl& d = *impl_;
  const TRow* row = nullptr;
  if (d.state == dsEdit && recNo == RecNo()) {
    row = &d.buffer;
  } else if (d.cursor) {
    if (recNo == d.serverRecNo && !d.rows.empty()) row = &d.rows.front();
  } else if (recNo >= 1 && static_cast<size_t>(recNo) <= d.rows.size()) {
    row = &d.rows[static_cast<size_t>(recNo - 1)];
  }
  if (row == nullptr) return Variant();
  if (!field.compute_) return (*row)[static_cast<size_t>(field.column_)];
  struct Peek {
    Impl& d;
    ~Peek() { d.peek = nullptr; }
  } peek{d};
  d.peek = row;
  return field.compute_(*this);
}

void TMVADODataSet::SetColumnValue(const TField& field, const Variant& value) {
  if (impl_->state != dsEdit && impl_->state != dsInsert) {
    throw EDatabaseError("Dataset not in edit or insert mode");
  }
  if (field.compute_) throw EDatabaseError("Field '" + field.FieldName() + "' cannot be modified");
  const auto column = static_cast<size_t>(field.column_);
  impl_->buffer[column] = value;
  impl_->assigned[column] = true;
  Notify(deRecordChanged);
}

std::u16string TMVADODataSet::GetUnicodeFieldValue(int index, bool asCarrier) {
  const std::u16string value = Fields(index).AsWideString();
  return asCarrier ? WithoutLiteralMarks(value) : value;
}

bool TMVADODataSet::Locate(std::string_view fieldName, const Variant& value) {
  CheckOpen();
  TField& field = FieldByName(fieldName);
  Post();
  if (impl_->cursor) {
    const int start = RecNo();
    ++controlsDisabled_;  // one deRecordMoved for the whole walk, not one per row
    try {
      while (!Eof() && !SameValue(field.Value(), value)) Next();
    } catch (...) {
      --controlsDisabled_;
      throw;
    }
    --controlsDisabled_;
    const bool found = !Eof();
    if (RecNo() != start) Notify(deRecordMoved);
    return found;
  }
  for (size_t row = 0; row < impl_->rows.size(); ++row) {
    if (SameValue(field.ValueAt(static_cast<int>(row) + 1), value)) {
      MoveTo(row);
      return true;
    }
  }
  return false;
}

}  // namespace mv::db
