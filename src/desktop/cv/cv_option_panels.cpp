#include "desktop/cv/cv_option_panels.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "cv/editor_texts.h"
#include "desktop/cv/page_fonts.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr QSize SwatchSize{26, 24};
constexpr int RowOfSwatches = 10;

QColor ToQt(Colour colour) { return {colour.red, colour.green, colour.blue}; }

// A sample keeps its own colour whatever the palette; only a colour goes into the sheet.
void Fill(QWidget& sample, const QColor& colour, const QString& edge, int border) {
  sample.setStyleSheet(
      QStringLiteral("background: %1; border: %2px solid %3; border-radius: 5px; padding: 0; min-height: 0;")
          .arg(colour.name())
          .arg(border)
          .arg(edge));
}

// The token of a mark that stands out on the colour, in either palette.
QString MarkOn(const Theme& theme, const QColor& colour) {
  constexpr int Half = 140;
  const bool light = theme.Current() == Theme::Palette::Light;
  return (qGray(colour.rgb()) > Half) == light ? QStringLiteral("tip") : QStringLiteral("ontip");
}

// A font is drawn in itself, or in the family of its widths; one that is missing says so.
void ShowFont(QPushButton& button, const QString& name) {
  const PageFont font = FindPageFont(name);
  button.setAccessibleName(name);
  button.setText(name);
  if (!font.family.isEmpty()) button.setStyleSheet(QStringLiteral("font-family: '%1';").arg(font.family));
  if (font.presence == PageFont::Presence::Installed) return;
  const QString replaced = font.presence == PageFont::Presence::SameWidths
                               ? CvOptionPanels::tr("remplacée par %1, de mêmes largeurs").arg(font.family)
                               : CvOptionPanels::tr("absente de cet ordinateur, remplacée sur la page");
  button.setText(name + (font.family.isEmpty() ? CvOptionPanels::tr("\n(absente)")
                                               : QStringLiteral("\n(%1)").arg(font.family)));
  button.setToolTip(name + QStringLiteral("\u00A0: ") + replaced);
  button.setAccessibleDescription(replaced);
}

}  // namespace

CvOptionPanels::CvOptionPanels(const Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme), column_(new QVBoxLayout(this)) {
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(0);
  MakeTemplates();
  MakeFonts();
  MakeParagraphs();
  MakeColours();
}

QWidget* CvOptionPanels::MakePanel(const char16_t* name) {
  QWidget* panel = MakePlane(QStringLiteral("window"), this);
  panel->setObjectName(QString::fromUtf16(name));
  panel->hide();
  column_->addWidget(panel);
  panels_[made_++] = panel;
  return panel;
}

void CvOptionPanels::MakeTemplates() {
  QWidget* panel = MakePanel(u"CadreModeles");
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(12, 8, 12, 8);
  templates_ = new QListWidget(panel);
  templates_->setObjectName(QStringLiteral("ListeModeles"));
  templates_->setAccessibleName(tr("Modèles"));
  // The focus stays in the field: leaving it closes the list.
  templates_->setFocusPolicy(Qt::NoFocus);
  templates_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  column->addWidget(templates_);
  connect(templates_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
    if (OnTemplate) OnTemplate(static_cast<std::size_t>(templates_->row(item)));
  });
}

void CvOptionPanels::MakeFonts() {
  QWidget* panel = MakePanel(u"FramePolice");
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(12, 8, 12, 8);
  grid->setSpacing(6);
  for (std::size_t i = 0; i < fonts_.size(); ++i) {
    auto* font = new QPushButton(panel);
    ShowFont(*font, talvor::ToQt(editor_texts::Fonts[i]));
    font->setObjectName(QStringLiteral("PoliceT%1").arg(i));
    font->setCheckable(true);
    font->setFocusPolicy(Qt::NoFocus);
    connect(font, &QPushButton::clicked, this, [this, i] {
      if (OnFont) OnFont(i);
    });
    grid->addWidget(font, static_cast<int>(i / 3), static_cast<int>(i % 3));
    fonts_[i] = font;
  }
}

void CvOptionPanels::MakeParagraphs() {
  QWidget* panel = MakePanel(u"FrameParagraphe");
  auto* around = new QVBoxLayout(panel);
  around->setContentsMargins(12, 8, 12, 8);
  auto* columns = new FoldingRow(panel);
  columns->Row().setSpacing(2);
  around->addWidget(columns);
  std::array<QVBoxLayout*, 2> halves{new QVBoxLayout, new QVBoxLayout};
  for (QVBoxLayout* half : halves) {
    half->setSpacing(2);
    columns->Row().addLayout(half, 1);
  }
  for (std::size_t i = 0; i < paragraphs_.size(); ++i) {
    auto* box = new QCheckBox(talvor::ToQt(editor_texts::ParagraphLabels[i]), panel);
    box->setObjectName(QStringLiteral("CheckParagraphe%1").arg(i));
    connect(box, &QCheckBox::clicked, this, [this, i] {
      if (OnParagraph) OnParagraph(i);
    });
    halves[i * halves.size() / paragraphs_.size()]->addWidget(box);
    paragraphs_[i] = box;
  }
}

