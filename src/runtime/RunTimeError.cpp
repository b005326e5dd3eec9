#include "runtime/RunTimeError.h"

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

RunTimeError::RunTimeError(ErrorNumber number) : RunTimeError(number, platformErrorText(number)) {}

RunTimeError::RunTimeError(ErrorNumber number, QString text)
    : m_number(number), m_text(std::move(text)), m_what(m_text.toUtf8())
{
}

void RunTimeError::addActivity(const QString& activity)
{
    if (m_activity.isEmpty()) {
        m_activity = activity;
    }
}

void RunTimeError::addPlace(const QString& place)
{
    m_activity += m_activity.isEmpty() ? place : u'\n' + place;
}

QString RunTimeError::message() const
{
    QString message = QStringLiteral("Run-time error '%1':\n\n%2")
                          .arg(QString::number(static_cast<int>(m_number)), m_text);
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
