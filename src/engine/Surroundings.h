#pragma once

#include "appearance/Palette.h"
#include "db/Await.h"

#include <QDate>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

namespace engine
{

/// What the program finds around it. The window, the command line and tests give their own.
struct Surroundings {
    /// Folder that holds the executable, `app_data` and `Styles`.
    QString applicationFolder;
    /// Folder whose `app_data` serves where that beside the program has no such file; empty
    /// without one.
    QString systemFolder;
    std::function<QDate()> today = [] { return QDate::currentDate(); };
    /// Fixes the random row colours.
    std::optional<std::uint32_t> seed;
    /// Sends one statement per question instead of a few for many.
    bool plain = false;
    /// Lets waiting events run in the middle of a refresh.
    std::function<void()> processEvents = [] {};
    /// Runs a call to the database that may take long.
    db::Await await = db::awaitHere;
    /// Lets the user choose a file to open; empty when the user cancels.
    appearance::Palette::OpenFile openFile = [](const QString&, const QString&) {
        return QString();
    };
    /// Shows a message box with an OK button.
    std::function<void(const QString& title, const QString& text)> showMessage =
        [](const QString&, const QString&) {};
};

} // namespace engine
