#include "platform/qt/column_menu.h"

#include <QAction>
#include <QKeyEvent>

#include "platform/codepage/codepage.h"
#include "platform/qt/qt_text.h"

namespace mv::qt {
namespace {

// A display label as a menu caption: an "&" stays a character instead of marking a shortcut.
QString Caption(const db::TField& field) {
  return ToQString(codepage::ToWide(field.DisplayLabel(), codepage::UserCodePage()))
      .replace(u'&', QStringLiteral("&&"));
}

}  // namespace

ColumnMenu::ColumnMenu(QWidget* parent, const QString& prefix) : QMenu(parent), prefix_(prefix) {
  setTitle(tr("Columns"));
  setAccessibleName(tr("Columns"));
  connect(this, &QMenu::aboutToShow, this, [this] { Sync(true); });
}

ColumnMenu::~ColumnMenu() = default;

// Space switches the highlighted item and keeps the menu open, so that several fields can be
// switched in one go; Enter switches it and closes the menu.
void ColumnMenu::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier &&
      activeAction() != nullptr) {
    activeAction()->trigger();
    event->accept();
    return;
  }
  QMenu::keyPressEvent(event);
}

void ColumnMenu::SetDataSet(db::TMVADODataSet* dataset) {
  link_.Reset();
  dataset_ = dataset;
  if (dataset_ != nullptr) {
    link_ = db::TDataSetLink(*dataset_, [this](db::TMVADODataSet&, const db::TDataSetChange& c) {
      switch (c.Event) {
        case db::deDestroying:
          link_.Reset();
          dataset_ = nullptr;
          [[fallthrough]];
        case db::deOpened:
        case db::deRefreshed:
        case db::deClosed:
        case db::deDataSetChanged:
          Sync(true);
          break;
        case db::deLayoutChanged:
          Sync(false);
          break;
        default:  // rows do not change the columns
          break;
      }
    });
  }
  Sync(true);
}

QAction* ColumnMenu::ItemOfField(std::string_view fieldName) const {
  const QString name = prefix_ + QString::fromUtf8(fieldName.data(), fieldName.size());
  for (QAction* item : actions()) {
    if (item->objectName().compare(name, Qt::CaseInsensitive) == 0) return item;
  }
  return nullptr;
}

void ColumnMenu::Choose(const QString& fieldName, bool visible) {
  if (dataset_ == nullptr) return;
  if (db::TField* field = dataset_->FindField(fieldName.toStdString())) field->SetVisible(visible);
}

void ColumnMenu::Sync(bool reorder) {
  const bool open = dataset_ != nullptr && dataset_->Active();
  QList<QAction*> ordered;
  for (int i = 0; open && i < dataset_->FieldCount(); ++i) {
    const db::TField& field = dataset_->Fields(i);
    QAction* item = ItemOfField(field.FieldName());
    if (item == nullptr) {
      if (!reorder) continue;
      const QString fieldName = QString::fromStdString(field.FieldName());
      item = new QAction(this);
      item->setObjectName(prefix_ + fieldName);
      item->setCheckable(true);
      // The item is the context, not the menu: a menu drops every connection of an item's
      // signals to itself when the item is taken out to be put back in order.
      connect(item, &QAction::triggered, item,
              [this, fieldName](bool checked) { Choose(fieldName, checked); });
    }
    item->setText(Caption(field));
    item->setChecked(field.Visible());
    ordered.push_back(item);
  }
  if (!reorder) return;
  for (QAction* item : actions()) {
    removeAction(item);
    if (!ordered.contains(item)) item->deleteLater();
  }
  addActions(ordered);
}

}  // namespace mv::qt
