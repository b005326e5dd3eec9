#pragma once

#include <QWidget>

class QAction;
class QMenu;

namespace engine
{
class Engine;
}

namespace app
{

class FormMirror;

/// The band at the top: whose plan this is, what it shows, the dates of the period, and the help.
class HeaderBand : public QWidget
{
public:
    /// `help` opens the guide, `questions` is the menu behind "Chercher".
    HeaderBand(engine::Engine& engine, FormMirror& mirror, QAction* help, QMenu* questions);
};

} // namespace app
