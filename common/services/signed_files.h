// Signed message files: an XML text whose document is followed by one "<electronicSignature>"
// element. XMLInitMsgList splits such a file into its document part and its signature part,
// written beside it with the extensions ".d" and ".s", for the signature check. Texts and file
// names are narrow (bytes as they stand); the split works on bytes and never changes them.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// Result codes of XMLInitMsgList.
inline constexpr int kSplitDone = 0;            // both parts written
inline constexpr int kSplitNoFileName = -1;     // the file name is empty
inline constexpr int kSplitNotFound = -2;       // no file of that name
inline constexpr int kSplitReadError = -3;      // the file could not be read
inline constexpr int kSplitWriteError = -4;     // a part file could not be written
inline constexpr int kSplitNoTags = -11;        // neither signature tag occurs
inline constexpr int kSplitNoOpening = -12;     // the closing tag occurs without the opening one
inline constexpr int kSplitNoClosing = -13;     // the opening tag occurs without the closing one
inline constexpr int kSplitTagsReversed = -14;  // the closing tag comes before the opening one

// Splits the signed message file `fileName`. Its lines (ending at CR LF, LF or CR) are trimmed
// of blanks and control characters at both ends and joined with nothing between them. The
// document part is the joined text from its start through the end of the first
// "<electronicSignature>" (the opening tag stays at its end); the signature part is the text
// between that tag and the first "</electronicSignature>"; what follows the closing tag is
// dropped. The parts are written to `fileName` with its extension changed to ".d" and ".s"
// (added when it has none), each replaced as a whole, without a line end; an empty signature
// gives an empty ".s" file. Returns kSplitDone with `dataFile` and `sigFile` naming the parts,
// or one of the negative codes above with both names empty; after a write error no part file of
// this call is left behind. Shows nothing and throws nothing.
int XMLInitMsgList(const std::string& fileName, std::string& dataFile, std::string& sigFile);

// The parts of a signed message text whose lines are already joined.
struct TSignedParts {
  int Code = kSplitDone;  // kSplitDone or one of the tag codes -11 .. -14
  std::string Document;   // set when Code is kSplitDone
  std::string Signature;  // set when Code is kSplitDone
};
TSignedParts SplitSignedText(std::string_view joined);

// The lines of `bytes` (ending at CR LF, LF or CR) trimmed of blanks and control characters at
// both ends and joined with nothing between them.
std::string JoinTrimmedLines(std::string_view bytes);

// `path` with the extension of its last component (from its last ".") replaced by `extension`
// ("a/b.xml", ".d" -> "a/b.d"), or `extension` appended when the name has none.
std::string ChangeFileExt(std::string_view path, std::string_view extension);

}  // namespace mv
