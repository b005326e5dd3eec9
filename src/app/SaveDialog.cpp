#include "app/SaveDialog.h"

#include "app/PlainTexts.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

namespace app
{

namespace
{

bool mayReplace(QWidget* window, const QString& title, const QString& path)
{
    QMessageBox box(QMessageBox::Question, title,
                    QStringLiteral("« %1 » existe déjà.").arg(QFileInfo(path).fileName()),
                    QMessageBox::Cancel, window);
    box.setInformativeText(QStringLiteral("Le remplacer ?"));
    const QPushButton* replace =
        box.addButton(QStringLiteral("Remplacer"), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    showPlainly(box);
    box.exec();
    return box.clickedButton() == replace;
}

} // namespace

// The dialog asks about a file of the name that was typed; of one that has got its ending here, it
// knows nothing.
QString askWhereToSave(QWidget* window, const QString& title, const QString& proposed,
                       const QStringList& endings)
{
    QStringList filters;
    for (const QString& ending : endings) {
        filters << QStringLiteral("%1 (*.%2)").arg(ending.toUpper(), ending);
    }
    QString chosen;
    QString path = proposed;
    while (true) {
        path = QFileDialog::getSaveFileName(window, title, path, filters.join(QStringLiteral(";;")),
                                            &chosen);
        if (path.isEmpty() || endings.contains(QFileInfo(path).suffix().toLower())) {
            return path;
        }
        path += u'.' + endings.at(std::max<qsizetype>(filters.indexOf(chosen), 0));
        if (!QFileInfo::exists(path) || mayReplace(window, title, path)) {
            return path;
        }
    }
}

} // namespace app
