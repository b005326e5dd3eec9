#pragma once

#include <QWidget>

class QAction;

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
    /// `help` opens the guide.
    HeaderBand(engine::Engine& engine, FormMirror& mirror, QAction* help);
};

} // namespace app
