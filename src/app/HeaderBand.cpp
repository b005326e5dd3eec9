#include "app/HeaderBand.h"

#include "app/ElidedLabel.h"
#include "app/FormMirror.h"
#include "app/Mnemonics.h"
#include "app/PlainTexts.h"
#include "engine/Engine.h"
#include "print/Heading.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace app
{
namespace
{

QLabel* label(const QString& name, const QString& role)
{
    auto* label = new ElidedLabel; // the window may be narrower than its texts
    label->setObjectName(name);
    label->setProperty("role", role);
    return label;
}

} // namespace

HeaderBand::HeaderBand(engine::Engine& engine, FormMirror& mirror, QAction* help, QMenu* questions)
{
    setObjectName(QStringLiteral("HeaderBand"));
    setAttribute(Qt::WA_StyledBackground);
    form::PlanForm& form = engine.form();

    auto* names = new QVBoxLayout;
    names->setSpacing(0);
    auto* establishment = label(QStringLiteral("Label4_4"), QStringLiteral("name"));
    mirror.bind(establishment, form.Label4[4]);
    auto* university = label(QStringLiteral("University"), QStringLiteral("note"));
    mirror.follow([university, &engine] {
        university->setText(print::headingOf(engine.state()).universityAndYear());
    });
    names->addWidget(establishment);
    names->addWidget(university);

    auto* title = label(QStringLiteral("XSalle"), QStringLiteral("title"));
    mirror.follow([title, &form, &engine] {
        title->setText(print::headingOf(engine.state()).title);
        // The title's font is the control's own; all other texts have the window's.
        const QString style =
            QStringLiteral("font-family: \"%1\", \"Arial\";").arg(form.XSalle.font.name);
        if (title->styleSheet() != style) {
            title->setStyleSheet(style);
        }
    });

    auto* dates = new QHBoxLayout;
    dates->setSpacing(6);
    for (int index = 0; index < 4; ++index) {
        auto* date = plainLabel(); // half a date is none: what is beside gives way
        date->setObjectName(QStringLiteral("Label4_%1").arg(index));
        date->setProperty("role", index % 2 == 1 ? QStringLiteral("date") : QStringLiteral("note"));
        mirror.bind(date, form.Label4.at(static_cast<std::size_t>(index)));
        dates->addWidget(date);
    }
    auto* period = label(QStringLiteral("PeriodName"), QStringLiteral("name"));
    mirror.follow([period, &engine] {
        const print::Heading heading = print::headingOf(engine.state());
        period->setText(print::joined({heading.period, heading.examWeek}, QStringLiteral(" – ")));
    });
    auto* when = new QVBoxLayout;
    when->setSpacing(0);
    when->addWidget(period, 0, Qt::AlignRight);
    when->addLayout(dates);

    auto* band = new QHBoxLayout(this);
    band->setContentsMargins(14, 4, 14, 4);
    band->addLayout(names, 1);
    band->addWidget(title, 0, Qt::AlignCenter);
    auto* right = new QHBoxLayout;
    right->addStretch();
    right->addLayout(when);
    right->addSpacing(10);
    auto* button = new QToolButton;
    button->setObjectName(QStringLiteral("Aide"));
    button->setDefaultAction(help);
    auto* ask = new QToolButton;
    ask->setObjectName(QStringLiteral("Questions"));
    ask->setText(withMnemonic(QStringLiteral("Chercher"), ask->objectName()));
    ask->setToolTip(QStringLiteral("Salle libre, enseignant, semaine, conflits, occupation"));
    ask->setAccessibleName(QStringLiteral("Chercher"));
    ask->setPopupMode(QToolButton::InstantPopup);
    ask->setMenu(questions);
    right->addWidget(ask);
    right->addWidget(button);
    band->addLayout(right, 1);
}

} // namespace app
