// Bilingual texts of errors: the file errors of the run-time file layer and the errors of the
// communication port. Results are narrow text in the form the current language shows it (the
// user's code page, or GB in language 3; see lang_changer.h).
#pragma once

#include <exception>
#include <string>

namespace mv {

// The message of `error` (its what(), unchanged), except for an EInOutError with code 102, 103,
// 104 or 105, whose message becomes the bilingual text of that file error in the current
// language.
std::string ErrorMsg(const std::exception& error);

// The text of communication error `code`: from 5000 up "Com Port Error: " / "連接埠錯誤: "
// followed by catalogue text `code`; 99 catalogue text 99 as it stands; any other code catalogue
// text 4999 formatted with the code as a whole number ("%d").
std::string get_comm_err_str(int code);

}  // namespace mv
