// `FormPostuler`, the last step of an application: the mail to send, its checks, and the mark that turns
// the candidature of `FormCand` into a sent one.
//
// A window reports what the user does by the methods below and shows the fields afterwards. Indexes are
// 0-based; one that does not exist does nothing.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "letters/merge.h"
#include "platform/environment.h"
#include "platform/mail_client.h"
#include "sending/hourglass.h"
#include "tracking/form_cand.h"

namespace talvor {

// The mark of one check; the colour has its red part in the low byte.
struct CheckMark {
  TextView text;
  std::uint32_t colour = 0;
  bool operator==(const CheckMark&) const = default;
};
inline constexpr CheckMark MarkOk{u"Ok", 49152};
inline constexpr CheckMark MarkX{u"X", 255};

class FormPostuler : public MergedLetter {
 public:
  static constexpr std::size_t ModelCount = 5;
  static constexpr std::size_t CvCount = 5;
  // The ways of `Messagerie`.
  static constexpr std::size_t MarkAsSent = 0;
  static constexpr std::size_t SendByMail = 1;
  // The checks by their index in `Ok`.
  enum Check : std::size_t { SenderCheck, RecipientCheck, LetterCheck, SubjectCheck, AttachmentCheck };

  struct Surroundings {
    Principale& principale;
    std::function<FormCand&()> formCand;     // as it stands: a new one at each load of its form
    std::function<CandidatureTexts()> tags;  // the texts of its fields
    const Clock& clock;
    const Environment& environment;
    Dialogs& dialogs;
    Shell& shell;
    MailClient& mail;
    // Loads the CV of that file name into the editor.
    std::function<void(TextView)> chargerFichierCV;
    WaitCursor waitCursor;
  };

  explicit FormPostuler(Surroundings around);

  Text EmailDest;
  Text PJ;  // one path, or several parted by ";"
  std::array<Text, ModelCount> Modele;
  std::array<bool, ModelCount> ModelVisible{true, true, true, true, true};  // which ones are shown
  std::array<Text, CvCount> CV;
  std::array<CheckMark, 5> Ok{MarkX, MarkX, MarkX, MarkX, MarkX};
  std::optional<std::size_t> Messagerie;  // the way chosen, none at first
  bool SendByMailEnabled = true;
  Text SendLabel{u"Postuler"};
  bool SendVisible = true;
  bool ApplyOnlineVisible = true;
  FileList LetterFiles;               // the letter models
  std::vector<Text> AttachableFiles;  // the documents that can be attached, by name
  bool AttachableFilesVisible = false;

  // The form is loaded, which comes before anything else asked of it: the letter of the first model is
  // merged with the candidature, and the form comes to the front.
  void Charger();

  // Whether `FormCand` still shows the candidature that it was loaded for.
  [[nodiscard]] bool IsForTheSame() const;

  // -- The ways in that review a candidature. They replace the merged letter, even by an empty text, and
  // load the form unless it stands already. Showing the form is the third way: the letter stays.
  // From the picture of `FormCand`: what was sent already cannot be sent again.
  void OpenFromFormCand(const ApplyRequest& request);
  // `MenuPostuler` of the main window: the main button stays whatever the date of sending holds.
  void OpenFromMenu();

  // Every 1000 ms: works the marks out anew. They inform; nothing is barred by them.
  void UpdateMarks();

  // Typing into the recipient: an address opens the way by mail.
  void ChangeRecipient(TextView text);
  void ChooseModel(std::size_t i);  // the same for its picture
  void ChooseCv(std::size_t i);
  void ChooseWay(std::size_t i);
  void OfferAttachableFiles();
  void AttachFile(std::size_t row);
  void CloseAttachableFiles() { AttachableFilesVisible = false; }
  void SendOrMark();   // by the way that is chosen
  void ApplyOnline();  // leads to the web page of the advertisement

 private:
  void Merge(TextView fileName);
  void Send();
  void MarquerEnvoyee();
  void ListAttachableFiles();

  Surroundings around_;
  Text num_;        // the number of its candidature at the load
  Text documents_;  // the folder of `AttachableFiles`, without a "/" at its end
};

// Loads the apply form so that it can review a candidature. `open` is the form while it is loaded: one that
// was loaded for another candidature would keep that one's recipient and subject, and begins anew.
void LoadForReview(const FormPostuler* open, Shell& shell);

}  // namespace talvor
