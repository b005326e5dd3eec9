#include "app/MarkerClicks.h"

#include "absences/DoneWords.h"
#include "absences/HeldKey.h"
#include "app/KeyState.h"
#include "app/PlanView.h"
#include "app/StatusNews.h"
#include "engine/Engine.h"

#include <QGuiApplication>
#include <utility>

namespace app
{
namespace
{

/// Empty for a click that was not to mark anything.
QString whyNothingIsMarked(int marker)
{
    const Qt::KeyboardModifiers marking = Qt::ShiftModifier | Qt::ControlModifier;
    if (!(QGuiApplication::keyboardModifiers() & marking)) {
        return {};
    }
    switch (marker) {
    case PlanView::kTooLate:
        return QStringLiteral("Rien n’est enregistré : le plan a changé sous la souris");
    case PlanView::kNoBox:
        return QStringLiteral("Rien n’est enregistré : aucune séance à cet endroit");
    default:
        return QStringLiteral(
            "Rien n’est enregistré : relâcher la touche, puis la tenir de nouveau "
            "pour chaque clic");
    }
}

} // namespace

MarkerClicks::MarkerClicks(engine::Engine& engine, StatusNews& news, Forward forward)
    : m_engine(engine), m_news(news), m_forward(std::move(forward)), m_keys(makeKeyState())
{
}

void MarkerClicks::click(int marker)
{
    if (marker == PlanView::kNoBox || marker == PlanView::kTooLate) {
        tell(whyNothingIsMarked(marker));
        return;
    }
    mark(marker, m_keys, whyNothingIsMarked(marker));
}

void MarkerClicks::clickHolding(int marker, absences::VirtualKey key)
{
    mark(marker, std::make_shared<absences::HeldKey>(key), {});
}

/// `otherwise`: what is told where nothing was marked.
void MarkerClicks::mark(int marker, const std::shared_ptr<absences::AsyncKeyState>& keys,
                        const QString& otherwise)
{
    m_forward([this, marker, keys, otherwise] {
        const QString done = absences::doneWords(m_engine.clickMarker(marker, *keys));
        tell(done.isEmpty() ? otherwise : done);
    });
}

/// A click that was not to mark anything leaves the last word standing.
void MarkerClicks::tell(const QString& sentence)
{
    if (!sentence.isEmpty()) {
        m_news.tell(sentence);
    }
}

} // namespace app
