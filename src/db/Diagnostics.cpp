#include "db/Diagnostics.h"

#include <QStringList>
#include <array>

namespace db
{
namespace
{

using runtime::ErrorNumber;

/// One diagnostic record of a handle; false when there is no such record.
bool readRecord(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT index, TextForm form,
                Diagnostics& record)
{
    constexpr std::size_t longestMessage = 2048;
    constexpr int stateLength = 5;
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    if (form == TextForm::Utf8) {
        std::array<SQLCHAR, stateLength + 1> state{};
        std::array<SQLCHAR, longestMessage> text{};
        if (!SQL_SUCCEEDED(SQLGetDiagRec(type, handle, index, state.data(), &native, text.data(),
                                         static_cast<SQLSMALLINT>(text.size()), &length))) {
            return false;
        }
        record.state = QString::fromUtf8(reinterpret_cast<const char*>(state.data()));
        record.text = QString::fromUtf8(reinterpret_cast<const char*>(text.data()));
    } else {
        std::array<SQLWCHAR, stateLength + 1> state{};
        std::array<SQLWCHAR, longestMessage> text{};
        if (!SQL_SUCCEEDED(SQLGetDiagRecW(type, handle, index, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length))) {
            return false;
        }
        record.state = QString::fromUtf16(reinterpret_cast<const char16_t*>(state.data()));
        record.text = QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()));
    }
    record.nativeCode = native;
    return true;
}

} // namespace

Diagnostics diagnosticsOf(SQLSMALLINT type, SQLHANDLE handle, TextForm form)
{
    constexpr SQLSMALLINT mostRecords = 20;
    Diagnostics all;
    QStringList texts;
    Diagnostics record;
    for (SQLSMALLINT i = 1; i <= mostRecords && readRecord(type, handle, i, form, record); ++i) {
        if (i == 1) {
            all = record;
        }
        texts << record.text;
    }
    texts.removeDuplicates();
    if (texts.isEmpty()) {
        texts << QStringLiteral("The driver gives no reason.");
    }
    all.text = texts.join(u'\n');
    return all;
}

ErrorNumber errorNumberByState(const Diagnostics& diagnostics)
{
    const QString& state = diagnostics.state;
    if (state.isEmpty() || state.startsWith(QStringLiteral("08")) ||
        state == QStringLiteral("HYT00") || state == QStringLiteral("HYT01") ||
        state.startsWith(QStringLiteral("IM0"))) {
        return ErrorNumber::DatabaseFailure;
    }
    return state == QStringLiteral("42S02") ? ErrorNumber::TableMissing
                                            : ErrorNumber::StatementRefused;
}

Failure failureByState(const Diagnostics& diagnostics)
{
    const QString& state = diagnostics.state;
    if (state.startsWith(u"08")) {
        return Failure::ConnectionLost;
    }
    if (state == u"HYT00" || state == u"HYT01") {
        return Failure::NoAnswer;
    }
    if (state == u"40001") {
        return Failure::RolledBack;
    }
    if (state == u"42S02") {
        return Failure::TableMissing;
    }
    return state.isEmpty() || state.startsWith(u"IM0") ? Failure::Other : Failure::Refused;
}

} // namespace db
