// SPDX-License-Identifier: MIT
#include "platform/desktop/ending_signals.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <glib-unix.h>
#include <unistd.h>
#include <utility>

namespace brelex {

namespace {

constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

// A signal writes its number into one end. The events of the other end arrive like any others.
std::array<int, 2>& Pipe() {
    static std::array<int, 2> ends{};
    return ends;
}

// May only do what the system allows in the middle of anything.
void PassOn(int signal) {
    const auto number = static_cast<unsigned char>(signal);
    if (write(Pipe()[1], &number, 1) != 1) {
        raise(signal);  // by now it ends the program
    }
}

gboolean EndProgram(gint file, GIOCondition /*condition*/, gpointer prepare) {
    unsigned char signal = 0;
    if (read(file, &signal, 1) == 1) {
        (*static_cast<std::function<void()>*>(prepare))();
        std::signal(signal, SIG_DFL);
        raise(signal);
    }
    return G_SOURCE_CONTINUE;
}

}  // namespace

void PrepareForEndingSignals(std::function<void()> prepare) {
    if (pipe2(Pipe().data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;  // signals end the program at once, as usual
    }
    static std::function<void()> prepareAll;
    prepareAll = std::move(prepare);
    g_unix_fd_add(Pipe()[0], G_IO_IN, EndProgram, &prepareAll);
    for (const int signal : kSignals) {
        struct sigaction before {};

        struct sigaction passed {};

        passed.sa_handler = PassOn;
        passed.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
        if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
            sigaction(signal, &passed, nullptr);
        }
    }
}

}  // namespace brelex
