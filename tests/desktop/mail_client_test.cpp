#include "desktop/platform/xdg_mail_client.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QUrl>
#include <QUrlQuery>
#include <QtTest/QTest>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "base/line_file.h"
#include "desktop/widgets/text_edge.h"
#include "sending/mail.h"
#include "tests/desktop/waiting.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// Reads a message as any mail program would.
constexpr const char* Reader = R"(
import email, email.policy, json, sys
with open(sys.argv[1], 'rb') as file:
    message = email.message_from_binary_file(file, policy=email.policy.default)
json.dump({
    'headers': sorted(name for name in message.keys()),
    'To': str(message['To']), 'Subject': str(message['Subject']), 'X-Unsent': str(message['X-Unsent']),
    'text': message.get_body().get_content(),
    'charset': message.get_body().get_content_charset(),
    'encodings': [str(part['Content-Transfer-Encoding']) for part in message.iter_attachments()],
    'types': [part.get_content_type() for part in message.iter_attachments()],
    'names': [part.get_filename() for part in message.iter_attachments()],
    'contents': [part.get_content().hex() for part in message.iter_attachments()],
}, sys.stdout)
)";

class MailClientTest : public testing::Test {
 protected:
  MailClientTest() {
    environment.values[u"userprofile"] = *TextOf(scratch.Path());
    environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
  }
  ~MailClientTest() override {
    qunsetenv("MAILER");
    qputenv("PATH", path);
  }

  // The user's mail client: it keeps what it is given, then runs these commands.
  void Client(const std::string& commands = "exit 0") {
    std::ofstream("client.sh") << "#!/bin/sh\nprintf '%s\\n' \"$#\" \"$1\" > " << scratch.Path().string()
                               << "/reçu\n"
                               << commands << '\n';
    fs::permissions("client.sh", fs::perms::owner_all);
    qputenv("MAILER", QByteArray::fromStdString((scratch.Path() / "client.sh").string()));
  }
  // The address that the client was given.
  QUrlQuery Received() {
    const QString got = QString::fromStdString(ReadBytes("reçu").value_or(""));
    EXPECT_TRUE(got.startsWith(QStringLiteral("1\nmailto:"))) << got.toStdString();
    const QUrl url(got.section(QLatin1Char('\n'), 1, 1), QUrl::StrictMode);
    recipient = QUrl::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return QUrlQuery(url);
  }
  static QString Value(const QUrlQuery& query, const char* name) {
    return query.queryItemValue(QString::fromLatin1(name), QUrl::FullyDecoded);
  }

  Text File(TextView name, const char* bytes = "x") {
    const fs::path file = scratch.Path() / PathOf(name);
    EXPECT_FALSE(WriteBytes(file, bytes).Failed());
    return *TextOf(file);
  }
  bool Send(TextView to, TextView subject, Text text, TextView pieces = {}) {
    return EnvoyerParMAPI(client, to, subject, text, pieces);
  }
  QJsonObject Read(TextView file) {
    QProcess python;
    python.start(QStringLiteral("python3"), {QStringLiteral("-c"), QString::fromUtf8(Reader), ToQt(file)});
    EXPECT_TRUE(python.waitForFinished());
    EXPECT_EQ(python.readAllStandardError(), QByteArray());
    return QJsonDocument::fromJson(python.readAllStandardOutput()).object();
  }

  ScratchFolder scratch;
  FakeEnvironment environment;
  XdgMailClient client{environment};
  QByteArray path = qgetenv("PATH");
  QString recipient;
};

TEST_F(MailClientTest, TheMessageReachesTheClientWhole) {
  Client();
  const Text attached = File(u"-a b$HOME 'é\"`&%41?.doc");
  const Text subject = u"-x $(id) `id` \\n \"Réponse\" & 'réf' #1?";
  const Text text = u"Bonjour,\r\n\r\n\\c é € \U0001F600 100 % $HOME & <b>?\r\n-- \r\nZoé";
  EXPECT_TRUE(Send(u"-Zoé & Cie <a+b@c.fr>", subject, text, attached + u";" + File(u"b.pdf")));
  const QUrlQuery query = Received();
  EXPECT_EQ(recipient, QStringLiteral("-Zoé & Cie <a+b@c.fr>"));
  EXPECT_EQ(Value(query, "subject"), ToQt(subject));
  EXPECT_EQ(Value(query, "body"), ToQt(text));
  EXPECT_EQ(query.allQueryItemValues(QStringLiteral("attach"), QUrl::FullyDecoded),
            (QStringList{ToQt(attached), ToQt(*TextOf(scratch.Path()) + u"/b.pdf")}));
  EXPECT_EQ(query.queryItems().size(), 4);
  EXPECT_EQ(client.LeftMessage(), u"");
}

