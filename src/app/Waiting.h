#pragma once

#include "app/BackgroundCall.h"

#include <QEventLoop>
#include <QObject>
#include <chrono>
#include <functional>

namespace app
{

/// Shows that the program waits for its database, and keeps the window painted meanwhile: calls to
/// the database run in the background, and what takes long is told to the user.
class Waiting : public QObject
{
public:
    /// How waiting is shown. `show` and `hide` take turns.
    struct Sign {
        std::chrono::milliseconds after{}; ///< how much of an action passes without a sign
        std::function<void()> show;
        std::function<void()> hide;
        /// Which events are served while a call is under way.
        QEventLoop::ProcessEventsFlags served = QEventLoop::ExcludeUserInputEvents;
    };

    /// An action of the user: the time runs from its beginning, and its end takes the sign away. An
    /// action within another one is part of it.
    class Action
    {
    public:
        Action(Waiting& waiting, const Sign& sign);
        ~Action();
        Action(const Action&) = delete;
        Action& operator=(const Action&) = delete;

    private:
        Waiting& m_waiting;
        bool m_isOutermost;
    };

    /// A question to the user in the middle of an action: no sign stands meanwhile, and the time
    /// begins anew behind it.
    class Pause
    {
    public:
        explicit Pause(Waiting& waiting) : m_waiting(waiting) { m_waiting.beginAnew(); }
        ~Pause() { m_waiting.beginAnew(); }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        Waiting& m_waiting;
    };

    /// Runs a call in the background and returns when it has ended; outside an action it is run as
    /// it comes. Raises what the call raises.
    void run(const std::function<void()>& call);
    /// Shows the sign where the action has lasted that long.
    void showWhenDue();
    /// Whether events are being served while a call is under way: an action that needs the database
    /// has to be put off.
    [[nodiscard]] bool isServing() const { return m_isServing; }

private:
    void serveEvents();
    void beginAnew();
    void hide();
    [[nodiscard]] std::chrono::steady_clock::time_point due() const;

    BackgroundCall m_background;
    const Sign* m_sign = nullptr; ///< of the action under way; null where there is none
    std::chrono::steady_clock::time_point m_began;
    bool m_isShown = false;
    bool m_isServing = false;
};

} // namespace app
