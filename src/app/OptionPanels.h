#pragma once

#include <QWidget>
#include <vector>

namespace engine
{
class Engine;
}

namespace app
{

class FormMirror;

/// The choices of the room manager, grouped by what they are for.
class OptionPanels : public QWidget
{
public:
    OptionPanels(engine::Engine& engine, FormMirror& mirror);

    /// Brings a control that the mouse cannot reach into view: the first option of the band.
    void focusColorer();

    /// The groups, from left to right.
    [[nodiscard]] std::vector<QWidget*> groups() const;

private:
    QWidget* m_colorer = nullptr;
};

} // namespace app