TEST_F(MailClientTest, LineEndsInRecipientAndSubjectAreBlanks) {
  Client();
  EXPECT_TRUE(Send(u"a@b.fr\r\nBcc: x@y.z", u"Objet\r\nBcc: x@y.z\u2028\u0001fin", u"Texte"));
  const QUrlQuery query = Received();
  EXPECT_EQ(recipient, QStringLiteral("a@b.fr  Bcc: x@y.z"));
  EXPECT_EQ(Value(query, "subject"), QStringLiteral("Objet  Bcc: x@y.z  fin"));

  Client("exit 1");
  EXPECT_FALSE(Send(u"a@b.fr\r\nBcc: x@y.z", u"Objet\r\nBcc: x@y.z\u2028\u0001fin", u"Texte"));
  const QJsonObject left = Read(client.LeftMessage());
  for (const auto& name : left[QStringLiteral("headers")].toArray())
    EXPECT_NE(name.toString(), QStringLiteral("Bcc"));
  EXPECT_EQ(left[QStringLiteral("Subject")].toString(), QStringLiteral("Objet  Bcc: x@y.z  fin"));
}

TEST_F(MailClientTest, ARefusedMessageIsLeftWholeForAnyMailProgram) {
  Client("exit 1");
  const Text subject =
      u"Réponse à l'annonce ref CI/2026-114, « chargée de communication interne » et la suite";
  const Text text =
      u"Madame,\r\n\r\n. € \U0001F600 = fin de ligne longue " + Text(200, u'x') + u"\r\nFrom Zoé";
  const Text cv = File(u"Mon CV d'été.doc", "\xD0\xCF\x11\xE0\r\n.\n");
  EXPECT_FALSE(Send(u"Émile Roy <emile@b.fr>", subject, text, cv + u";" + File(u"b.pdf")));
  EXPECT_EQ(client.LeftMessage(), *TextOf(scratch.Path()) +
                                      u"/Documents/Message à envoyer - Réponse à l'annonce ref "
                                      u"CI 2026-114, « chargée de communicat.eml");
  const QJsonObject left = Read(client.LeftMessage());
  EXPECT_EQ(left[QStringLiteral("To")].toString(), QStringLiteral("Émile Roy <emile@b.fr>"));
  EXPECT_EQ(left[QStringLiteral("Subject")].toString(), ToQt(subject));
  EXPECT_EQ(left[QStringLiteral("X-Unsent")].toString(), QStringLiteral("1"));
  EXPECT_EQ(left[QStringLiteral("text")].toString(), ShownText(text));
  EXPECT_EQ(left[QStringLiteral("charset")].toString(), QStringLiteral("utf-8"));
  const QString all = QString::fromUtf8(QJsonDocument(left).toJson(QJsonDocument::Compact));
  for (const char* part :
       {R"("encodings":["base64","base64"])", R"("names":["Mon CV d'été.doc","b.pdf"])",
        R"("types":["application/msword","application/pdf"])", R"("contents":["d0cf11e00d0a2e0a","78"])"})
    EXPECT_TRUE(all.contains(QString::fromUtf8(part))) << part << " in " << all.toStdString();
}

TEST_F(MailClientTest, AMessageLeftBehindOverwritesNothing) {
  Client("exit 1");
  std::vector<Text> files;
  for (int i = 0; i < 3; ++i) {
    EXPECT_FALSE(Send(u"a@b.fr", u"Objet", u"Texte " + NumberText(i)));
    files.push_back(client.LeftMessage());
  }
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(Read(files[static_cast<std::size_t>(i)])[QStringLiteral("text")].toString(),
              QStringLiteral("Texte %1").arg(i));
  EXPECT_TRUE(files[2].ends_with(u"Message à envoyer - Objet (3).eml")) << ToUtf8(files[2]);
}

