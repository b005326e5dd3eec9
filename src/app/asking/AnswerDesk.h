#pragma once

#include "shell/Inquiry.h"

#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

namespace app
{

/// Holds the timetable as it was read last, for all windows that ask it questions. It is read when
/// it is first asked, and anew once the plan has been drawn again since.
class AnswerDesk : public QObject
{
public:
    /// Runs a user's action on the program.
    using Forward = std::function<void(const std::function<void()>& action)>;

    AnswerDesk(shell::Shell& shell, Forward forward);

    [[nodiscard]] shell::Shell& shell() { return m_shell; }

    /// Runs `then` once the timetable is there, at once where it is; else after the reading, which
    /// waits for its turn among the user's actions. What cannot be read is told by `fault`.
    void ask(const std::function<void()>& then);
    /// Whether the plan has been drawn again since the reading, or nothing has been read.
    [[nodiscard]] bool isOld() const;
    /// Null where it could not be read.
    [[nodiscard]] const shell::Inquiry* inquiry() const
    {
        return m_inquiry ? &*m_inquiry : nullptr;
    }
    /// Why it could not be read, as a sentence in French; empty where it could.
    [[nodiscard]] const QString& fault() const { return m_fault; }

private:
    void read();

    shell::Shell& m_shell;
    Forward m_forward;
    std::optional<shell::Inquiry> m_inquiry;
    std::uint64_t m_readAtRefresh = 0; ///< how many refreshes there had been
    QString m_fault;
};

} // namespace app
