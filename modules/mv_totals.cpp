#include "modules/mv_totals.h"

#include "platform/db/dataset.h"

namespace mv::modules {

double _MV_Totals(db::TMVADODataSet& dataset, std::string_view field) {
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
