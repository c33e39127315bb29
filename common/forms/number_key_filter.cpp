#include "common/forms/number_key_filter.h"

#include <QKeyEvent>
#include <algorithm>

namespace mv {

bool TNumberKeyFilter::Passes(const QString& text) {
  return std::all_of(text.begin(), text.end(),
                     [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

bool TNumberKeyFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && !Passes(static_cast<QKeyEvent*>(event)->text()))
    return true;
  return QObject::eventFilter(watched, event);
}

}  // namespace mv
