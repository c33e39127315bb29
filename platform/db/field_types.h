// Field data type codes: the numbers of the classic field-type enumeration, which callers store
// and compare as plain numbers (a parameter entry keeps its type in one byte).
#pragma once

#include <cstdint>

namespace mv::db {

enum TFieldType : uint8_t {
  ftUnknown = 0,
  ftString = 1,       // narrow text: varchar
  ftSmallint = 2,     // smallint, tinyint
  ftInteger = 3,      // int
  ftBoolean = 5,      // bit
  ftFloat = 6,        // float, real
  ftBCD = 8,          // decimal, numeric, money
  ftDate = 9,         // date
  ftTime = 10,        // time
  ftDateTime = 11,    // datetime, smalldatetime
  ftBytes = 12,       // binary
  ftVarBytes = 13,    // varbinary, image, blob
  ftMemo = 16,        // text
  ftFixedChar = 23,   // char
  ftWideString = 24,  // nvarchar, nchar, ntext: wide text
  ftLargeint = 25,    // bigint
};

// The field type of a column declared as `declaredType` ("nvarchar(50)", "DateTime", "int" ...),
// compared without regard to case; ftUnknown when the name means nothing here.
TFieldType FieldTypeOfDeclared(const char* declaredType);

// True for the number types (smallint, int, float, decimal, bigint): the ones shown right-aligned.
[[nodiscard]] bool IsNumericType(TFieldType type);

}  // namespace mv::db
