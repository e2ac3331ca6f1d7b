#pragma once

#include "base/text.h"

namespace talvor {

// The mail client of the user: a session, and one message that is put together field by field and then
// shown to the user, who checks and sends it. Each operation answers whether it worked.
class MailClient {
 public:
  static constexpr int ComposeBuffer = -1;
  static constexpr int DataFile = 0;

  virtual ~MailClient() = default;

  // Opens a session on the user's own account.
  [[nodiscard]] virtual bool SignOn() = 0;
  [[nodiscard]] virtual int SessionId() const = 0;

  // Selects a message; `ComposeBuffer` begins an empty one.
  [[nodiscard]] virtual bool SelectMessage(int index) = 0;
  [[nodiscard]] virtual bool SetRecipient(TextView address) = 0;
  [[nodiscard]] virtual bool SetSubject(TextView subject) = 0;
  // Lines end in CR LF.
  [[nodiscard]] virtual bool SetNoteText(TextView text) = 0;

  // Selects an attachment, 0-based; what is set afterwards belongs to it.
  [[nodiscard]] virtual bool SelectAttachment(int index) = 0;
  [[nodiscard]] virtual bool SetAttachmentPosition(int position) = 0;
  [[nodiscard]] virtual bool SetAttachmentPath(TextView path) = 0;
  [[nodiscard]] virtual bool SetAttachmentName(TextView name) = 0;
  [[nodiscard]] virtual bool SetAttachmentType(int type) = 0;

  // Ties the message to a session.
  [[nodiscard]] virtual bool SetSession(int id) = 0;
  // Hands the message over; with the dialog the client opens it for the user. False as well when an
  // attachment does not exist, and nothing has gone out then.
  [[nodiscard]] virtual bool Send(bool dialog) = 0;

  // The file in which the last Send has left a message that it could not hand over; empty when there is
  // none.
  [[nodiscard]] virtual Text LeftMessage() const = 0;
};

}  // namespace talvor
