#pragma once

#include "runtime/RunTimeError.h"

#include <QApplication>
#include <functional>

namespace app
{

/// The application object. A fault that leaves an event handler, whatever its kind, is told and
/// ends the program with exit code 1; the toolkit would let the process die without a word.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    /// Tells of a fault and ends the program: a message and the exit code, unless a window that has
    /// more to do puts its own function here.
    std::function<void(const runtime::RunTimeError& fault)> onFault = tellAndExit;

    /// What `onFault` does at first.
    static void tellAndExit(const runtime::RunTimeError& fault);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace app
