#include "app/SavedLink.h"

#include "app/PlainTexts.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <utility>

namespace app
{

FileOpener desktopOpener()
{
    return [](const QString& path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); };
}

SavedLink::SavedLink(FileOpener open, std::function<void(const QString& sentence)> tell)
    : m_open(std::move(open)), m_tell(std::move(tell))
{
    setObjectName(QStringLiteral("OpenSaved"));
    setProperty("role", QStringLiteral("link"));
    setText(QStringLiteral("Ouvrir"));
    setAutoRaise(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    hide();
    connect(this, &QToolButton::clicked, this, [this] {
        if (!m_open(m_path)) {
            m_tell(QStringLiteral("Aucun programme n’ouvre ce fichier : %1")
                       .arg(QDir::toNativeSeparators(m_path)));
        }
    });
}

void SavedLink::offer(const QString& path)
{
    m_path = path;
    setPlainToolTip(
        this, path.isEmpty() ? QString()
                             : QStringLiteral("Ouvrir « %1 »").arg(QDir::toNativeSeparators(path)));
    setVisible(!path.isEmpty());
}

QString savedWords(const QString& path)
{
    return QStringLiteral("Enregistré : %1").arg(QDir::toNativeSeparators(path));
}

} // namespace app
