// The columns of a data grid as the settings routines see them, without the toolkit: each
// column is bound to one field of the grid's dataset by the field's name, and the grid's rows
// take three colours. The Qt layer implements it over its data-aware grid.
#pragma once

#include <cstdint>
#include <string_view>

namespace mv::controls {

// A colour value: 0x00BBGGRR for an RGB colour, or 0xFF000000 plus a system colour index (the
// classic system colour numbers: 5 the window background, 13 the selection ...).
using TColor = std::uint32_t;

class TGridColumns {
 public:
  virtual ~TGridColumns() = default;
  // The index of the first column bound to the field named `fieldName` (UTF-8, as the dataset
  // names its fields; compared without regard to ASCII letter case); -1 when there is none.
  virtual int FindColumn(std::string_view fieldName) const = 0;
  // The width in pixels of column `column` (an index FindColumn gave).
  virtual int ColumnWidth(int column) const = 0;
  // Sets the width in pixels of column `column`; the grid decides what a width below its
  // smallest usable one becomes.
  virtual void SetColumnWidth(int column, int width) = 0;
  // Colours the rows: what each of the three colours paints is the grid's choice and its
  // implementation documents it. A colour the grid cannot show leaves that part as it was.
  virtual void SetColors(TColor first, TColor second, TColor third) = 0;
};

}  // namespace mv::controls
