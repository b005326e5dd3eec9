#pragma once

#include <QLabel>

namespace engine
{
class Engine;
}

namespace app
{

class FormMirror;

/// Says in the middle of an empty plan why it is empty; hidden while there is a box. Clicks go to
/// the plan beneath. Screen readers are told by the plan's own table.
class EmptyPlanNote : public QLabel
{
public:
    /// `plan` is what it lies over, and owns it.
    EmptyPlanNote(const engine::Engine& engine, FormMirror& mirror, QWidget* plan);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tell(const QString& reason);
    void place();

    QWidget* m_plan;
};

} // namespace app
