// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array Signals {SIGTERM, SIGINT, SIGHUP};
// The socket pair: the handler writes to [0], the notifier reads [1].
int signalPair[2] = {-1, -1};

void onSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalPair[0], &byte, 1);
}

void handleWith(void (*handler)(int))
{
    struct sigaction action
    {
    };
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : Signals)
        sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalPair) != 0)
        return; // without the pair the signals keep their default action
    m_notifier = new QSocketNotifier(signalPair[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TerminationSignals::drain);
    handleWith(onSignal);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    handleWith(SIG_DFL);
    delete m_notifier;
    ::close(signalPair[0]);
    ::close(signalPair[1]);
    signalPair[0] = signalPair[1] = -1;
}

void TerminationSignals::drain()
{
    char bytes[16];
    while (::read(signalPair[1], bytes, sizeof bytes) > 0) { }
    emit requested();
}
