#pragma once

#include "absences/AsyncKeyState.h"

#include <QString>
#include <functional>
#include <memory>

namespace engine
{
class Engine;
}

namespace app
{

class StatusNews;

/// What a click in the plan marks, and the word that follows it in the status bar: what was
/// recorded or taken back, or why nothing was.
class MarkerClicks
{
public:
    /// Runs a user's action.
    using Forward = std::function<void(const std::function<void()>& action)>;

    /// `engine` and `news` outlive this.
    MarkerClicks(engine::Engine& engine, StatusNews& news, Forward forward);

    /// `marker` is a box's, or one of PlanView's numbers for a click that hits none.
    void click(int marker);
    /// As the click with that key held does, for hands that hold none.
    void clickHolding(int marker, absences::VirtualKey key);

private:
    void mark(int marker, const std::shared_ptr<absences::AsyncKeyState>& keys,
              const QString& otherwise);
    void tell(const QString& sentence);

    engine::Engine& m_engine;
    StatusNews& m_news;
    Forward m_forward;
    std::shared_ptr<absences::AsyncKeyState> m_keys; ///< a click may be put off
};

} // namespace app
