#include "sending/mail.h"

#include <filesystem>
#include <system_error>

#include "base/line_file.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// Notes whether every step so far has worked.
class Steps {
 public:
  void Note(bool worked) { allWorked_ = allWorked_ && worked; }
  [[nodiscard]] bool AllWorked() const { return allWorked_; }

 private:
  bool allWorked_ = true;
};

// Mail clients change the current folder, and every path of the workspace hangs on it.
class SameFolderAfterwards {
 public:
  SameFolderAfterwards() : folder_(fs::current_path(error_)) {}
  ~SameFolderAfterwards() {
    if (!error_) fs::current_path(folder_, error_);
  }
  SameFolderAfterwards(const SameFolderAfterwards&) = delete;
  SameFolderAfterwards& operator=(const SameFolderAfterwards&) = delete;

 private:
  std::error_code error_;
  fs::path folder_;
};

void StripOuterLineEnds(Text& texte) {
  if (texte.starts_with(LineEnd)) texte.erase(0, LineEnd.size());
  if (texte.ends_with(LineEnd)) texte.erase(texte.size() - LineEnd.size());
}

// The name of the file that a piece leads to, empty when it leads to none.
Text FileNameOf(TextView piece) {
  const fs::path path = PathOf(piece);
  std::error_code unreadable;
  return fs::is_regular_file(path, unreadable) ? TextOf(path.filename()).value_or(Text{}) : Text{};
}

void Attach(MailClient& client, int index, TextView piece, Steps& steps) {
  steps.Note(client.SelectAttachment(index));
  steps.Note(client.SetAttachmentPosition(index));
  steps.Note(client.SetAttachmentPath(TrimBlanks(piece)));
  // The name is looked up with the blanks around the piece: behind "; " it is not found, and the send
  // counts as failed.
  const Text name = FileNameOf(piece);
  steps.Note(!name.empty());
  steps.Note(client.SetAttachmentName(name));
  steps.Note(client.SetAttachmentType(MailClient::DataFile));
}

}  // namespace

bool EnvoyerParMAPI(MailClient& client, TextView destinataire, TextView objet, Text& texte, TextView pieces) {
  Steps steps;
  const SameFolderAfterwards keeper;

  steps.Note(client.SignOn());

  // An empty message, addressed and titled.
  steps.Note(client.SelectMessage(MailClient::ComposeBuffer));
  steps.Note(client.SetRecipient(destinataire));
  steps.Note(client.SetSubject(objet));

  StripOuterLineEnds(texte);
  steps.Note(client.SetNoteText(texte));

  if (!pieces.empty()) {
    int index = 0;
    for (const TextView piece : Split(pieces, u";")) Attach(client, index++, piece, steps);
  }

  // The session comes last, just before the send.
  steps.Note(client.SetSession(client.SessionId()));
  steps.Note(client.Send(true));
  return steps.AllWorked();
}

}  // namespace talvor
