#include "app/asking/AnswerDesk.h"

#include <utility>

namespace app
{

AnswerDesk::AnswerDesk(shell::Shell& shell, Forward forward)
    : m_shell(shell), m_forward(std::move(forward))
{
}

bool AnswerDesk::isOld() const
{
    return !m_inquiry || m_readAtRefresh != m_shell.engine().refreshCount();
}

void AnswerDesk::ask(const std::function<void()>& then)
{
    if (!isOld()) {
        then();
        return;
    }
    m_forward([this, then] {
        if (isOld()) { // another window may have asked meanwhile
            read();
        }
        then();
    });
}

/// A fault is told in the window that asks: the plan is none the worse for it.
void AnswerDesk::read()
{
    m_inquiry.reset();
    m_fault.clear();
    try {
        const std::uint64_t refreshes = m_shell.engine().refreshCount();
        m_inquiry.emplace(m_shell);
        m_readAtRefresh = refreshes;
    } catch (const runtime::RunTimeError& error) {
        QString why = error.explanation();
        why[0] = why.front().toLower();
        m_fault = QStringLiteral("L’emploi du temps n’a pas pu être lu : %1 Rien n’est connu, et "
                                 "rien n’est dit libre.")
                      .arg(why);
    }
}

} // namespace app
