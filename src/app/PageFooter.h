#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QToolButton;

namespace engine
{
class Engine;
}
namespace plan
{
struct PlanState;
}

namespace app
{

class FormMirror;

/// What the status bar says of the page, "Salles 13–31 sur 64, page 2/4", and the way back where
/// the page begins elsewhere than pages of its size do: another number of rows can leave the first
/// rooms out of the buttons' reach.
class PageFooter : public QWidget
{
public:
    /// `forward` runs a user's action.
    PageFooter(engine::Engine& engine, FormMirror& mirror,
               std::function<void(const std::function<void()>& action)> forward);

private:
    void tell(const plan::PlanState& state);

    QLabel* m_rooms;
    QToolButton* m_wayBack;
};

} // namespace app
