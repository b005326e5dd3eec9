#pragma once

#include "plan/RowColors.h"

#include <QDialog>
#include <QString>
#include <functional>

class QListWidget;

namespace app
{

/// Lets the user choose a palette by the look of it: each one that lies in the folder of the
/// palettes, and "Défaut", on a sample of the plan. Any other file is chosen behind "Autre…".
class PaletteGallery : public QDialog
{
public:
    struct Offer {
        QString folder;  ///< of the palettes
        QString current; ///< path of the palette in use; empty for "Défaut"
        /// Lets the user choose any file, in a dialog over that window; empty when the user
        /// cancels.
        std::function<QString(QWidget* over)> chooseOther;
    };

    PaletteGallery(Offer offer, QWidget* parent);

    /// What was chosen, once the dialog is accepted: the path of a file, empty for "Défaut".
    [[nodiscard]] const QString& chosen() const { return m_chosen; }

private:
    void add(const QString& path, const plan::RowColors& colors);
    void addFiles();
    void choose();
    void chooseOther();

    Offer m_offer;
    QListWidget* m_list;
    QString m_chosen;
};

} // namespace app
