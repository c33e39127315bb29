// Totals over the rows of a dataset: the sibling package's one primitive over the database layer,
// which it links.
#pragma once

#include <string_view>

namespace mv::db {
class TMVADODataSet;
}

namespace mv::modules {

// The sum of the field `field` over every row of `dataset`, nulls counting 0; 0 for a closed
// dataset. With a client cursor the current row is the same afterwards; a server cursor sums from
// the current row on and ends at Eof. A pending edit is posted first, as any move posts it.
// Raises EDatabaseError for an unknown field and EVariantError for a value that is no number.
double _MV_Totals(db::TMVADODataSet& dataset, std::string_view field);

}  // namespace mv::modules
