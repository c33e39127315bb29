// The progress window of a table export or import: which table of how many, a bar over its rows
// (a moving bar while the count is unknown, as on import), and a Cancel button. Captions follow
// the language changer's current language (English in language 1, otherwise Chinese).
#pragma once

#include <QProgressDialog>

#include "common/tables/table_archive.h"

class QPushButton;

namespace mv {

class TTablesProgressDialog : public QProgressDialog {
  Q_OBJECT

 public:
  enum TKind { tkExport, tkImport };

  // A window for a run of kind `kind`; not shown until the first progress (or show()).
  explicit TTablesProgressDialog(TKind kind, QWidget* parent = nullptr);

  // The event to hand to ExportTables or ImportTables: shows `progress`, lets the window handle
  // the user's input, and answers false once Cancel (or Esc) was pressed.
  tables::TProgressEvent ProgressEvent();

  // Shows where the run stands.
  void ShowProgress(const tables::TArchiveProgress& progress);

  // Esc and the window's close button cancel the run, as the Cancel button does.
  void reject() override;

 private:
  TKind kind_;
  QPushButton* cancel_;
};

}  // namespace mv
