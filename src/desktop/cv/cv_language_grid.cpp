#include "desktop/cv/cv_language_grid.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

// The groups in the order of the columns, with their headings and how they are read out.
struct Level {
  TextView group;
  TextView heading;
  TextView spoken;
};

constexpr std::array<Level, 4> LevelColumns{{
    {u"LangueScolaire", u"Scolaire", u"scolaire"},
    {u"LangueProf", u"Professionnel", u"professionnel"},
    {u"LangueCourant", u"Courant", u"courant"},
    {u"LangueBilingue", u"bilingue", u"bilingue"},
}};

}  // namespace

CvLanguageGrid::CvLanguageGrid(QWidget* parent) : QWidget(parent) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(3);
  grid->setVerticalSpacing(0);
  for (std::size_t level = 0; level < Levels; ++level) {
    auto* heading = new QLabel(ToQt(LevelColumns[level].heading), this);
    heading->setProperty("role", QStringLiteral("label"));
    grid->addWidget(heading, 0, static_cast<int>(level) + 1, Qt::AlignCenter);
    grid->setColumnStretch(static_cast<int>(level) + 1, 1);
  }
  for (std::size_t language = 0; language < LanguageCount; ++language) {
    grid->addWidget(new QLabel(ToQt(LanguageNames[language]), this), static_cast<int>(language) + 1, 0);
    for (std::size_t level = 0; level < Levels; ++level) MakeBox(language, level);
  }
  boxes_[0][0]->setFocusPolicy(Qt::StrongFocus);
}

void CvLanguageGrid::MakeBox(std::size_t language, std::size_t level) {
  const Level& column = LevelColumns[level];
  auto* box = new QCheckBox(this);
  box->setObjectName(ToQt(column.group) + QString::number(language));
  box->setAccessibleName(QStringLiteral("%1, %2").arg(ToQt(LanguageNames[language]), ToQt(column.spoken)));
  box->setFocusPolicy(Qt::ClickFocus);
  box->setStyleSheet(QStringLiteral("min-height: 20px;"));
  box->installEventFilter(this);
  connect(box, &QCheckBox::clicked, this, [this, group = column.group, language] {
    if (OnClick) OnClick(group, language);
  });
  static_cast<QGridLayout*>(layout())->addWidget(box, static_cast<int>(language) + 1,
                                                 static_cast<int>(level) + 1, Qt::AlignCenter);
  boxes_[language][level] = box;
}

void CvLanguageGrid::Show(const CvDocument& cv) {
  for (std::size_t level = 0; level < Levels; ++level) {
    const CheckGroup* group = FindCheckGroup(LevelColumns[level].group);
    for (std::size_t language = 0; language < LanguageCount; ++language)
      boxes_[language][level]->setChecked((cv.*(group->values))[language]);
  }
}

void CvLanguageGrid::MoveTo(std::size_t language, std::size_t level) {
  QCheckBox* target = boxes_[language][level];
  for (auto& row : boxes_)
    for (QCheckBox* box : row) box->setFocusPolicy(Qt::ClickFocus);
  target->setFocusPolicy(Qt::StrongFocus);
  target->setFocus(Qt::TabFocusReason);
}

bool CvLanguageGrid::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  for (std::size_t row = 0; row < LanguageCount; ++row)
    for (std::size_t column = 0; column < Levels; ++column) {
      if (boxes_[row][column] != watched) continue;
      if (key == Qt::Key_Left && column > 0) return MoveTo(row, column - 1), true;
      if (key == Qt::Key_Right && column + 1 < Levels) return MoveTo(row, column + 1), true;
      if (key == Qt::Key_Up && row > 0) return MoveTo(row - 1, column), true;
      if (key == Qt::Key_Down && row + 1 < LanguageCount) return MoveTo(row + 1, column), true;
    }
  return QWidget::eventFilter(watched, event);
}

}  // namespace talvor
