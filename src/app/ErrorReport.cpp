#include "app/ErrorReport.h"

#include "app/PlainTexts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <cstdio>

namespace app
{
namespace
{

void write(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void writeOutput(const QString& text)
{
    write(stdout, text);
}

void writeError(const QString& text)
{
    write(stderr, text + u'\n');
}

void showFault(QWidget* parent, const QString& text, const QString& beneath,
               const std::optional<WayOut>& wayOut)
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr &&
        QGuiApplication::platformName() != u"offscreen") {
        QMessageBox box(QMessageBox::Critical, QStringLiteral("Tempora"), text, QMessageBox::Ok,
                        parent);
        box.setInformativeText(beneath);
        showPlainly(box); // the texts may quote data
        box.setObjectName(QStringLiteral("RunTimeError"));
        QPushButton* way = wayOut ? box.addButton(wayOut->label, QMessageBox::ActionRole) : nullptr;
        box.setDefaultButton(way); // whoever has nothing to show yet gets on with Enter
        box.setEscapeButton(QMessageBox::Ok);
        box.exec();
        if (way != nullptr && box.clickedButton() == way) {
            wayOut->take();
        }
    }
}

void reportRunTimeError(QWidget* parent, const runtime::RunTimeError& error,
                        const std::optional<WayOut>& wayOut)
{
    writeError(error.message());
    QString words = error.explanation();
    if (!error.activity().isEmpty()) {
        words += QStringLiteral("\n\n") + error.activity();
    }
    showFault(parent, words, error.numberAndText(), wayOut);
}

} // namespace app
