#include "platform/qt/code_page_field.h"

#include <QVariant>

namespace mv::qt {
namespace {

constexpr char kProperty[] = "mvCodePageField";

}  // namespace

void SetCodePageField(QLineEdit& edit, bool codePage) {
  edit.setProperty(kProperty, codePage);
}

bool IsCodePageField(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr && widget->property(kProperty).toBool();
}

}  // namespace mv::qt
