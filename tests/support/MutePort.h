#pragma once

#include "support/Descriptor.h"

#include <QtGlobal>

namespace test
{

/// A port of this machine that nobody else can take meanwhile, and from which no word comes.
class MutePort
{
public:
    enum class Calls {
        Refused, ///< nobody listens there
        Taken,   ///< a call is taken, and that is all
    };

    /// Throws std::runtime_error when no port is to be had.
    explicit MutePort(Calls calls);

    [[nodiscard]] quint16 number() const { return m_number; }

private:
    Descriptor m_socket;
    quint16 m_number = 0;
};

} // namespace test
