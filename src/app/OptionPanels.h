#pragma once

#include <QWidget>

namespace shell
{
class Shell;
}

namespace app
{

class FormMirror;

/// The choices of the room manager, grouped by what they are for.
class OptionPanels : public QWidget
{
public:
    OptionPanels(shell::Shell& shell, FormMirror& mirror);

    /// Brings a control that the mouse cannot reach into view: the first option of the band.
    void focusColorer();

private:
    QWidget* m_colorer = nullptr;
};

} // namespace app
