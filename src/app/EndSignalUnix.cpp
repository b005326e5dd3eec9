#include "app/EndSignal.h"

#include <QSocketNotifier>
#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace app
{

struct EndSignal::Source {
    Source()
    {
        sigset_t endings;
        sigemptyset(&endings);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            sigaddset(&endings, signal);
        }
        // Blocked signals pass no thread by: those to come take the mask over.
        pthread_sigmask(SIG_BLOCK, &endings, &before);
        descriptor = signalfd(-1, &endings, SFD_CLOEXEC | SFD_NONBLOCK);
        if (descriptor < 0) { // nobody would hear them
            pthread_sigmask(SIG_SETMASK, &before, nullptr);
        }
    }
    ~Source()
    {
        notifier.reset();
        if (descriptor >= 0) {
            close(descriptor);
        }
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    /// Takes one signal that has come. False without any.
    [[nodiscard]] bool take() const
    {
        signalfd_siginfo signal{};
        return read(descriptor, &signal, sizeof(signal)) == sizeof(signal);
    }

    int descriptor = -1; ///< -1 where the system has none to give
    sigset_t before{};
    std::unique_ptr<QSocketNotifier> notifier;
};

EndSignal::EndSignal() : m_source(std::make_unique<Source>()) {}

EndSignal::~EndSignal() = default;

void EndSignal::serve(std::function<void()> end)
{
    if (m_source->descriptor < 0) {
        return;
    }
    m_source->notifier =
        std::make_unique<QSocketNotifier>(m_source->descriptor, QSocketNotifier::Read);
    QObject::connect(m_source->notifier.get(), &QSocketNotifier::activated,
                     m_source->notifier.get(), [this, end = std::move(end)] {
                         if (m_source->take()) {
                             end();
                         }
                     });
}

void EndSignal::stop()
{
    m_source->notifier.reset();
}

} // namespace app
