#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <functional>

namespace test
{

/// Does something to a dialog of that kind, from within the dialog's own event loop, once it is
/// open.
template <typename Dialog>
void whenOpen(const std::function<void(Dialog&)>& act)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, act] {
        if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            act(*dialog);
        }
    });
    timer->start(10);
}

/// Saves under that path in a dialog of the toolkit's own. Its `selectFile` leaves the name alone
/// while the user is in that field.
inline void saveAs(QFileDialog& dialog, const QString& path)
{
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    dynamic_cast<QDialog&>(dialog).accept();
}

} // namespace test
