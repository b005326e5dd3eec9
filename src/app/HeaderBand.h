#pragma once

#include <QWidget>

class QAction;

namespace shell
{
class Shell;
}

namespace app
{

class FormMirror;

/// The band at the top: whose plan this is, what it shows, the dates of the period, and the help.
class HeaderBand : public QWidget
{
public:
    /// `help` opens the guide.
    HeaderBand(shell::Shell& shell, FormMirror& mirror, QAction* help);
};

} // namespace app
