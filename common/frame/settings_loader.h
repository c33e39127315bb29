// The system settings loader: reads ServerPath + "SEDIFSYS.INI" once, at start-up, into the
// shared records and string lists, loads the service packages named in it and tells each loaded
// package that the system has started, and builds the per-box message-type tables. Nothing is
// written back. A missing file or key gives the defaults; errors (a box section line without its
// [InboxAction] line, a package failing its start notice) go on to the caller.
#pragma once

#include <cstdint>
#include <string_view>

namespace mv {

// Orvex line; called by Init. Runs once per process.
void InitRecord();
// Quenta line; called by Init_Quenta. Also reads the installation language ([Language] Interface
// and AnsiGUI), the four "C_" box sections and [Duplicate_Submission].
void InitRecord_Quenta();

// Counts the codes of a box value: drops the first character, then, as long as `delimiter`
// occurs in what remains, counts one and drops the first seven characters. Right for values of
// six-character codes each followed by "|" behind a leading character ("|HKTDLD|HKCTRA|" -> 2).
int GetCount(char delimiter, std::string_view text);

// The inbox refresh interval in seconds of an [AUTO_REFRESH] INBOX value: 1000 plus minutes;
// 1000 or less switches the refresh off (0).
int32_t InboxRefreshSeconds(int32_t value);
// The sent-box refresh interval in seconds of an [AUTO_REFRESH] SENTBOX value: 1000 plus minutes
// plus seconds / 100 (1001.30 -> 90); 1000 or less switches the refresh off (0).
int32_t SentboxRefreshSeconds(double value);

}  // namespace mv
