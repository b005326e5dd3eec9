#include "app/hall/HallDisplay.h"

#include "app/hall/HallLayout.h"
#include "app/hall/HallPainter.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <utility>

namespace app
{
namespace
{

// Milliseconds from one look at the clock to the next: a page turns within a second of its time.
constexpr int kLook = 1000;

QString timeWords(const QDateTime& time, const QDateTime& now)
{
    return time.toString(time.date() == now.date() ? QStringLiteral("HH:mm")
                                                   : QStringLiteral("dd/MM/yyyy HH:mm"));
}

} // namespace

QString outageWords(const QDateTime& now, const QDateTime& since, const QString& failure,
                    const HallPlan& plan)
{
    const QString words = QStringLiteral("Depuis %1 : %2.").arg(timeWords(since, now), failure);
    return plan.isThere()
               ? words + QStringLiteral(" Plan lu à %1.").arg(timeWords(plan.readAt, now))
               : words;
}

HallDisplay::HallDisplay(HallReader reader, shell::DisplayRequest pace, Ties ties)
    : m_reader(std::move(reader)), m_pace(pace), m_ties(std::move(ties)),
      m_schedule(pace, m_ties.now())
{
    setObjectName(QStringLiteral("HallDisplay"));
    setWindowTitle(QStringLiteral("Tempora : salles du jour"));
    setWindowFlag(Qt::Window);
    setCursor(Qt::BlankCursor);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_clock.setInterval(kLook);
    m_ended.setSingleShot(true);
    connect(&m_ended, &QTimer::timeout, this, [this] { takeRead(); });
    connect(&m_clock, &QTimer::timeout, this, [this] { followClock(); });
}

HallDisplay::~HallDisplay() = default;

void HallDisplay::open()
{
    m_schedule = HallSchedule(m_pace, m_ties.now());
    m_asked = {};
    m_plan = {}; // one of an hour ago is no better than none
    m_outage.reset();
    setGeometry(screen()->geometry()); // also where no window manager sees to it
    showFullScreen();
    raise();
    activateWindow();
    setFocus();
    m_clock.start();
    followClock();
}

void HallDisplay::leave()
{
    if (wasLeft()) {
        return;
    }
    m_clock.stop();
    hide();
    m_ties.left();
}

void HallDisplay::followClock()
{
    const QDateTime now = m_ties.now();
    const HallMoment moment = m_schedule.at(now, m_plan.day, m_plan.pageCount());
    const QString remark = remarkAt(now);
    if (moment != m_moment || remark != m_remark) {
        m_moment = moment;
        m_remark = remark;
        setAccessibleDescription(remark);
        update();
    }
    if (!m_isReading && m_schedule.isReadingDue(now, m_asked)) {
        startReading(now);
    }
}

void HallDisplay::startReading(const QDateTime& now)
{
    m_asked = now;
    m_isReading = true;
    m_call = [this, now, rooms = hallRoomsFor(size())] { m_read = m_reader.read(now, rooms); };
    m_background.start(m_call);
    const bool isUnderWay = m_background.whenEnded(
        [this] { QMetaObject::invokeMethod(&m_ended, "start", Qt::QueuedConnection); });
    if (!isUnderWay) {
        m_ended.start();
    }
}

void HallDisplay::takeRead()
{
    m_isReading = false;
    try {
        m_background.finish();
        m_plan = std::exchange(m_read, {});
        m_outage.reset();
        setAccessibleName(HallPainter::roomsShown(m_plan, 0));
    } catch (const db::DatabaseError& error) {
        noteOutage(db::failureWords(error.failure()));
    } catch (...) {
        // Without a plan there is nothing to wait for; with one, somebody may mend it.
        if (!m_plan.isThere() && !wasLeft()) {
            m_clock.stop();
            hide();
            m_ties.failed(std::current_exception());
            return;
        }
        noteOutage(QStringLiteral("le plan ne peut pas être lu"));
    }
    if (!wasLeft()) {
        update();
        followClock();
    }
}

void HallDisplay::noteOutage(const QString& words)
{
    const QDateTime asked = m_asked.isValid() ? m_asked : m_ties.now();
    m_outage = Outage{m_outage ? m_outage->since : asked, words};
}

QString HallDisplay::remarkAt(const QDateTime& now) const
{
    if (m_outage) {
        return outageWords(now, m_outage->since, m_outage->words, m_plan);
    }
    return m_plan.isThere() ? QString() : QStringLiteral("Lecture du plan…");
}

void HallDisplay::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter surface(this);
    HallPainter(surface, size(), m_plan, m_moment, m_remark).paint();
}

void HallDisplay::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        leave();
    }
}

/// The keys of a window manager are an input as well; the end of a session is none.
void HallDisplay::closeEvent(QCloseEvent* event)
{
    if (event->spontaneous() && !qGuiApp->isSavingSession()) {
        event->ignore();
        return;
    }
    QWidget::closeEvent(event);
}

} // namespace app
