#include "Platform/Qt/TerminationSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cstdio>

namespace larkspan {

namespace {

int pipeFds[2] = {-1, -1};

extern "C" void forwardSignal(int number) {
    const unsigned char byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const auto written = ::write(pipeFds[1], &byte, 1);
}

}  // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent) {
    if (::pipe2(pipeFds, O_CLOEXEC | O_NONBLOCK) != 0) {
        std::perror("Larkspan: cannot watch for termination signals");
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(pipeFds[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        unsigned char byte = 0;
        while (::read(pipeFds[0], &byte, 1) == 1)
            emit terminationRequested(byte);
    });

    struct sigaction action = {};
    action.sa_handler = forwardSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
    signal(SIGTERM, SIG_DFL);
    signal(SIGINT, SIG_DFL);
    notifier_.reset();
    for (int& fd : pipeFds) {
        if (fd >= 0)
            ::close(fd);
        fd = -1;
    }
}

}  // namespace larkspan
