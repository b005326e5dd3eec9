#include "app/FaultBar.h"

#include "app/PlainTexts.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <utility>

namespace app
{

FaultBar::FaultBar(std::function<void()> retry) : m_text(plainLabel())
{
    setObjectName(QStringLiteral("FaultBar"));
    setAttribute(Qt::WA_StyledBackground);
    m_text->setObjectName(QStringLiteral("FaultText"));
    m_text->setWordWrap(true);
    auto* again = new QToolButton;
    again->setObjectName(QStringLiteral("Retry"));
    again->setText(QStringLiteral("Réessayer"));
    again->setToolTip(QStringLiteral("Lire le plan à nouveau (F5)"));
    again->setFocusPolicy(Qt::StrongFocus);
    connect(again, &QToolButton::clicked, this, std::move(retry));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(14, 4, 14, 4);
    line->addWidget(m_text, 1);
    line->addWidget(again);
    hide();
}

void FaultBar::tell(const QString& sentence, const QString& details)
{
    const bool isNew = sentence != m_text->text();
    m_text->setText(sentence);
    setPlainToolTip(m_text, details);
    setVisible(!sentence.isEmpty());
    if (isNew && !sentence.isEmpty()) {
        QAccessibleEvent alert(m_text, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace app
