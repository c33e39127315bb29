// The printers of the machine as the report engine sees them: a list of names, a default, and a
// QPrinter for one of them. The process has one printer set; tests put in one with no printer, or
// with a printer that prints into a PDF file.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include <QPrinter>

namespace mv::report {

class TPrinterSet {
 public:
  virtual ~TPrinterSet() = default;
  // The printers' names (UTF-16), in the order of their indexes; empty when there is none.
  virtual QStringList Names() const = 0;
  // The index of the default printer, -1 when there is no printer.
  virtual int DefaultIndex() const = 0;
  // A printer ready to print on printer `index` (-1 = the default one); nullptr when there is no
  // such printer.
  virtual std::unique_ptr<QPrinter> Open(int index) const = 0;
  // True when at least one printer exists.
  bool Any() const { return !Names().isEmpty(); }
};

// The machine's printers, through QPrinterInfo.
class TSystemPrinters : public TPrinterSet {
 public:
  QStringList Names() const override;
  int DefaultIndex() const override;
  std::unique_ptr<QPrinter> Open(int index) const override;
};

// One printer, named `name`, that prints into the PDF file `fileName` (each print replaces it).
class TPdfFilePrinter : public TPrinterSet {
 public:
  TPdfFilePrinter(QString name, QString fileName)
      : name_(std::move(name)), fileName_(std::move(fileName)) {}
  QStringList Names() const override { return {name_}; }
  int DefaultIndex() const override { return 0; }
  std::unique_ptr<QPrinter> Open(int index) const override;

 private:
  QString name_;
  QString fileName_;
};

// A machine without printers.
class TNoPrinters : public TPrinterSet {
 public:
  QStringList Names() const override { return {}; }
  int DefaultIndex() const override { return -1; }
  std::unique_ptr<QPrinter> Open(int) const override { return nullptr; }
};

// The process's printer set: the machine's printers unless another one is installed.
TPrinterSet& Printers();
// Installs `printers` (not owned; nullptr puts the machine's printers back).
void SetPrinters(TPrinterSet* printers);

}  // namespace mv::report
