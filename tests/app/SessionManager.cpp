#include "app/SessionManager.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <vector>
// Behind all others: they define words such as "Bool".
#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

namespace test
{

struct SessionManager::Protocol {
    int count = 0;
    IceListenObj* listening = nullptr;
    std::string address;
    IceConn line = nullptr;
    SmsConn program = nullptr;
    int savings = 0; ///< how often the program has said that it has saved its things
    bool registered = false;
    bool gone = false;

    static Protocol& of(SmPointer data) { return *static_cast<Protocol*>(data); }

    static Status answerRegistration(SmsConn client, SmPointer data, char* previous)
    {
        std::free(previous); // NOLINT(cppcoreguidelines-no-malloc): the library's own
        char* name = SmsGenerateClientID(client);
        SmsRegisterClientReply(client, name);
        std::free(name); // NOLINT(cppcoreguidelines-no-malloc)
        of(data).registered = true;
        // The protocol wants a new program to save once.
        SmsSaveYourself(client, SmSaveLocal, False, SmInteractStyleNone, False);
        return 1;
    }

    static void hangUp(SmsConn /*client*/, SmPointer data, int number, char** reasons)
    {
        SmFreeReasons(number, reasons);
        of(data).drop();
    }

    static void forget(SmsConn /*client*/, SmPointer /*data*/, int number, SmProp** properties)
    {
        for (int i = 0; i < number; ++i) {
            SmFreeProperty(properties[i]);
        }
        std::free(properties); // NOLINT(cppcoreguidelines-no-malloc)
    }

    static Status greet(SmsConn client, SmPointer data, unsigned long* mask,
                        SmsCallbacks* callbacks, char** /*reason*/)
    {
        of(data).program = client;
        *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
                SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
                SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask |
                SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
        callbacks->register_client = {answerRegistration, data};
        callbacks->interact_request = {[](SmsConn asking, SmPointer, int) { SmsInteract(asking); },
                                       data};
        callbacks->interact_done = {[](SmsConn, SmPointer, Bool) {}, data};
        callbacks->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {},
                                            data};
        callbacks->save_yourself_phase2_request = {
            [](SmsConn asking, SmPointer) { SmsSaveYourselfPhase2(asking); }, data};
        callbacks->save_yourself_done = {
            [](SmsConn, SmPointer manager, Bool) { ++of(manager).savings; }, data};
        callbacks->close_connection = {hangUp, data};
        callbacks->set_properties = {forget, data};
        callbacks->delete_properties = {
            [](SmsConn, SmPointer, int number, char** names) { SmFreeReasons(number, names); },
            data};
        callbacks->get_properties = {
            [](SmsConn asking, SmPointer) { SmsReturnProperties(asking, 0, nullptr); }, data};
        return 1;
    }

    /// The line is closed from here.
    void drop()
    {
        if (program != nullptr) {
            SmsCleanUp(program);
            program = nullptr;
        }
        IceSetShutdownNegotiation(line, False);
        IceCloseConnection(line);
        line = nullptr;
        gone = true;
    }
    void accept(IceListenObj listener)
    {
        IceAcceptStatus status = IceAcceptFailure;
        IceConn accepted = IceAcceptConnection(listener, &status);
        if (status != IceAcceptSuccess) {
            return;
        }
        while (IceConnectionStatus(accepted) == IceConnectPending) {
            IceProcessMessages(accepted, nullptr, nullptr);
        }
        line = accepted;
    }
    /// Takes what has come within a tenth of a second.
    void serve()
    {
        std::vector<pollfd> sources;
        for (int i = 0; i < count; ++i) {
            sources.push_back({IceGetListenConnectionNumber(listening[i]), POLLIN, 0});
        }
        if (line != nullptr) {
            sources.push_back({IceConnectionNumber(line), POLLIN, 0});
        }
        constexpr int shortly = 100; // milliseconds
        poll(sources.data(), sources.size(), shortly);
        for (int i = 0; i < count; ++i) {
            if ((sources[static_cast<std::size_t>(i)].revents & POLLIN) != 0) {
                accept(listening[i]);
                return;
            }
        }
        if (line != nullptr && sources.back().revents != 0 &&
            IceProcessMessages(line, nullptr, nullptr) == IceProcessMessagesIOError) {
            drop();
        }
    }
};

SessionManager::SessionManager() : m_protocol(std::make_unique<Protocol>())
{
    IceSetIOErrorHandler([](IceConn) {}); // else the process ends with its partner
    std::array<char, 256> fault{};
    const int room = static_cast<int>(fault.size());
    const auto anyHost = [](char*) -> Bool { return True; };
    if (SmsInitialize("Tempora", "1", Protocol::greet, m_protocol.get(), anyHost, room,
                      fault.data()) == 0 ||
        IceListenForConnections(&m_protocol->count, &m_protocol->listening, room, fault.data()) ==
            0) {
        throw std::runtime_error(fault.data());
    }
    for (int i = 0; i < m_protocol->count; ++i) {
        IceSetHostBasedAuthProc(m_protocol->listening[i], anyHost);
    }
    char* address = IceComposeNetworkIdList(m_protocol->count, m_protocol->listening);
    m_protocol->address = address;
    std::free(address); // NOLINT(cppcoreguidelines-no-malloc)
}

SessionManager::~SessionManager()
{
    if (m_protocol->line != nullptr) {
        m_protocol->drop();
    }
    IceFreeListenObjs(m_protocol->count, m_protocol->listening);
}

QString SessionManager::address() const
{
    return QString::fromStdString(m_protocol->address);
}

bool SessionManager::waitForProgram()
{
    return serveUntil([this] { return m_protocol->registered && m_protocol->savings == 1; });
}

bool SessionManager::askToSave()
{
    const int before = m_protocol->savings;
    SmsSaveYourself(m_protocol->program, SmSaveBoth, True, SmInteractStyleAny, False);
    return serveUntil([this, before] { return m_protocol->savings > before; });
}

void SessionManager::callOff()
{
    SmsShutdownCancelled(m_protocol->program);
}

bool SessionManager::end()
{
    SmsDie(m_protocol->program);
    return serveUntil([this] { return m_protocol->gone; });
}

bool SessionManager::serveUntil(const std::function<bool()>& done)
{
    const auto last = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!done() && !m_protocol->gone && std::chrono::steady_clock::now() < last) {
        m_protocol->serve();
    }
    return done();
}

} // namespace test
