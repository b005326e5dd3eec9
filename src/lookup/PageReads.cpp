#include "lookup/PageReads.h"

#include <algorithm>

namespace lookup
{

using db::Failure;
using runtime::RunTimeError;

void PageReads::begin()
{
    m_faults.clear();
    m_verdict.reset();
    m_lost = false;
    m_startedAgain = false;
    runtime::skipOnError([this] { ask({}, m_upkeep.revive); });
}

void PageReads::note(const QStringList& names, const RunTimeError& error)
{
    const Failure failure = db::failureOf(error);
    if (failure == Failure::Refused) {
        const auto unheld = std::find_if(names.begin(), names.end(), [this](const QString& name) {
            return !m_upkeep.holds(name);
        });
        if (unheld != names.end()) {
            add({*unheld, error.text(), failure});
            return;
        }
    }
    add({{}, error.text(), failure});
    if (db::concernsAllReads(failure)) {
        m_verdict.emplace(failure, error.number(), error.text());
        m_lost = failure == Failure::ConnectionLost;
    }
}

void PageReads::expectHeld(const QStringList& names)
{
    for (const QString& name : names) {
        if (!m_upkeep.holds(name)) {
            const db::DatabaseError error = db::nameRefused();
            add({name, error.text(), error.failure()});
            throw error;
        }
    }
}

void PageReads::add(ReadFault fault)
{
    const auto known =
        std::find_if(m_faults.begin(), m_faults.end(), [&fault](const ReadFault& other) {
            return other.name == fault.name && (!fault.name.isEmpty() || other.text == fault.text);
        });
    if (known == m_faults.end()) {
        m_faults.push_back(std::move(fault));
    }
}

bool PageReads::startAgain()
{
    if (!m_lost || std::exchange(m_startedAgain, true)) {
        return false;
    }
    m_faults.clear();
    m_verdict.reset();
    m_lost = false;
    return runtime::skipOnError([this] { ask({}, m_upkeep.renew); });
}

void PageReads::end()
{
    if (!isIncomplete(m_faults)) {
        m_failingSince.reset();
    } else if (!m_failingSince) {
        m_failingSince = m_upkeep.now();
    }
}

bool isIncomplete(const std::vector<ReadFault>& faults)
{
    return std::any_of(faults.begin(), faults.end(),
                       [](const ReadFault& fault) { return fault.name.isEmpty(); });
}

} // namespace lookup
