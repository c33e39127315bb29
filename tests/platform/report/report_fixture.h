// What the report tests share: an inbox of generated rows in a SQLite file opened as DBMAIN, a
// dataset over it with Chinese display labels, and poppler's reading of a PDF file.
#pragma once

#include <memory>
#include <string>

#include "platform/db/dataset.h"
#include "tests/support/temp_dir.h"

namespace mv::test {

// The inbox: `rows` messages (RefNo "R00001" ..., a Chinese subject, an amount), in a new SQLite
// file in `dir`, opened as DBMAIN until the object goes. The user's code page is 950 meanwhile.
class TestInbox {
 public:
  TestInbox(const TempDir& dir, int rows);
  ~TestInbox();

  // A dataset of every row in RefNo order, client cursor, labels "編號" / "Subject 主旨" /
  // "Amount"; the field Hidden is not visible.
  std::unique_ptr<db::TMVADODataSet> Open() const;

 private:
  ScopedEnv codePage_;
};

// Poppler's answers about the PDF file `path`: the page count (-1 when it is no PDF), the text
// of pages `first` ..= `last` (0 = to the end) as UTF-8, and the font list (pdffonts).
int PdfPageCount(const std::string& path);
std::string PdfText(const std::string& path, int first = 1, int last = 0);
std::string PdfFonts(const std::string& path);
// The page size line of pdfinfo ("595.276 x 841.89 pts (A4)").
std::string PdfPageSize(const std::string& path);

}  // namespace mv::test
