// Values and day numbers.
#include <gtest/gtest.h>

#include "platform/db/day_number_p.h"
#include "platform/db/field_types.h"
#include "platform/db/variant.h"

namespace mv::db {
namespace {

TEST(DayNumber, CalendarNegativeDaysAndIsoTexts) {
  EXPECT_EQ(DayNumberOf({1899, 12, 30}), 0);
  EXPECT_EQ(DayNumberOf({2024, 2, 29}), 45351);
  EXPECT_EQ(DayNumberOf({1899, 12, 29, 6}), -1.25);
  const TDateParts p = PartsOfDayNumber(-1.25);
  EXPECT_EQ(p.Day, 29);
  EXPECT_EQ(p.Hour, 6);
  // 23:59:59.9996 rounds to the next midnight
  EXPECT_EQ(PartsOfDayNumber(45351.9999999999).Day, 1);
  EXPECT_EQ(DayNumberText(45351.5), "2024-02-29 12:00:00");
  EXPECT_EQ(DayNumberText(45351), "2024-02-29");
  // ISO texts and their mistakes
  EXPECT_EQ(ParseIsoDate(" 2024-02-29T12:00 "), 45351.5);
  EXPECT_EQ(ParseIsoDate("2024-02-29 00:00:01.500"), 45351 + 1.5 / 86400);
  EXPECT_FALSE(ParseIsoDate("2023-02-29"));
  EXPECT_FALSE(ParseIsoDate("2024-02-29x"));
  EXPECT_FALSE(ParseIsoDate("2024-02-29 25:00"));
  EXPECT_FALSE(ParseIsoDate(""));
}

TEST(Variant, ReadsAcrossKindsAndRefusesWhatDoesNotConvert) {
  EXPECT_EQ(Variant(" 42 ").AsInteger(), 42);
  EXPECT_EQ(Variant(-2.9).AsInteger(), -2);
  EXPECT_EQ(Variant(u"2.5").AsFloat(), 2.5);
  EXPECT_EQ(Variant(0.1).AsString(), "0.1");
  EXPECT_EQ(Variant(TDateTime{45351}).AsString(), "2024-02-29");
  EXPECT_EQ(Variant("2024-02-29 06:00").AsDateTime().Days, 45351.25);
  EXPECT_TRUE(Variant("TRUE").AsBool());
  EXPECT_FALSE(Variant().AsBool());
  EXPECT_EQ(Variant().AsString(), "");
  EXPECT_EQ(Variant(u"中").AsWideString(), u"中");
  EXPECT_THROW(Variant("12a").AsInteger(), EVariantError);
  EXPECT_THROW(Variant("").AsFloat(), EVariantError);
  EXPECT_THROW(Variant("yes").AsBool(), EVariantError);
  EXPECT_THROW(Variant(std::vector<uint8_t>{1}).AsFloat(), EVariantError);
  EXPECT_THROW(Variant("29/02/2024").AsDateTime(), EVariantError);
}

// The common types are checked on real columns in the data set tests.
TEST(FieldTypeOfDeclared, ServerTypeNamesToClassicCodes) {
  EXPECT_EQ(FieldTypeOfDeclared("NVARCHAR(50)"), ftWideString);
  EXPECT_EQ(FieldTypeOfDeclared("varbinary(max)"), ftVarBytes);
  EXPECT_EQ(FieldTypeOfDeclared("geometry"), ftUnknown);
  EXPECT_EQ(FieldTypeOfDeclared(nullptr), ftUnknown);
}

}  // namespace
}  // namespace mv::db
