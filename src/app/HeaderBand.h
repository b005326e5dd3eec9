#pragma once

#include <QWidget>

namespace shell
{
class Shell;
}

namespace app
{

class FormMirror;

/// The band at the top: whose plan this is, what it shows, and the dates of the period.
class HeaderBand : public QWidget
{
public:
    HeaderBand(shell::Shell& shell, FormMirror& mirror);
};

} // namespace app
