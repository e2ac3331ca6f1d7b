#include "desktop/platform/xdg_mail_client.h"

#include <filesystem>
#include <system_error>

#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include "base/line_file.h"
#include "desktop/widgets/text_edge.h"
#include "workspace/documents_folder.h"

namespace talvor {
namespace {

const QString Program = QStringLiteral("xdg-email");

// Runs a program to its end, or as long as the limit; the interface lives on without input. True when
// it has ended well, and when it still runs, as a client that stays in front does.
bool RunsWell(const QString& program, const QStringList& arguments, int limitMilliseconds) {
  // A client that outlives the wait is left to itself, even at the end of this program.
  auto* process = new QProcess;
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  QEventLoop loop;
  QObject::connect(process, &QProcess::finished, &loop, &QEventLoop::quit);
  QObject::connect(process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
  process->start(program, arguments);
  QTimer::singleShot(limitMilliseconds, &loop, &QEventLoop::quit);
  if (process->state() != QProcess::NotRunning) loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (process->state() != QProcess::NotRunning) {
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    return true;
  }
  const bool well = process->error() == QProcess::UnknownError &&
                    process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
  process->deleteLater();
  return well;
}

// The desktop entry of the program that the desktop opens addresses of mail with; empty when there is none.
QByteArray DefaultClient() {
  constexpr int LimitMilliseconds = 3000;
  QProcess query;
  query.start(QStringLiteral("xdg-mime"),
              {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("x-scheme-handler/mailto")},
              QIODevice::ReadOnly);
  return query.waitForFinished(LimitMilliseconds) ? query.readAllStandardOutput().trimmed() : QByteArray();
}

// xdg-email would fall back on a web browser, which takes the address and shows nothing.
bool ClientIsKnown() {
  if (qEnvironmentVariableIsSet("MAILER")) return true;
  if (!QStandardPaths::findExecutable(QStringLiteral("xdg-email-hook.sh")).isEmpty()) return true;
  return !DefaultClient().isEmpty();
}

// Thunderbird gets its message from xdg-email as one list of quoted values, in which "'" and "," have a meaning.
bool ClientTakesAList() {
  const QByteArray client = DefaultClient().toLower();
  return client.contains("thunderbird") || client.contains("icedove");
}

// The bytes of a text for an address: nothing but plain letters and digits as they stand.
QString Encoded(TextView text, const char* plain = "") {
  return QString::fromLatin1(QUrl::toPercentEncoding(ToQt(text), plain));
}

// xdg-email reads attachments through the shell's echo, which takes "\" for an escape.
bool CanBeTold(TextView path) {
  if (OneLine(path) != path || Contains(path, u"\\")) return false;
  return path.find_first_of(u"',") == TextView::npos || !ClientTakesAList();
}

bool IsFile(const std::filesystem::path& file) {
  std::error_code unreadable;
  return std::filesystem::is_regular_file(file, unreadable);
}

}  // namespace

bool XdgMailClient::SignOn() {
  session_ = !QStandardPaths::findExecutable(Program).isEmpty() && ClientIsKnown() ? 1 : 0;
  return session_ != 0;
}

bool XdgMailClient::SelectMessage(int index) {
  mail_ = {};
  attachment_ = -1;
  tied_ = false;
  return index == ComposeBuffer;
}

bool XdgMailClient::SetRecipient(TextView address) {
  mail_.recipient = OneLine(address);
  return true;
}

bool XdgMailClient::SetSubject(TextView subject) {
  mail_.subject = OneLine(subject);
  return true;
}

bool XdgMailClient::SetNoteText(TextView text) {
  mail_.text = text;
  return true;
}

PreparedMail::Attachment* XdgMailClient::Selected() {
  return attachment_ < 0 ? nullptr : &mail_.attachments[static_cast<std::size_t>(attachment_)];
}

bool XdgMailClient::SelectAttachment(int index) {
  constexpr int Most = 1000;
  if (index < 0 || index >= Most) return false;
  attachment_ = index;
  const auto needed = static_cast<std::size_t>(index) + 1;
  if (mail_.attachments.size() < needed) mail_.attachments.resize(needed);
  return true;
}

// The place inside the text: attachments of a mail stand in their order.
bool XdgMailClient::SetAttachmentPosition(int) { return Selected() != nullptr; }

bool XdgMailClient::SetAttachmentPath(TextView path) {
  if (Selected() == nullptr) return false;
  Selected()->path = path;
  return true;
}

bool XdgMailClient::SetAttachmentName(TextView name) {
  if (Selected() == nullptr) return false;
  Selected()->name = name;
  return true;
}

bool XdgMailClient::SetAttachmentType(int type) { return Selected() != nullptr && type == DataFile; }

bool XdgMailClient::SetSession(int id) {
  tied_ = id != 0 && id == session_;
  return tied_;
}

bool XdgMailClient::HandOver() const {
  if (!tied_) return false;
  QStringList arguments{QStringLiteral("--utf8")};
  for (const auto& attachment : mail_.attachments) {
    std::error_code nowhere;  // as for the empty path behind a last ";"
    const auto file = std::filesystem::absolute(PathOf(attachment.path), nowhere);
    const auto path = TextOf(file);
    if (nowhere || !path || !CanBeTold(*path) || !IsFile(file)) return false;
    arguments << QStringLiteral("--attach") << ToQt(*path);
  }
  arguments << QStringLiteral("mailto:%1?subject=%2&body=%3")
                   .arg(Encoded(mail_.recipient, "@"), Encoded(mail_.subject), Encoded(mail_.text));
  return RunsWell(Program, arguments, untilTheClientStands);
}

bool XdgMailClient::Send(bool dialog) {
  left_.clear();
  if (dialog && HandOver()) return true;
  const auto file = LeaveMessage(mail_, PathOf(DocumentsFolder(environment_)).parent_path());
  left_ = file ? TextOf(*file).value_or(Text{}) : Text{};
  return false;
}

}  // namespace talvor
