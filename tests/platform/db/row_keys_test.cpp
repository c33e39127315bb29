// The key columns a dataset selects beside the columns it reads, ahead of them; texts whose rows
// the extra columns would change are left alone.
#include <gtest/gtest.h>

#include "platform/db/row_keys_p.h"

namespace mv::db {
namespace {

TEST(RowKeys, KeysGoFirstInAPlainSelectOnly) {
  const std::vector<std::string> keys{"userid", "a]b"};
  EXPECT_EQ(WithKeyColumns(u" \r\nSelect Preference from sysuser", keys),
            u" \r\nSelect [userid], [a]]b], Preference from sysuser");
  EXPECT_EQ(WithKeyColumns(u"select*from t", {"k"}), u"select [k], *from t");
  EXPECT_EQ(WithKeyColumns(u"SELECT ALL\ta from t", {"k"}), u"SELECT ALL\t[k], a from t");
  EXPECT_EQ(WithKeyColumns(u"select [a b], \"c\" as d, t.* from t where x = 'group'", {"k"}),
            u"select [k], [a b], \"c\" as d, t.* from t where x = 'group'");
  EXPECT_EQ(WithKeyColumns(u"select a from t", {}), u"");
  const char16_t* untouched[] = {u"select distinct a from t",
                                 u"select top 5 a from t",
                                 u"selected from t",
                                 u"-- c\nselect a from t",
                                 u"with x as (select 1)",
                                 u"select count(*) from t",
                                 u"select a from t where b = 1 group by a",
                                 u"select 'x', a from t",
                                 u"select a from t union select a from u",
                                 u"select a"};
  for (size_t i = 0; i < std::size(untouched); ++i) {
    EXPECT_EQ(WithKeyColumns(untouched[i], {"k"}), u"") << i;
  }
}

}  // namespace
}  // namespace mv::db
