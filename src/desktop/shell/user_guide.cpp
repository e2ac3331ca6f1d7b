#include "desktop/shell/user_guide.h"

#include <QImage>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextList>
#include <QTextTable>
#include <QVBoxLayout>

#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

// The anchor of a heading as writers of Markdown expect it: its letters and digits, with hyphens for
// blanks.
QString AnchorOf(const QString& heading) {
  QString anchor;
  for (const QChar c : heading.toLower()) {
    if (c.isLetterOrNumber()) anchor += c;
    if (c == QLatin1Char(' ')) anchor += QLatin1Char('-');
  }
  return anchor;
}

// Markdown knows no distances: air above headings and between paragraphs, pictures as wide as the text.
void LayOut(QTextDocument& guide) {
  constexpr int Air = 8;
  constexpr int AirAboveHeading = 24;
  constexpr int PictureWidth = 860;
  for (QTextBlock block = guide.begin(); block.isValid(); block = block.next()) {
    QTextCursor cursor(block);
    QTextBlockFormat format = block.blockFormat();
    const bool heading = format.headingLevel() > 0;
    if (!block.textList() && !cursor.currentTable()) {
      format.setTopMargin(heading ? AirAboveHeading : 0);
      format.setBottomMargin(Air);
    }
    // A picture is a line as well: the fifth of its height would be left blank below it.
    constexpr int Spaced = 120;
    constexpr int Single = 100;
    const bool picture =
        block.begin() != block.end() && block.begin().fragment().charFormat().isImageFormat();
    format.setLineHeight(picture ? Single : Spaced, QTextBlockFormat::ProportionalHeight);
    cursor.setBlockFormat(format);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      if (!fragment.charFormat().isImageFormat()) continue;
      QTextImageFormat image = fragment.charFormat().toImageFormat();
      const QImage file(QStringLiteral(":/guide/") + image.name());
      image.setWidth(qMin(file.width(), PictureWidth));
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(image);
      break;  // the fragments have changed; a picture stands alone in its paragraph
    }
  }
}

}  // namespace

UserGuideWindow::UserGuideWindow(const Theme& theme, QWidget* parent)
    : ScrollingDialog(parent), text_(new QTextBrowser(this)) {
  setObjectName(ToQt(UserGuideForm));
  setWindowTitle(tr("Guide de Talvor"));
  auto* column = new QVBoxLayout(Body());
  column->setContentsMargins(0, 0, 0, 12);
  text_->setObjectName(QStringLiteral("Texte"));
  text_->setAccessibleName(tr("Guide de Talvor"));
  text_->setFrameShape(QFrame::NoFrame);
  text_->setOpenLinks(false);
  text_->setSource(QUrl(QStringLiteral("qrc:/guide/guide.md")), QTextDocument::MarkdownResource);
  LayOut(*text_->document());
  constexpr int Margin = 24;
  text_->document()->setDocumentMargin(Margin);
  connect(text_, &QTextBrowser::anchorClicked, this, &UserGuideWindow::ShowChapter);
  column->addWidget(text_, 1);
  auto* close = new BoutonTLV(theme, tr("&Fermer"), this);
  close->setObjectName(QStringLiteral("Fermer"));
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  column->addWidget(close, 0, Qt::AlignCenter);
  constexpr QSize Size(1010, 700);
  SetWanted(Size);
}

void UserGuideWindow::ShowChapter(const QUrl& link) {
  const QString wanted = link.fragment(QUrl::FullyDecoded);
  for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || AnchorOf(block.text()) != wanted) continue;
    // From the end, the scroll that brings the heading into view ends with it at the top.
    text_->moveCursor(QTextCursor::End);
    text_->setTextCursor(QTextCursor(block));
    return;
  }
}

}  // namespace talvor
