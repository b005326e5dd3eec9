#include "runtime/RunTimeError.h"

#include <QStringList>
#include <new>

namespace runtime
{

QString platformErrorText(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow:
        return QStringLiteral("Overflow");
    case ErrorNumber::OutOfMemory:
        return QStringLiteral("Out of memory");
    case ErrorNumber::InternalError:
        return QStringLiteral("Internal error");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("File not found");
    case ErrorNumber::PathFileAccess:
        return QStringLiteral("Path/File access error");
    case ErrorNumber::InvalidUseOfNull:
        return QStringLiteral("Invalid use of Null");
    case ErrorNumber::InvalidFileFormat:
        return QStringLiteral("Invalid file format");
    case ErrorNumber::PrinterError:
        return QStringLiteral("Printer error");
    case ErrorNumber::ItemNotFound:
        return QStringLiteral("Item cannot be found in the collection corresponding to the "
                              "requested name or ordinal.");
    case ErrorNumber::DatabaseFailure:
    case ErrorNumber::StatementRefused:
    case ErrorNumber::TableMissing:
        break;
    }
    return {};
}

QString explanationOf(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return QStringLiteral("Cette opération n’est pas possible ici.");
    case ErrorNumber::Overflow:
        return QStringLiteral("Un nombre est trop grand.");
    case ErrorNumber::OutOfMemory:
        return QStringLiteral("La mémoire de l’ordinateur est pleine.");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Il y en a plus que le programme n’a de places.");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Une valeur n’a pas la forme attendue.");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("Un fichier manque.");
    case ErrorNumber::PathFileAccess:
        return QStringLiteral("Un fichier ne se laisse pas lire ou écrire.");
    case ErrorNumber::InvalidUseOfNull:
        return QStringLiteral("Une valeur manque dans la base de données.");
    case ErrorNumber::InvalidFileFormat:
        return QStringLiteral("Un fichier est abîmé, ou n’a pas la forme attendue.");
    case ErrorNumber::PrinterError:
        return QStringLiteral("L’impression a échoué.");
    case ErrorNumber::ItemNotFound:
        return QStringLiteral("Une colonne manque dans la base de données.");
    case ErrorNumber::DatabaseFailure:
        return QStringLiteral("La base de données ne se laisse pas lire ou modifier.");
    case ErrorNumber::StatementRefused:
        return QStringLiteral("La base de données refuse une demande.");
    case ErrorNumber::TableMissing:
        return QStringLiteral("Une table manque dans la base de données.");
    case ErrorNumber::InternalError:
        break;
    }
    return QStringLiteral("Le programme a rencontré une faute imprévue.");
}

QString shortened(const QString& text)
{
    constexpr qsizetype longest = 600;
    constexpr qsizetype ending = 100; // which may say where
    constexpr qsizetype mostLines = 12;
    QString part = text;
    if (part.size() > longest) {
        part = part.left(longest - ending - 3) + QStringLiteral(" … ") + part.right(ending);
    }
    const QStringList lines = part.split(u'\n');
    return lines.size() <= mostLines
               ? part
               : lines.mid(0, mostLines - 1).join(u'\n') + QStringLiteral("\n…");
}

RunTimeError::RunTimeError(ErrorNumber number) : RunTimeError(number, platformErrorText(number)) {}

RunTimeError::RunTimeError(ErrorNumber number, const QString& text)
    : m_number(number), m_text(shortened(text)), m_explanation(explanationOf(number)),
      m_what(m_text.toUtf8())
{
}

void RunTimeError::explain(const QString& words)
{
    m_explanation = words.left(1).toUpper() + words.mid(1) + u'.';
}

void RunTimeError::addActivity(const QString& activity)
{
    if (m_activity.isEmpty()) {
        m_activity = shortened(activity);
    }
}

void RunTimeError::addPlace(const QString& place)
{
    m_activity += m_activity.isEmpty() ? shortened(place) : u'\n' + shortened(place);
}

QString RunTimeError::numberAndText() const
{
    return QStringLiteral("Run-time error '%1':\n\n%2")
        .arg(QString::number(static_cast<int>(m_number)), m_text);
}

QString RunTimeError::message() const
{
    QString message = numberAndText();
    if (!m_activity.isEmpty()) {
        message += QStringLiteral("\n\n") + m_activity;
    }
    return message;
}

RunTimeError faultInFlight()
{
    try {
        throw;
    } catch (const RunTimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RunTimeError(ErrorNumber::OutOfMemory);
    } catch (const std::exception& fault) {
        RunTimeError error(ErrorNumber::InternalError);
        error.addActivity(QStringLiteral("Faute inattendue du programme : ") +
                          QString::fromUtf8(fault.what()));
        return error;
    } catch (...) {
        RunTimeError error(ErrorNumber::InternalError);
        error.addActivity(QStringLiteral("Faute inattendue du programme"));
        return error;
    }
}

} // namespace runtime
