#include "app/PageFooter.h"

#include "app/FormMirror.h"
#include "app/PlainTexts.h"
#include "context/PageRule.h"
#include "engine/Engine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <algorithm>
#include <utility>

namespace app
{
namespace
{

/// Whether rows are drawn, and so many as the page has.
bool hasRows(const context::RoomPage& page)
{
    return page.RowsShown >= 1 && page.RowsShown < form::PlanForm::kRows;
}

QString roomsShown(const form::PlanForm& form, const context::RoomPage& page)
{
    if (!hasRows(page)) {
        return QStringLiteral("Aucune salle affichée");
    }
    const context::PageRule rule(form);
    const int first = rule.positionOf(page.PageOffset, 1) + 1;
    const int last = rule.positionOf(page.PageOffset, page.RowsShown) + 1;
    const QString rooms = first == last ? QStringLiteral("Salle %1").arg(first)
                                        : QStringLiteral("Salles %1–%2").arg(first).arg(last);
    const QString words = QStringLiteral("%1 sur %2").arg(rooms).arg(page.listed);
    if (!rule.isStart(page.PageOffset)) {
        return words; // between two pages: it has no number
    }
    const int pages = rule.pageCount(page.listed);
    return words + QStringLiteral(", page %1/%2")
                       .arg(std::min(rule.pageOf(first - 1) + 1, pages))
                       .arg(pages);
}

QString namesShown(const context::RoomPage& page)
{
    if (!hasRows(page)) {
        return {};
    }
    return QStringLiteral("De « %1 » à « %2 »")
        .arg(page.room(1).name, page.room(page.RowsShown).name);
}

} // namespace

PageFooter::PageFooter(engine::Engine& engine, FormMirror& mirror,
                       std::function<void(const std::function<void()>&)> forward)
    : m_rooms(plainLabel()), m_wayBack(new QToolButton)
{
    m_rooms->setObjectName(QStringLiteral("PageInfo"));
    m_rooms->setMinimumWidth(1); // cut before the window grows wider than the screen
    m_wayBack->setObjectName(QStringLiteral("FirstPage"));
    m_wayBack->setText(QStringLiteral("Revenir à la première page"));
    m_wayBack->setToolTip(QStringLiteral("Cette page ne commence pas où commencent les autres "
                                         "(Début, dans le plan)"));
    m_wayBack->setAutoRaise(true);
    m_wayBack->setCursor(Qt::PointingHandCursor);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_rooms);
    row->addWidget(m_wayBack);
    connect(m_wayBack, &QToolButton::clicked, this, [&engine, forward = std::move(forward)] {
        forward([&engine] { engine.showFirstPage(); });
    });
    mirror.follow([this, &engine] { tell(engine.state()); });
}

void PageFooter::tell(const plan::PlanState& state)
{
    m_rooms->setText(roomsShown(state.form, state.page));
    setPlainToolTip(m_rooms, namesShown(state.page));
    m_wayBack->setVisible(!context::PageRule(state.form).isStart(state.page.PageOffset));
}

} // namespace app
