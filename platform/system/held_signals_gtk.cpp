// SPDX-License-Identifier: MIT
#include "platform/system/held_signals.h"

#include <csignal>

namespace brelex {

class HeldSignals::Before {
  public:
    sigset_t signals{};
};

HeldSignals::HeldSignals() : before_(std::make_unique<Before>()) {
    sigset_t ending{};
    sigemptyset(&ending);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGALRM}) {
        sigaddset(&ending, signal);
    }
    pthread_sigmask(SIG_BLOCK, &ending, &before_->signals);
}

HeldSignals::~HeldSignals() {
    pthread_sigmask(SIG_SETMASK, &before_->signals, nullptr);
}

}  // namespace brelex
