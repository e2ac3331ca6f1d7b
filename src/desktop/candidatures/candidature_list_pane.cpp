#include "desktop/candidatures/candidature_list_pane.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/widgets/pane.h"
#include "desktop/widgets/segment_button.h"

namespace talvor {

CandidatureListPane::CandidatureListPane(const CandidatureTree& tree, const Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme), tri_(new QButtonGroup(this)) {
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Liste des candidatures"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeSegments());
  column->addWidget(MakeLine(theme, this));
  tree_ = new CandidatureTreeView(tree, theme, this);
  column->addWidget(tree_, 1);
  column->addWidget(MakeFoot());
}

QWidget* CandidatureListPane::MakeSegments() {
  auto* bar = new QWidget(this);
  bar->setFixedHeight(TextPixels(44));
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(10, 7, 10, 7);
  auto* segments = new QFrame(bar);
  segments->setProperty("seg", true);
  segments->setAccessibleName(tr("Trier par"));
  auto* inner = new QHBoxLayout(segments);
  inner->setContentsMargins(2, 2, 2, 2);
  inner->setSpacing(2);
  const std::array captions{tr("So&ciétés"), tr("&Dates"), tr("&Statuts"), tr("Ori&gine")};
  for (std::size_t i = 0; i < captions.size(); ++i) {
    auto* option = new SegmentButton(captions[i], segments);
    option->setObjectName(QStringLiteral("Tri%1").arg(i));
    tri_->addButton(option, static_cast<int>(i));
    inner->addWidget(option);
    connect(option, &QPushButton::clicked, this, [this, i] {
      if (OnTri) OnTri(i);
    });
  }
  row->addWidget(segments);
  return bar;
}

QWidget* CandidatureListPane::MakeFoot() {
  auto* foot = new QWidget(this);
  auto* column = new QVBoxLayout(foot);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);

  column->addWidget(MakeLine(theme_, foot));
  auto* actions = new QHBoxLayout;
  actions->setContentsMargins(10, 5, 10, 5);
  actions->addStretch(1);
  auto* deleteAll = new QPushButton(tr("&Tout supprimer"), foot);
  deleteAll->setObjectName(QStringLiteral("ToutSupprimer"));
  deleteAll->setProperty("dense", true);
  TintIcon(theme_, *deleteAll, QStringLiteral("trash"), QStringLiteral("bad"));
  connect(deleteAll, &QPushButton::clicked, this, [this] {
    if (OnToutSupprimer) OnToutSupprimer();
  });
  actions->addWidget(deleteAll);
  column->addLayout(actions);
  column->addWidget(MakeLine(theme_, foot));

  QWidget* search = MakePlane(QStringLiteral("window"), foot);
  search->setObjectName(QStringLiteral("FrameRecherche"));
  auto* links = new QVBoxLayout(search);
  links->setContentsMargins(6, 10, 6, 10);
  links->setSpacing(2);
  const std::array texts{tr("Rec&herche de nouvelles candidatures"),
                         tr("&Lancer une recherce automatique en\nfonction d'un CV")};
  const std::array icons{QStringLiteral("globe"), QStringLiteral("auto")};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    QPushButton* link = MakeLink(theme_, icons[i], texts[i], QStringLiteral("Rechercher%1").arg(i), search);
    connect(link, &QPushButton::clicked, this, [this, i] {
      if (OnRechercher) OnRechercher(i);
    });
    links->addWidget(link);
  }
  column->addWidget(search);
  return foot;
}

void CandidatureListPane::ShowTri(int index) {
  if (tri_->checkedId() == index) return;
  tri_->setExclusive(false);
  for (QAbstractButton* option : tri_->buttons()) option->setChecked(tri_->id(option) == index);
  tri_->setExclusive(true);
}

}  // namespace talvor
