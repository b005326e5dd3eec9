#include "app/NoticeBar.h"

#include "app/PlainTexts.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <utility>

namespace app
{

NoticeBar::NoticeBar(const Words& words, std::function<void()> mend)
    : m_text(plainLabel()), m_button(new QToolButton)
{
    setObjectName(words.name);
    setAttribute(Qt::WA_StyledBackground);
    m_text->setObjectName(words.textName);
    m_text->setWordWrap(true);
    m_button->setObjectName(words.buttonName);
    m_button->setText(words.button);
    m_button->setToolTip(words.toolTip);
    m_button->setFocusPolicy(Qt::StrongFocus);
    connect(m_button, &QToolButton::clicked, this, std::move(mend));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(14, 4, 14, 4);
    line->addWidget(m_text, 1);
    line->addWidget(m_button);
    hide();
}

void NoticeBar::tell(const QString& sentence, const QString& details, bool hasButton)
{
    const bool isNew = sentence != m_text->text();
    m_text->setText(sentence);
    setPlainToolTip(m_text, details);
    m_button->setVisible(hasButton);
    setVisible(!sentence.isEmpty());
    if (isNew && !sentence.isEmpty()) {
        QAccessibleEvent alert(m_text, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace app
