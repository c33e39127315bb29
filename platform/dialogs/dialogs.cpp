#include "platform/dialogs/dialogs.h"

#include <cstdio>

#include "platform/codepage/codepage.h"

namespace mv::dialogs {
namespace {

DialogProvider* installed = nullptr;

}  // namespace

std::vector<TMsgDlgBtn> TMsgDlgButtons::List() const {
  std::vector<TMsgDlgBtn> out;
  for (int b = mbYes; b <= mbHelp; ++b) {
    if (Contains(static_cast<TMsgDlgBtn>(b))) out.push_back(static_cast<TMsgDlgBtn>(b));
  }
  return out;
}

const char* ButtonName(TMsgDlgBtn button) {
  static const char* const kNames[] = {"Yes",    "No",  "OK",        "Cancel",     "Abort", "Retry",
                                       "Ignore", "All", "No to All", "Yes to All", "Help"};
  return kNames[button];
}

const char* KindName(TMsgDlgType kind) {
  static const char* const kNames[] = {"Warning", "Error", "Information", "Confirm", ""};
  return kNames[kind];
}

TMsgDlgBtn ConsoleDialogProvider::Show(const DialogRequest& request) {
  std::string line = codepage::Utf8FromWide(request.caption);
  if (const char* kind = KindName(request.kind); *kind != '\0') {
    line.append(" (").append(kind).append(")");
  }
  line.append(": ").append(codepage::Utf8FromWide(request.text)).append(" [");
  const char* separator = "";
  for (TMsgDlgBtn b : request.buttons.List()) {
    line.append(separator).append(ButtonName(b));
    separator = "/";
  }
  line.append("]\n");
  std::fwrite(line.data(), 1, line.size(), stderr);
  std::fflush(stderr);
  return request.defaultButton;
}

std::unique_ptr<TMsgDialog> ConsoleDialogProvider::Create(const DialogRequest& request) {
  return std::make_unique<TProviderMsgDialog>(*this, request);
}

bool ConsoleDialogProvider::InputQuery(InputQueryRequest& request) {
  std::string line = codepage::Utf8FromWide(request.caption) + ": " +
                     codepage::Utf8FromWide(request.prompt) + " [" +
                     codepage::Utf8FromWide(request.value) + "] [OK/Cancel]\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
  std::fflush(stderr);
  return false;
}

void TProviderMsgDialog::ScaleBy(int numerator, int denominator) {
  if (numerator <= 0 || denominator <= 0) return;
  numerator_ *= numerator;
  denominator_ *= denominator;
}

std::unique_ptr<TMsgDialog> RecordingDialogProvider::Create(const DialogRequest& request) {
  return std::make_unique<TProviderMsgDialog>(*this, request);
}

bool RecordingDialogProvider::InputQuery(InputQueryRequest& request) {
  inputRequests_.push_back(request);
  if (inputs_.empty()) return false;
  auto [accept, value] = std::move(inputs_.front());
  inputs_.pop_front();
  if (accept) request.value = std::move(value);
  return accept;
}

TMsgDlgBtn RecordingDialogProvider::Show(const DialogRequest& request) {
  requests_.push_back(request);
  if (answers_.empty()) return request.defaultButton;
  TMsgDlgBtn answer = answers_.front();
  answers_.pop_front();
  return answer;
}

DialogProvider& Provider() {
  static ConsoleDialogProvider console;
  return installed != nullptr ? *installed : console;
}

DialogProvider* SetProvider(DialogProvider* provider) {
  DialogProvider* previous = installed;
  installed = provider;
  return previous;
}

TMsgDlgBtn ShowDialog(const DialogRequest& request) {
  return Provider().Show(request);
}

}  // namespace mv::dialogs