QPushButton* CvOptionPanels::MakeSwatch(std::size_t index, QWidget* panel) {
  auto* swatch = new QPushButton(panel);
  swatch->setObjectName(QStringLiteral("Coul%1").arg(index));
  swatch->setFixedSize(SwatchSize);
  const QString name = talvor::ToQt(ColourText(Swatches[index]));
  swatch->setAccessibleName(tr("Couleur %1").arg(name));
  swatch->setToolTip(name);
  connect(swatch, &QPushButton::clicked, this, [this, index] {
    if (OnSwatch) OnSwatch(index);
  });
  return swatch;
}

void CvOptionPanels::MakeColours() {
  QWidget* panel = MakePanel(u"CadreCouleur");
  auto* around = new QVBoxLayout(panel);
  around->setContentsMargins(12, 10, 12, 10);
  auto* folding = new FoldingRow(panel);
  around->addWidget(folding);
  QBoxLayout* row = &folding->Row();
  row->setSpacing(16);
  auto* grid = new QGridLayout;
  grid->setSpacing(5);
  for (std::size_t i = 0; i < swatches_.size(); ++i) {
    swatches_[i] = MakeSwatch(i, panel);
    grid->addWidget(swatches_[i], static_cast<int>(i) / RowOfSwatches, static_cast<int>(i) % RowOfSwatches);
  }
  auto* palette = new QHBoxLayout;  // keeps the swatches together
  palette->addLayout(grid);
  palette->addStretch(1);
  row->addLayout(palette);
  auto* side = new QGridLayout;
  side->setHorizontalSpacing(6);
  side->setVerticalSpacing(5);
  for (const auto& [column, name] : {std::pair{0, u"Couleur"}, std::pair{2, u"CouleurClaire"}}) {
    auto* sample = new QWidget(panel);
    sample->setFixedSize(18, 18);
    sample->setAttribute(Qt::WA_StyledBackground);
    samples_[column == 0 ? 0 : 1] = sample;
    auto* value = new QLabel(panel);
    value->setObjectName(QString::fromUtf16(name));
    side->addWidget(sample, 0, column);
    side->addWidget(value, 0, column + 1);
  }
  auto* other = new QPushButton(tr("Autre couleur..."), panel);
  other->setObjectName(QStringLiteral("BoutonTLV3"));
  other->setProperty("dense", true);
  connect(other, &QPushButton::clicked, this, [this] {
    if (OnOtherColour) OnOtherColour();
  });
  side->addWidget(other, 1, 0, 1, 4);
  auto* chosen = new QHBoxLayout;
  chosen->addLayout(side);
  chosen->addStretch(1);
  row->addLayout(chosen, 1);
}

void CvOptionPanels::ShowTemplates(const FormRedigerCV& form) {
  constexpr int MostRows = 6;
  if (templates_->count() != static_cast<int>(form.templateRows.size())) {
    templates_->clear();
    for (const Text& row : form.templateRows) templates_->addItem(talvor::ToQt(row));
    const int rows = std::clamp(templates_->count(), 1, MostRows);
    const int height = std::max(TextPixels(26), templates_->sizeHintForRow(0));
    templates_->setFixedHeight(rows * height + 4);
  }
  if (!panels_[0]->isHidden()) return;  // the keyboard may stand on another row
  for (int i = 0; i < templates_->count(); ++i)
    if (templates_->item(i)->text() == talvor::ToQt(form.NomModele)) templates_->setCurrentRow(i);
}

void CvOptionPanels::Show(const FormRedigerCV& form) {
  ShowTemplates(form);
  for (std::size_t i = 0; i < fonts_.size(); ++i)
    fonts_[i]->setChecked(form.Police == editor_texts::Fonts[i]);
  for (std::size_t i = 0; i < paragraphs_.size(); ++i) paragraphs_[i]->setChecked(form.CheckParagraphe[i]);
  for (std::size_t i = 0; i < swatches_.size(); ++i) {
    const QColor colour = ToQt(Swatches[i]);
    const bool chosen = ColourText(Swatches[i]) == form.Couleur;
    Fill(*swatches_[i], colour,
         theme_.Color(chosen ? QStringLiteral("focus") : QStringLiteral("edge")).name(), chosen ? 3 : 1);
    swatches_[i]->setIcon(chosen ? theme_.Icon(QStringLiteral("check"), MarkOn(theme_, colour)) : QIcon());
  }
  const QString edge = theme_.Color(QStringLiteral("edge")).name();
  Fill(*samples_[0], QColor(talvor::ToQt(form.Couleur)), edge, 1);
  Fill(*samples_[1], QColor(talvor::ToQt(form.CouleurClaire)), edge, 1);
  for (std::size_t i = 0; i < panels_.size(); ++i)
    panels_[i]->setVisible(static_cast<std::size_t>(form.openPanel) == i + 1);
}

void CvOptionPanels::StepTemplate(int step) {
  if (templates_->count() == 0) return;
  templates_->setCurrentRow(std::clamp(templates_->currentRow() + step, 0, templates_->count() - 1));
}

int CvOptionPanels::CurrentTemplate() const { return templates_->currentRow(); }

}  // namespace talvor
