#include "common/services/signed_files.h"

#include <algorithm>
#include <optional>

#include "common/services/msg_fields.h"
#include "platform/files/paths.h"

namespace mv {
namespace {

constexpr std::string_view kOpeningTag = "<electronicSignature>";
constexpr std::string_view kClosingTag = "</electronicSignature>";

// Writes both parts; on failure removes the document part when it was already written.
bool WriteParts(const TSignedParts& parts, const std::string& dataFile,
                const std::string& sigFile) {
  bool dataWritten = false;
  try {
    files::ReplaceFileAtomically(dataFile, parts.Document);
    dataWritten = true;
    files::ReplaceFileAtomically(sigFile, parts.Signature);
    return true;
  } catch (const files::EFileError&) {
    if (dataWritten) files::RemoveFile(dataFile);
    return false;
  }
}

}  // namespace

std::string JoinTrimmedLines(std::string_view bytes) {
  std::string joined;
  joined.reserve(bytes.size());
  for (const std::string& line : SplitLines(bytes)) joined += TrimControls(line);
  return joined;
}

TSignedParts SplitSignedText(std::string_view joined) {
  const size_t opening = joined.find(kOpeningTag);
  const size_t closing = joined.find(kClosingTag);
  if (opening == joined.npos && closing == joined.npos) return {kSplitNoTags, {}, {}};
  if (opening == joined.npos) return {kSplitNoOpening, {}, {}};
  if (closing == joined.npos) return {kSplitNoClosing, {}, {}};
  if (closing < opening) return {kSplitTagsReversed, {}, {}};
  const size_t documentEnd = opening + kOpeningTag.size();
  // "</" never occurs inside the opening tag, so a closing tag behind it starts past its end.
  const size_t signatureEnd = std::max(closing, documentEnd);
  return {kSplitDone, std::string(joined.substr(0, documentEnd)),
          std::string(joined.substr(documentEnd, signatureEnd - documentEnd))};
}

std::string ChangeFileExt(std::string_view path, std::string_view extension) {
  const size_t nameStart = path.rfind(files::kPathDelim);
  const size_t dot = path.rfind('.');
  const bool hasExtension = dot != path.npos && (nameStart == path.npos || dot > nameStart);
  return std::string(path.substr(0, hasExtension ? dot : path.size())) + std::string(extension);
}

int XMLInitMsgList(const std::string& fileName, std::string& dataFile, std::string& sigFile) {
  dataFile.clear();
  sigFile.clear();
  if (fileName.empty()) return kSplitNoFileName;
  if (!files::FileExists(fileName)) return kSplitNotFound;
  const std::optional<std::string> bytes = files::ReadWholeFile(fileName);
  if (!bytes) return kSplitReadError;
  const TSignedParts parts = SplitSignedText(JoinTrimmedLines(*bytes));
  if (parts.Code != kSplitDone) return parts.Code;
  const std::string data = ChangeFileExt(fileName, ".d");
  const std::string sig = ChangeFileExt(fileName, ".s");
  if (!WriteParts(parts, data, sig)) return kSplitWriteError;
  dataFile = data;
  sigFile = sig;
  return kSplitDone;
}

}  // namespace mv
