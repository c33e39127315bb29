// The usual record-count displays of a list screen, built in one call. Each result watches
// `dataSet` (borrowed, may be nullptr; it must outlive the taker).
#pragma once

#include <memory>

#include "common/forms/records_taker.h"

namespace mv {

class TRecordsTakerFactory {
 public:
  TRecordsTakerFactory() = delete;

  // A label display of `label`, then a panel display of the shared status panel
  // (show_panel_holder.h). Without a shared panel yet, that display shows nothing.
  [[nodiscard]] static std::unique_ptr<TRecordsTaker> CreateOfDefaultShowLabel(
      db::TMVADODataSet* dataSet, std::shared_ptr<controls::TTextControl> label);
  // Only a panel display of the shared status panel.
  [[nodiscard]] static std::unique_ptr<TRecordsTaker> CreateOfDefaultShowPanel(
      db::TMVADODataSet* dataSet);
  // Only a caption display of the window `form`.
  [[nodiscard]] static std::unique_ptr<TRecordsTaker> CreateOfShowForm(
      db::TMVADODataSet* dataSet, std::shared_ptr<controls::TTextControl> form);
};

}  // namespace mv
