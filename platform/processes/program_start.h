// Starting another program by its command line or by its list of arguments, without waiting for
// it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace mv::processes {

// How the started program's window first appears.
enum TShowMode { smHidden, smNormal };

// The start result of a program that started; any value of 32 or more means started.
inline constexpr int32_t kStarted = 33;
// Start results below 32: why the program did not start.
inline constexpr int32_t kStartNoCommand = 0;     // empty command line, one that cannot be split,
                                                  // or a zero byte in a name or argument
inline constexpr int32_t kStartNotFound = 2;      // no such program
inline constexpr int32_t kStartPathNotFound = 3;  // a folder on the program's path is missing
inline constexpr int32_t kStartDenied = 5;        // the program may not be run
inline constexpr int32_t kStartNoMemory = 8;      // not enough memory or processes left
inline constexpr int32_t kStartBadFormat = 11;    // the file is not a program this system runs

// Starts `commandLine` (narrow text in the system code page: the program, then its arguments) and
// returns at once with the start result: kStarted, or one of the values below 32 above. The
// program runs on by itself; the caller never waits for it and is never left with a finished child
// to collect.
// POSIX: the command line is taken to UTF-8 (files::EncodeFileName) and then split into words as
// the shell splits them (blanks separate, quotes and backslashes group), with variables, "~" and
// file-name patterns expanded, but with no command substitution, redirection or pipes (such a
// command line gives kStartNoCommand); so a Big5 character whose second byte is a backslash or a
// quote stays one character. A program name without "/" is looked up on PATH. The program runs
// in a session of its own. smHidden gives it no terminal: its standard input, output and error
// are /dev/null. smNormal lets it share the caller's.
// Windows: the command line goes to CreateProcessW as it stands (UTF-16 of the system code page);
// smHidden starts the program with its window hidden. A zero byte gives kStartNoCommand.
int32_t StartProgram(const std::string& commandLine, TShowMode mode);

// Starts the program `arguments[0]` with the arguments after it, each handed over whole as it
// stands (blanks, quotes, backslashes and "$" are ordinary characters; nothing is split or
// expanded), and returns the start result as StartProgram does; kStartNoCommand for an empty list
// or program name. Every element is narrow text in the system code page.
// POSIX: each element reaches the program in UTF-8 (files::EncodeFileName); a zero byte in one
// gives kStartNoCommand. A program name without "/" is looked up on PATH.
// Windows: the list is written as a command line that the program's start-up splits back into
// the same arguments.
int32_t StartProgramArgs(const std::vector<std::string>& arguments, TShowMode mode);

}  // namespace mv::processes
