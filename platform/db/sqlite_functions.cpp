#include "platform/db/sqlite_functions_p.h"

#include <sqlite3.h>

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/db/day_number_p.h"

namespace mv::db {
namespace {

std::string Lowered(const unsigned char* text) {
  std::string s = text ? reinterpret_cast<const char*>(text) : "";
  for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return s;
}

std::string TextOf(sqlite3_value* v) {
  const unsigned char* t = sqlite3_value_text(v);
  return t ? reinterpret_cast<const char*>(t) : "";
}

bool IsNumber(sqlite3_value* v) {
  const int t = sqlite3_value_type(v);
  return t == SQLITE_INTEGER || t == SQLITE_FLOAT;
}

void GetDate(sqlite3_context* ctx, int, sqlite3_value**) {
  sqlite3_result_double(ctx, NowDayNumber());
}

// Date text in the form of `style` brought to yyyy-mm-dd[ ...].
std::string IsoOfStyled(std::string text, int style) {
  if (style == 102 || style == 111) {
    for (size_t i = 0; i < text.size() && i < 10; ++i) {
      if (text[i] == '.' || text[i] == '/') text[i] = '-';
    }
  } else if (style == 112 && text.size() == 8) {
    text = text.substr(0, 4) + "-" + text.substr(4, 2) + "-" + text.substr(6, 2);
  }
  return text;
}

void ToDateTime(sqlite3_context* ctx, sqlite3_value* v, int style) {
  if (IsNumber(v)) return sqlite3_result_double(ctx, sqlite3_value_double(v));
  if (const auto days = ParseIsoDate(IsoOfStyled(TextOf(v), style))) {
    return sqlite3_result_double(ctx, *days);
  }
  sqlite3_result_error(
      ctx, "Conversion failed when converting date and/or time from character string.", -1);
}

std::string StyledDate(double days, int style) {
  const TDateParts p = PartsOfDayNumber(days);
  char b[40];
  switch (style) {
    case 102:
      std::snprintf(b, sizeof b, "%04d.%02d.%02d", p.Year, p.Month, p.Day);
      break;
    case 111:
      std::snprintf(b, sizeof b, "%04d/%02d/%02d", p.Year, p.Month, p.Day);
      break;
    case 112:
      std::snprintf(b, sizeof b, "%04d%02d%02d", p.Year, p.Month, p.Day);
      break;
    case 23:
      std::snprintf(b, sizeof b, "%04d-%02d-%02d", p.Year, p.Month, p.Day);
      break;
    default:
      std::snprintf(b, sizeof b, "%04d-%02d-%02d %02d:%02d:%02d", p.Year, p.Month, p.Day, p.Hour,
                    p.Minute, p.Second);
  }
  return b;
}

void ToText(sqlite3_context* ctx, sqlite3_value* v, const std::string& type, int style) {
  const bool dateStyle =
      style == 23 || style == 102 || style == 111 || style == 112 || style == 120;
  std::string text =
      IsNumber(v) && dateStyle ? StyledDate(sqlite3_value_double(v), style) : TextOf(v);
  const size_t open = type.find('(');
  if (open != std::string::npos) {
    const long size = std::strtol(type.c_str() + open + 1, nullptr, 10);
    // the size counts characters; cut after whole UTF-8 sequences
    size_t bytes = 0;
    for (long n = 0; n < size && bytes < text.size(); ++n) {
      ++bytes;
      while (bytes < text.size() && (static_cast<unsigned char>(text[bytes]) & 0xC0) == 0x80) {
        ++bytes;
      }
    }
    if (size > 0) text.resize(bytes);
  }
  sqlite3_result_text(ctx, text.c_str(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void ToInteger(sqlite3_context* ctx, sqlite3_value* v, const std::string& type) {
  if (IsNumber(v))
    return sqlite3_result_int64(ctx,
                                static_cast<sqlite3_int64>(std::trunc(sqlite3_value_double(v))));
  const std::string text = TextOf(v);
  char* end = nullptr;
  const long long n = std::strtoll(text.c_str(), &end, 10);
  while (end && *end == ' ') ++end;
  if (!text.empty() && end && *end == '\0') return sqlite3_result_int64(ctx, n);
  const std::string message = "Conversion failed when converting the varchar value '" + text +
                              "' to data type " + type + ".";
  sqlite3_result_error(ctx, message.c_str(), -1);
}

void ToFloat(sqlite3_context* ctx, sqlite3_value* v) {
  if (IsNumber(v)) return sqlite3_result_double(ctx, sqlite3_value_double(v));
  const std::string text = TextOf(v);
  char* end = nullptr;
  const double d = std::strtod(text.c_str(), &end);
  while (end && *end == ' ') ++end;
  if (!text.empty() && end && *end == '\0') return sqlite3_result_double(ctx, d);
  sqlite3_result_error(ctx, "Error converting data type varchar to numeric.", -1);
}

bool OneOf(const std::string& base, std::initializer_list<const char*> names) {
  for (const char* n : names) {
    if (base == n) return true;
  }
  return false;
}

void Convert(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  const std::string type = Lowered(sqlite3_value_text(argv[0]));
  const std::string base = type.substr(0, type.find_first_of("( "));
  const int style = argc > 2 ? sqlite3_value_int(argv[2]) : 0;
  sqlite3_value* v = argv[1];
  if (OneOf(base, {"datetime", "smalldatetime", "datetime2", "date", "varchar", "nvarchar", "char",
                   "nchar", "int", "bigint", "smallint", "tinyint", "bit", "float", "real",
                   "decimal", "numeric", "money"}) &&
      sqlite3_value_type(v) == SQLITE_NULL) {
    return sqlite3_result_null(ctx);
  }
  if (OneOf(base, {"datetime", "smalldatetime", "datetime2", "date"})) {
    return ToDateTime(ctx, v, style);
  }
  if (OneOf(base, {"varchar", "nvarchar", "char", "nchar"})) return ToText(ctx, v, type, style);
  if (OneOf(base, {"int", "bigint", "smallint", "tinyint", "bit"})) return ToInteger(ctx, v, base);
  if (OneOf(base, {"float", "real", "decimal", "numeric", "money"})) return ToFloat(ctx, v);
  const std::string message = "Type " + base + " is not a defined system type.";
  sqlite3_result_error(ctx, message.c_str(), -1);
}

}  // namespace

bool RegisterSqlServerFunctions(sqlite3* db) {
  if (db == nullptr) return false;
  const int utf8 = SQLITE_UTF8;
  return sqlite3_create_function(db, "getdate", 0, utf8, nullptr, GetDate, nullptr, nullptr) ==
             SQLITE_OK &&
         sqlite3_create_function(db, "convert", 2, utf8 | SQLITE_DETERMINISTIC, nullptr, Convert,
                                 nullptr, nullptr) == SQLITE_OK &&
         sqlite3_create_function(db, "convert", 3, utf8 | SQLITE_DETERMINISTIC, nullptr, Convert,
                                 nullptr, nullptr) == SQLITE_OK;
}

}  // namespace mv::db