TEST_F(MailClientTest, WithoutAClientOrTheProgramTheMessageIsLeft) {
  qputenv("PATH", QByteArray::fromStdString(scratch.Path().string()));
  EXPECT_FALSE(Send(u"", u"", u"Texte"));
  EXPECT_TRUE(client.LeftMessage().ends_with(u"Documents/Message à envoyer.eml"));
  qputenv("PATH", path);

  qputenv("XDG_DATA_DIRS", "/nowhere");
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString((scratch.Path() / "none").string()));
  EXPECT_FALSE(Send(u"a@b.fr", u"Sans client", u"Texte"));
  EXPECT_TRUE(client.LeftMessage().ends_with(u"Sans client.eml"));
  qunsetenv("XDG_DATA_DIRS");
  qunsetenv("XDG_DATA_HOME");
}

TEST_F(MailClientTest, AMissingAttachmentStopsTheSendAndTheRestIsLeft) {
  Client();
  EXPECT_FALSE(Send(u"a@b.fr", u"Objet", u"Texte", File(u"a.doc") + u";absent.doc"));
  EXPECT_FALSE(fs::exists("reçu")) << "something has gone out";
  EXPECT_EQ(Read(client.LeftMessage())[QStringLiteral("names")].toArray().size(), 1);
}

TEST_F(MailClientTest, ASemicolonTooManyIsAMissingAttachmentToo) {
  Client();
  EXPECT_NO_THROW(EXPECT_FALSE(Send(u"a@b.fr", u"Objet", u"Texte", File(u"a.doc") + u";")));
  EXPECT_FALSE(fs::exists("reçu"));
  ASSERT_NE(client.LeftMessage(), u"");
  EXPECT_EQ(Read(client.LeftMessage())[QStringLiteral("names")].toArray().size(), 1);
}

TEST_F(MailClientTest, APathThatTheProgramWouldMangleIsLeftInAMessageInstead) {
  Client();
  EXPECT_FALSE(Send(u"a@b.fr", u"Objet", u"Texte", File(u"a\\b.doc")));
  EXPECT_FALSE(fs::exists("reçu"));
  EXPECT_EQ(Read(client.LeftMessage())[QStringLiteral("names")].toArray().size(), 1);
}

TEST_F(MailClientTest, ThunderbirdIsGivenOnlyPathsThatItsListCanHold) {
  const fs::path folder = scratch.Path();
  fs::create_directories("applications");
  std::ofstream("applications/thunderbird.desktop")
      << "[Desktop Entry]\nType=Application\nName=Courrier\nExec=thunderbird %u\n";
  std::ofstream("mimeapps.list") << "[Default Applications]\nx-scheme-handler/mailto=thunderbird.desktop\n";
  std::ofstream("thunderbird") << "#!/bin/sh\nprintf '%s' \"$2\" > " << folder.string() << "/reçu\n";
  fs::permissions("thunderbird", fs::perms::owner_all);
  qputenv("PATH", QByteArray::fromStdString(folder.string()) + ':' + path);
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.string()));
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.string()));

  const Text plain = File(u"CV.pdf");
  EXPECT_TRUE(Send(u"a@b.fr", u"L'objet, ici", u"Texte", plain));
  EXPECT_NE(ReadBytes("reçu").value_or("").find("attachment='" + ToUtf8(plain) + "'"), std::string::npos)
      << ReadBytes("reçu").value_or("");
  fs::remove("reçu");
  for (const TextView name : {u"CV d'été.pdf", u"Dupont, Marie.pdf"}) {
    EXPECT_FALSE(Send(u"a@b.fr", u"Objet", u"Texte", File(name))) << ToUtf8(name);
    EXPECT_FALSE(fs::exists("reçu"));
    EXPECT_EQ(Read(client.LeftMessage())[QStringLiteral("names")].toArray().size(), 1);
  }
  qunsetenv("XDG_DATA_HOME");
  qunsetenv("XDG_CONFIG_HOME");
}

TEST_F(MailClientTest, AClientThatStaysInFrontHasTheMessageAndALeftOneGoesWithTheNextSend) {
  Client("exit 1");
  EXPECT_FALSE(Send(u"a@b.fr", u"Objet", u"Texte"));
  Client("sleep 3; echo still here > fini");
  client.untilTheClientStands = 1000;
  EXPECT_TRUE(Send(u"a@b.fr", u"Objet", u"Texte"));
  EXPECT_EQ(client.LeftMessage(), u"");
  EXPECT_FALSE(fs::exists("fini"));
  EXPECT_TRUE(WaitFor([] { return fs::exists("fini"); }, 20000)) << "the client was ended";
}

}  // namespace
}  // namespace talvor
