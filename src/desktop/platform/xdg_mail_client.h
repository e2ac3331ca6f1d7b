// The mail client of the user's desktop: the real part of `MailClient`.
#pragma once

#include "desktop/platform/mail_message.h"
#include "platform/environment.h"
#include "platform/mail_client.h"

namespace talvor {

// Hands the message to xdg-email, which opens it in the user's own client. The client tells nothing
// more, so that the message counts as sent once it is open. One that cannot be handed over is left as a
// file in the user's documents folder.
class XdgMailClient : public MailClient {
 public:
  explicit XdgMailClient(const Environment& environment) : environment_(environment) {}

  // In milliseconds: a client that still runs after that has the message.
  int untilTheClientStands = 8000;

  // False when xdg-email is not there, or no client is known to the desktop.
  bool SignOn() override;
  int SessionId() const override { return session_; }
  bool SelectMessage(int index) override;
  bool SetRecipient(TextView address) override;
  bool SetSubject(TextView subject) override;
  bool SetNoteText(TextView text) override;
  bool SelectAttachment(int index) override;
  bool SetAttachmentPosition(int position) override;
  bool SetAttachmentPath(TextView path) override;
  bool SetAttachmentName(TextView name) override;
  bool SetAttachmentType(int type) override;
  bool SetSession(int id) override;
  // Returns once the client has the message; the interface takes no input meanwhile.
  bool Send(bool dialog) override;
  Text LeftMessage() const override { return left_; }

 private:
  [[nodiscard]] PreparedMail::Attachment* Selected();
  [[nodiscard]] bool HandOver() const;

  const Environment& environment_;
  PreparedMail mail_;
  int attachment_ = -1;  // the selected one
  int session_ = 0;      // 0 while none is open
  bool tied_ = false;    // the message belongs to the open session
  Text left_;
};

}  // namespace talvor
