#include "absences/DoneWords.h"

#include <QLocale>

namespace absences
{
namespace
{

/// "G1", "4 classes".
QString classesInWords(const QStringList& classes)
{
    if (classes.size() > 1) {
        return QStringLiteral("%1 classes").arg(classes.size());
    }
    const QString name = classes.value(0);
    return name.isEmpty() ? QStringLiteral("la classe sans nom") : name;
}

QString words(const Toggled& toggled)
{
    const QString absence = toggled.what == Toggled::What::Students
                                ? QStringLiteral("Absence d’étudiants de ")
                                : QStringLiteral("Absence de ");
    QStringList parts;
    if (!toggled.recorded.isEmpty()) {
        parts << absence + classesInWords(toggled.recorded) + QStringLiteral(" enregistrée");
    }
    if (!toggled.takenBack.isEmpty()) {
        parts << (parts.isEmpty() ? absence : QStringLiteral("celle de ")) +
                     classesInWords(toggled.takenBack) + QStringLiteral(" retirée");
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

QString doneWords(const std::vector<Toggled>& done)
{
    QStringList sentences;
    bool isRecorded = false;
    QDate day;
    for (const Toggled& toggled : done) {
        const QString sentence = words(toggled);
        sentences << (sentences.isEmpty() ? sentence
                                          : sentence.left(1).toLower() + sentence.mid(1));
        isRecorded = isRecorded || !toggled.recorded.isEmpty();
        day = toggled.day;
    }
    sentences.removeAll(QString());
    if (sentences.isEmpty()) {
        return {};
    }
    const QString date =
        QLocale(QLocale::French, QLocale::France).toString(day, QStringLiteral("dddd dd/MM"));
    return sentences.join(QStringLiteral(" ; ")) + QStringLiteral(", ") + date +
           (isRecorded ? QStringLiteral(" (refaire le geste pour annuler)") : QString());
}

} // namespace absences
