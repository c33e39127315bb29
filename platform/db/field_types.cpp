#include "platform/db/field_types.h"

#include <cctype>
#include <string>

namespace mv::db {
namespace {

struct TDeclared {
  const char* Name;
  TFieldType Type;
};

// Base type names without size, most specific first where one is a prefix of another.
constexpr TDeclared kDeclared[] = {
    {"nvarchar", ftWideString},
    {"nchar", ftWideString},
    {"ntext", ftWideString},
    {"varchar", ftString},
    {"char", ftFixedChar},
    {"text", ftMemo},
    {"smalldatetime", ftDateTime},
    {"datetime2", ftDateTime},
    {"datetime", ftDateTime},
    {"timestamp", ftDateTime},
    {"date", ftDate},
    {"time", ftTime},
    {"bigint", ftLargeint},
    {"smallint", ftSmallint},
    {"tinyint", ftSmallint},
    {"integer", ftInteger},
    {"int", ftInteger},
    {"bit", ftBoolean},
    {"boolean", ftBoolean},
    {"bool", ftBoolean},
    {"float", ftFloat},
    {"real", ftFloat},
    {"double", ftFloat},
    {"decimal", ftBCD},
    {"numeric", ftBCD},
    {"money", ftBCD},
    {"smallmoney", ftBCD},
    {"varbinary", ftVarBytes},
    {"binary", ftBytes},
    {"image", ftVarBytes},
    {"blob", ftVarBytes},
};

}  // namespace

TFieldType FieldTypeOfDeclared(const char* declaredType) {
  if (declaredType == nullptr) return ftUnknown;
  std::string base;
  for (const char* p = declaredType; *p && *p != '(' && *p != ' '; ++p) {
    base += static_cast<char>(std::tolower(static_cast<unsigned char>(*p)));
  }
  for (const TDeclared& d : kDeclared) {
    if (base == d.Name) return d.Type;
  }
  return ftUnknown;
}

bool IsNumericType(TFieldType type) {
  switch (type) {
    case ftSmallint:
    case ftInteger:
    case ftFloat:
    case ftBCD:
    case ftLargeint:
      return true;
    default:
      return false;
  }
}

}  // namespace mv::db
