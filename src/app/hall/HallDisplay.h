#pragma once

#include "app/BackgroundCall.h"
#include "app/hall/HallPlan.h"
#include "app/hall/HallReader.h"
#include "app/hall/HallSchedule.h"

#include <QTimer>
#include <QWidget>
#include <exception>
#include <functional>
#include <optional>

namespace app
{

/// The screen in the hall: today's plan of all rooms, full screen, for people who walk by. Its
/// pages turn by themselves, it reads the database again and again in the background, and goes on
/// to the next day with the clock. While the database is away it shows the last plan, and since
/// when. No input does anything but Escape.
class HallDisplay : public QWidget
{
public:
    /// Whom the screen tells of its end, and who tells it the time.
    struct Ties {
        std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); };
        /// After Escape; the screen is hidden by then.
        std::function<void()> left = [] {};
        /// Nothing can be shown, and trying again would not help: a mistake in the choices or in
        /// the settings. The screen is hidden by then.
        std::function<void(const std::exception_ptr& fault)> failed =
            [](const std::exception_ptr&) {};
    };

    HallDisplay(HallReader reader, shell::DisplayRequest pace, Ties ties);
    /// Waits for a reading under way.
    ~HallDisplay() override;

    /// Shows the screen, its first page first. The plan comes once it is read.
    void open();
    /// As Escape does. A reading under way goes on in the background; its plan is not shown.
    void leave();
    /// Shows what is due by the clock, and has the plan read when that is due. A timer asks for it.
    void followClock();

    /// Whether the database is being asked.
    [[nodiscard]] bool isReading() const { return m_isReading; }
    [[nodiscard]] const HallPlan& plan() const { return m_plan; }
    [[nodiscard]] const HallMoment& moment() const { return m_moment; }
    /// The line above the plan; empty while the database answers.
    [[nodiscard]] const QString& remark() const { return m_remark; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// Why the database does not answer, and since when.
    struct Outage {
        QDateTime since;
        QString words; ///< the rest of a sentence
    };

    void startReading(const QDateTime& now);
    void takeRead();
    void noteOutage(const QString& words);
    [[nodiscard]] bool wasLeft() const { return !isVisible(); }
    [[nodiscard]] QString remarkAt(const QDateTime& now) const;

    HallReader m_reader;
    shell::DisplayRequest m_pace;
    Ties m_ties;
    HallSchedule m_schedule;
    HallPlan m_plan;
    HallMoment m_moment;
    QString m_remark;
    std::optional<Outage> m_outage;
    QDateTime m_asked; ///< when the last reading began; not valid before the first
    QTimer m_clock;
    QTimer m_ended; ///< runs out at once when a reading has ended

    // What the background call reads and writes while it is under way.
    std::function<void()> m_call;
    HallPlan m_read;
    bool m_isReading = false;
    BackgroundCall m_background; ///< last: at its end it waits for what uses the others
};

/// The line above a plan that is not up to date: what has failed since when, and of when the plan
/// is. Times of another day than `now` tell their date. Without a plan: only what has failed.
[[nodiscard]] QString outageWords(const QDateTime& now, const QDateTime& since,
                                  const QString& failure, const HallPlan& plan);

} // namespace app
