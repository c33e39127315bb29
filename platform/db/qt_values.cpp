#include "platform/db/qt_values_p.h"

#include <QtCore/QDateTime>

#include "platform/codepage/codepage.h"
#include "platform/db/day_number_p.h"
#include "platform/db/sql_text_p.h"

namespace mv::db {
namespace {

bool IsDateType(TFieldType t) {
  return t == ftDate || t == ftTime || t == ftDateTime;
}

// Well-formed, so that no driver's UTF-16 reader joins a lone surrogate with the next character.
QString QtText(const std::u16string& w) {
  return QStringView(WellFormedText(w)).toString();
}

QDateTime QtDateTime(double days) {
  const TDateParts p = PartsOfDayNumber(days);
  return QDateTime(QDate(p.Year, p.Month, p.Day), QTime(p.Hour, p.Minute, p.Second, p.Msec));
}

double DayNumberOfQt(const QDateTime& dt) {
  const QDate d = dt.date();
  const QTime t = dt.time();
  return DayNumberOf({d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second(), t.msec()});
}

// Text in code page `codePage`. ASCII is the same bytes in every code page of the library's
// table, so most of a table's narrow columns skip the converter.
std::string NarrowText(const QString& text, int codePage) {
  std::string ascii(static_cast<size_t>(text.size()), '\0');
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i].unicode();
    if (unit >= 0x80) return codepage::FromWide(text.toStdU16String(), codePage);
    ascii[static_cast<size_t>(i)] = static_cast<char>(unit);
  }
  return ascii;
}

Variant DateFromQt(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::QDateTime:
      return TDateTime{DayNumberOfQt(value.toDateTime())};
    case QMetaType::QDate:
      return TDateTime{DayNumberOfQt(value.toDate().startOfDay())};
    case QMetaType::QTime:
      return TDateTime{DayNumberOfQt(QDateTime(QDate(1899, 12, 30), value.toTime()))};
    case QMetaType::QString:
      if (const auto days = ParseIsoDate(value.toString().toStdString())) return TDateTime{*days};
      return value.toString().toStdU16String();
    default:
      return TDateTime{value.toDouble()};
  }
}

Variant ByQtType(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
      return int64_t{value.toLongLong()};
    case QMetaType::Double:
    case QMetaType::Float:
      return value.toDouble();
    case QMetaType::Bool:
      return value.toBool();
    case QMetaType::QByteArray: {
      const QByteArray b = value.toByteArray();
      return std::vector<uint8_t>(b.begin(), b.end());
    }
    case QMetaType::QDateTime:
    case QMetaType::QDate:
    case QMetaType::QTime:
      return DateFromQt(value);
    default:
      return value.toString().toStdU16String();
  }
}

}  // namespace

QVariant ToQt(const Variant& value, TFieldType type, TBackend backend) {
  using K = Variant::Kind;
  const bool dateNumber =
      (value.kind() == K::Integer || value.kind() == K::Float) && IsDateType(type);
  if (value.kind() == K::DateTime || dateNumber) {
    const double days = value.AsFloat();
    return backend == TBackend::SQLite ? QVariant(days) : QVariant(QtDateTime(days));
  }
  switch (value.kind()) {
    case K::Null:
      return QVariant();
    case K::Integer:
      return QVariant(static_cast<qlonglong>(value.AsInteger()));
    case K::Float:
      return QVariant(value.AsFloat());
    case K::Bool:
      return QVariant(value.AsBool());
    case K::Bytes: {
      const std::vector<uint8_t> b = value.AsBytes();
      return QVariant(
          QByteArray(reinterpret_cast<const char*>(b.data()), static_cast<qsizetype>(b.size())));
    }
    default:
      return QVariant(QtText(value.AsWideString()));
  }
}

Variant FromQt(const QVariant& value, TFieldType type) {
  return FromQt(value, type, codepage::UserCodePage());
}

Variant FromQt(const QVariant& value, TFieldType type, int codePage) {
  if (value.isNull()) return Variant();
  switch (type) {
    case ftString:
    case ftFixedChar:
    case ftMemo:
      return NarrowText(value.toString(), codePage);
    case ftWideString:
      return value.toString().toStdU16String();
    case ftDate:
    case ftTime:
    case ftDateTime:
      return DateFromQt(value);
    case ftSmallint:
    case ftInteger:
    case ftLargeint: {
      bool ok = false;
      const qlonglong n = value.toLongLong(&ok);
      return ok ? Variant(int64_t{n}) : ByQtType(value);
    }
    case ftFloat:
    case ftBCD: {
      bool ok = false;
      const double d = value.toDouble(&ok);
      return ok ? Variant(d) : ByQtType(value);
    }
    case ftBoolean:
      return value.toBool();
    default:
      return ByQtType(value);
  }
}

TFieldType FieldTypeOfQt(const QSqlField& field, TBackend backend) {
  if (backend == TBackend::Odbc) {
    switch (field.typeID()) {
      case -8:  // SQL_WCHAR
      case -9:  // SQL_WVARCHAR
      case -10:
        return ftWideString;  // SQL_WLONGVARCHAR
      case 1:
        return ftFixedChar;  // SQL_CHAR
      case 12:
        return ftString;  // SQL_VARCHAR
      case -1:
        return ftMemo;  // SQL_LONGVARCHAR
      case 4:
        return ftInteger;
      case 5:
      case -6:
        return ftSmallint;
      case -5:
        return ftLargeint;
      case -7:
        return ftBoolean;
      case 6:
      case 7:
      case 8:
        return ftFloat;
      case 2:
      case 3:
        return ftBCD;
      case 9:
      case 91:
        return ftDate;
      case 10:
      case 92:
        return ftTime;
      case 11:
      case 93:
        return ftDateTime;
      case -2:
        return ftBytes;
      case -3:
      case -4:
        return ftVarBytes;
      default:
        break;
    }
  }
  switch (field.metaType().id()) {
    case QMetaType::Int:
      return ftInteger;
    case QMetaType::LongLong:
      return ftLargeint;
    case QMetaType::Double:
      return ftFloat;
    case QMetaType::Bool:
      return ftBoolean;
    case QMetaType::QDateTime:
      return ftDateTime;
    case QMetaType::QDate:
      return ftDate;
    case QMetaType::QTime:
      return ftTime;
    case QMetaType::QByteArray:
      return ftVarBytes;
    default:
      return ftUnknown;
  }
}

}  // namespace mv::db
