#include "app/EmptyPlanNote.h"

#include "app/FormMirror.h"
#include "engine/Engine.h"
#include "plan/EmptyPlan.h"

#include <QEvent>
#include <algorithm>

namespace app
{
namespace
{

constexpr int kWidest = 460;
constexpr int kMargin = 16; // to the plan's edges

} // namespace

EmptyPlanNote::EmptyPlanNote(const engine::Engine& engine, FormMirror& mirror, QWidget* plan)
    : QLabel(plan), m_plan(plan)
{
    setObjectName(QStringLiteral("EmptyPlanNote"));
    setTextFormat(Qt::PlainText); // it names what the database names
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    plan->installEventFilter(this);
    mirror.follow(
        [this, &engine] { tell(plan::emptyPlanReason(engine.state(), engine.content())); });
}

void EmptyPlanNote::tell(const QString& reason)
{
    if (text() != reason) {
        setText(reason);
    }
    setVisible(!reason.isEmpty());
    place();
}

void EmptyPlanNote::place()
{
    if (isHidden()) {
        return;
    }
    const int width = std::min(kWidest, m_plan->width() - 2 * kMargin);
    const QSize size(width, heightForWidth(width));
    setGeometry(
        QRect(QPoint((m_plan->width() - size.width()) / 2, (m_plan->height() - size.height()) / 2),
              size));
}

bool EmptyPlanNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        place();
    }
    return QLabel::eventFilter(watched, event);
}

} // namespace app
