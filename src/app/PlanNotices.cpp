#include "app/PlanNotices.h"

#include "app/FormMirror.h"
#include "app/NoticeBar.h"
#include "engine/Engine.h"
#include "plan/FaultWords.h"
#include "plan/StaleOptions.h"

#include <QVBoxLayout>
#include <utility>

namespace app
{

PlanNotices::PlanNotices(engine::Engine& engine, FormMirror& mirror, Forward forward)
    : m_engine(engine), m_forward(std::move(forward)),
      m_faults(new NoticeBar({QStringLiteral("FaultBar"), QStringLiteral("FaultText"),
                              QStringLiteral("Retry"), QStringLiteral("Réessayer"),
                              QStringLiteral("Lire le plan à nouveau (F5)")},
                             [this] { readAgain(); })),
      m_stale(new NoticeBar({QStringLiteral("StaleBar"), QStringLiteral("StaleText"),
                             QStringLiteral("Refresh"), QStringLiteral("Actualiser"),
                             QStringLiteral("Choisir le jour à nouveau, pour que le plan montre ce "
                                            "que disent les options (F5)")},
                            [this] { refresh(); }))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_faults);
    column->addWidget(m_stale);
    mirror.follow([this] { tell(); });
}

void PlanNotices::tell()
{
    const plan::PlanContent& plan = m_engine.content();
    m_faults->tell(plan::faultSentence(plan), plan::faultDetails(plan));
    const plan::StaleOptions stale = plan::staleOptions(m_engine.state(), plan);
    m_stale->tell(plan::staleSentence(stale), {}, stale.isMended);
}

void PlanNotices::refresh()
{
    m_forward([this] { m_engine.chooseDayAgain(); });
}

/// Without choosing the day: what is missing is to come, and nothing else is to change.
void PlanNotices::readAgain()
{
    m_forward([this] { m_engine.refreshPlan(); });
}

} // namespace app
