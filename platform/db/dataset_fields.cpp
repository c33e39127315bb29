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

Variant TField::Value() const {
  return owner_.ColumnValue(*this);
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
  impl_->fields.back()->compute_ = std::move(compute);
  return *impl_->fields.back();
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
}

Variant TMVADODataSet::ColumnValue(const TField& field) {
  if (field.compute_) return Active() ? field.compute_(*this) : Variant();
  const TRow* row = impl_->CurrentRow();
  return row ? (*row)[static_cast<size_t>(field.column_)] : Variant();
}

void TMVADODataSet::SetColumnValue(const TField& field, const Variant& value) {
  if (impl_->state != dsEdit && impl_->state != dsInsert) {
    throw EDatabaseError("Dataset not in edit or insert mode");
  }
  if (field.compute_) throw EDatabaseError("Field '" + field.FieldName() + "' cannot be modified");
  const auto column = static_cast<size_t>(field.column_);
  impl_->buffer[column] = value;
  impl_->assigned[column] = true;
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
    for (; !Eof(); Next()) {
      if (SameValue(field.Value(), value)) return true;
    }
    return false;
  }
  const size_t before = impl_->current;
  for (impl_->current = 0; impl_->current < impl_->rows.size(); ++impl_->current) {
    if (SameValue(field.Value(), value)) return true;
  }
  impl_->current = before;
  return false;
}

}  // namespace mv::db
