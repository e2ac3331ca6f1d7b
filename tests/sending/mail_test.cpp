#include "sending/mail.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>
#include <vector>

#include "tests/fakes/scratch_folder.h"
#include "tests/fakes/sending_fakes.h"

namespace talvor {
namespace {

class MailTest : public testing::Test {
 protected:
  // A document in the scratch folder, by its full path.
  Text File(TextView name) {
    const auto file = scratch.Path() / PathOf(name);
    EXPECT_FALSE(WriteBytes(file, "x").Failed());
    return *TextOf(file);
  }
  bool Send(TextView pieces) { return EnvoyerParMAPI(client, u"a@b.fr", u"Objet", texte, pieces); }

  ScratchFolder scratch;
  FakeMailClient client;
  Text texte = u"Bonjour";
};

TEST_F(MailTest, TheStepsGoInTheirOrderAndTheSessionComesLast) {
  const Text cv = File(u"Mon CV.doc");
  const Text more = File(u"lettre é.pdf");
  EXPECT_TRUE(Send(cv + u";" + more));
  EXPECT_EQ(client.steps,
            (std::vector<Text>{u"SignOn", u"SelectMessage -1", u"SetRecipient a@b.fr", u"SetSubject Objet",
                               u"SetNoteText Bonjour", u"SelectAttachment 0", u"SetAttachmentPosition 0",
                               u"SetAttachmentPath " + cv, u"SetAttachmentName Mon CV.doc",
                               u"SetAttachmentType 0", u"SelectAttachment 1", u"SetAttachmentPosition 1",
                               u"SetAttachmentPath " + more, u"SetAttachmentName lettre é.pdf",
                               u"SetAttachmentType 0", u"SetSession 7", u"Send dialog"}));
}

TEST_F(MailTest, WithoutPiecesTheMessageGoesOutWithItsTextAlone) {
  EXPECT_TRUE(Send({}));
  EXPECT_EQ(client.steps,
            (std::vector<Text>{u"SignOn", u"SelectMessage -1", u"SetRecipient a@b.fr", u"SetSubject Objet",
                               u"SetNoteText Bonjour", u"SetSession 7", u"Send dialog"}));
}

TEST_F(MailTest, TheTextLosesOnePairOfLineEndsAtEachSide) {
  for (const auto& [before, after] : {std::pair{u"\r\n\r\nA\r\nB\r\n\r\n", u"\r\nA\r\nB\r\n"},
                                      {u"\r\n", u""},
                                      {u"\nA\n", u"\nA\n"},
                                      {u"A\r", u"A\r"}}) {
    texte = before;
    EXPECT_TRUE(Send({}));
    EXPECT_EQ(texte, after);
    EXPECT_EQ(client.steps[4], u"SetNoteText" + Text{texte.empty() ? u"" : u" "} + after);
    client.steps.clear();
  }
}

TEST_F(MailTest, AnyFailedStepMakesItFailAndTheOthersStillRun) {
  const Text cv = File(u"cv.doc");
  ASSERT_TRUE(Send(cv));
  const auto whole = client.steps;
  for (const Text& step : whole) {
    client.failing = {step.substr(0, step.find(u' '))};
    client.steps.clear();
    EXPECT_FALSE(Send(cv)) << ToUtf8(step);
    EXPECT_EQ(client.steps, whole) << ToUtf8(step);
  }
}

TEST_F(MailTest, ABlankBehindTheSemicolonIsCutFromThePathAndMakesTheNameFail) {
  const Text a = File(u"a.doc");
  const Text b = File(u"b.doc");
  EXPECT_FALSE(Send(a + u"; " + b));
  EXPECT_EQ(client.steps[12], u"SetAttachmentPath " + b);
  EXPECT_EQ(client.steps[13], u"SetAttachmentName");
  EXPECT_EQ(client.steps.back(), u"Send dialog");
}

TEST_F(MailTest, APieceThatIsNoFileHasNoNameAndFails) {
  std::filesystem::create_directory("dossier");
  for (const TextView piece : {u"absent.doc", u"dossier", u" "}) {
    client.steps.clear();
    EXPECT_FALSE(Send(piece)) << ToUtf8(piece);
    EXPECT_EQ(client.steps[8], u"SetAttachmentName") << ToUtf8(piece);
  }
}

TEST_F(MailTest, TheCurrentFolderIsTheSameAfterwardsWhateverTheOutcome) {
  client.whileSending = [] { std::filesystem::current_path("/"); };
  for (const bool works : {true, false}) {
    if (!works) client.failing = {u"Send"};
    EXPECT_EQ(Send({}), works);
    EXPECT_EQ(std::filesystem::current_path(), scratch.Path());
  }
}

}  // namespace
}  // namespace talvor
