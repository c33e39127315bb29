#include "common/forms/records_taker_factory.h"

#include "common/forms/show_panel_holder.h"

namespace mv {

std::unique_ptr<TRecordsTaker> TRecordsTakerFactory::CreateOfDefaultShowLabel(
    db::TMVADODataSet* dataSet, std::shared_ptr<controls::TTextControl> label) {
  auto taker = std::make_unique<TRecordsTaker>(dataSet);
  taker->AddLabel(std::move(label));
  taker->AddPanel(TShowPanelHolder::GetInstance().GetPanel());
  return taker;
}

std::unique_ptr<TRecordsTaker> TRecordsTakerFactory::CreateOfDefaultShowPanel(
    db::TMVADODataSet* dataSet) {
  auto taker = std::make_unique<TRecordsTaker>(dataSet);
  taker->AddPanel(TShowPanelHolder::GetInstance().GetPanel());
  return taker;
}

std::unique_ptr<TRecordsTaker> TRecordsTakerFactory::CreateOfShowForm(
    db::TMVADODataSet* dataSet, std::shared_ptr<controls::TTextControl> form) {
  auto taker = std::make_unique<TRecordsTaker>(dataSet);
  taker->AddForm(std::move(form));
  return taker;
}

}  // namespace mv
