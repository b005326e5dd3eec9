#pragma once

#include <QWidget>
#include <functional>

namespace engine
{
class Engine;
}

namespace app
{

class FormMirror;
class NoticeBar;

/// The lines above the plan: a red one for what could not be read, since a room that looks free
/// need not be, and an amber one for what the options say beyond what the plan shows.
class PlanNotices : public QWidget
{
public:
    /// Runs a user's action.
    using Forward = std::function<void(const std::function<void()>& action)>;

    PlanNotices(engine::Engine& engine, FormMirror& mirror, Forward forward);

    /// F5: reads the plan of the shown day again, with all that the options say.
    void refresh();

private:
    void readAgain();
    void tell();

    engine::Engine& m_engine;
    Forward m_forward;
    NoticeBar* m_faults;
    NoticeBar* m_stale;
};

} // namespace app
