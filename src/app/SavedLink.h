#pragma once

#include <QString>
#include <QToolButton>
#include <functional>

namespace app
{

/// Opens a file in the program that the system has for it. False where there is none.
using FileOpener = std::function<bool(const QString& path)>;

/// The system's own way.
[[nodiscard]] FileOpener desktopOpener();

/// The link "Ouvrir" behind the name of a file that was just saved; hidden until there is one.
class SavedLink : public QToolButton
{
public:
    /// `tell` shows a sentence in the place of the file's name, should the file not open.
    SavedLink(FileOpener open, std::function<void(const QString& sentence)> tell);

    /// Offers the file. An empty path offers none.
    void offer(const QString& path);

private:
    FileOpener m_open;
    std::function<void(const QString&)> m_tell;
    QString m_path;
};

/// What is told of a saved file: "Enregistré : /home/marie/plan.pdf".
[[nodiscard]] QString savedWords(const QString& path);

} // namespace app
