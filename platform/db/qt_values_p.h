// Values between the layer's Variant and Qt SQL. Private to the database layer.
#pragma once

#include <QtCore/QVariant>
#include <QtSql/QSqlField>

#include "platform/db/connections.h"
#include "platform/db/field_types.h"
#include "platform/db/variant.h"

namespace mv::db {

// The value to bind for `value` of a parameter or column of type `type`: narrow text converted
// from the user's code page, wide text as UTF-16, a date-time as a day number on SQLite (which
// stores dates so) and as a date-time on ODBC.
QVariant ToQt(const Variant& value, TFieldType type, TBackend backend);

// The value a column of type `type` read as `value`: narrow types give narrow text in code page
// `codePage` (the user's when left out), wide types wide text, date types a date-time; columns
// of unknown type keep what the driver gave.
Variant FromQt(const QVariant& value, TFieldType type, int codePage);
Variant FromQt(const QVariant& value, TFieldType type);

// The field type of an ODBC column from the SQL type the driver reports (QSqlField::typeID),
// or from the Qt value type where that tells nothing.
TFieldType FieldTypeOfQt(const QSqlField& field, TBackend backend);

}  // namespace mv::db
