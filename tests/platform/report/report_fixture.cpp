#include "tests/platform/report/report_fixture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "platform/codepage/codepage.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "tests/support/run_program.h"

namespace mv::test {
namespace {

void Exec(const std::string& sql) {
  db::TMVADOCommand command;
  command.SetCommandText(codepage::WideFromUtf8(sql));
  command.Execute();
}

std::string PdfInfoLine(const std::string& path, const std::string& key) {
  const RunResult info = RunProgram("/usr/bin/pdfinfo", {path});
  std::smatch match;
  if (info.exitCode != 0 || !std::regex_search(info.out, match, std::regex(key + ": *([^\n]*)")))
    return {};
  return match[1];
}

}  // namespace

TestInbox::TestInbox(const TempDir& dir, int rows) : codePage_("MV_CODEPAGE", "950") {
  const std::string file = dir.Write("inbox.db", "");
  db::OpenConnection(db::kMainConnection, "sqlite:" + file);
  Exec(
      "create table Inbox (RefNo varchar(10) primary key, Subject nvarchar(80), Amount float, "
      "Hidden int)");
  Exec("with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
       std::to_string(rows) +
       ") insert into Inbox select printf('R%05d', i), N'報關單 Declaration ' || i, i * 1.5, i "
       "from n");
}

TestInbox::~TestInbox() {
  db::CloseConnection(db::kMainConnection);
}

std::unique_ptr<db::TMVADODataSet> TestInbox::Open() const {
  auto dataset = std::make_unique<db::TMVADODataSet>();
  dataset->SetCommandText("select RefNo, Subject, Hidden, Amount from Inbox order by RefNo");
  dataset->Open();
  const auto label = [](const char16_t* text) { return codepage::FromWide(text, 950); };
  dataset->FieldByName("RefNo").SetDisplayLabel(label(u"編號"));
  dataset->FieldByName("Subject").SetDisplayLabel(label(u"Subject 主旨"));
  dataset->FieldByName("Amount").SetDisplayLabel("Amount");
  dataset->FieldByName("Hidden").SetVisible(false);
  return dataset;
}

int PdfPageCount(const std::string& path) {
  const std::string pages = PdfInfoLine(path, "Pages");
  return pages.empty() ? -1 : std::stoi(pages);
}

std::string PdfPageSize(const std::string& path) {
  return PdfInfoLine(path, "Page size");
}

std::string PdfText(const std::string& path, int first, int last) {
  std::vector<std::string> args{"-enc", "UTF-8", "-f", std::to_string(first)};
  if (last > 0) args.insert(args.end(), {"-l", std::to_string(last)});
  args.insert(args.end(), {path, "-"});
  return RunProgram("/usr/bin/pdftotext", args).out;
}

std::string PdfFonts(const std::string& path) {
  return RunProgram("/usr/bin/pdffonts", {path}).out;
}

}  // namespace mv::test
