// Totals over the rows of a dataset. Written in this header, so that the modules package needs
// nothing of the database layer itself; the library, which links both, compiles it.
#pragma once

#include <string_view>

#include "platform/db/dataset.h"

namespace mv::modules {

// The sum of the field `field` over every row of `dataset`, nulls counting 0; 0 for a closed
// dataset. With a client cursor the current row is the same afterwards; a server cursor sums from
// the current row on and ends at Eof. A pending edit is posted first, as any move posts it.
// Raises EDatabaseError for an unknown field and EVariantError for a value that is no number.
inline double _MV_Totals(db::TMVADODataSet& dataset, std::string_view field) {
  if (!dataset.Active()) return 0;
  db::TField& f = dataset.FieldByName(field);
  const bool client = dataset.CursorLocation() == db::clUseClient;
  const int current = dataset.RecNo();
  if (client) dataset.First();
  double sum = 0;
  for (; !dataset.Eof(); dataset.Next()) sum += f.AsFloat();
  if (client && current > 0) dataset.SetRecNo(current);
  return sum;
}

}  // namespace mv::modules
