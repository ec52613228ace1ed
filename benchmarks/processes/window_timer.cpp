// SPDX-License-Identifier: MIT
#include <chrono>
#include <cstdio>

#include "benchmarks/processes/window_watch.h"

// window_timer TITLE PROGRAM ARGS...: starts the program and prints two times in milliseconds:
// until a window whose title begins with TITLE appears on the screen, and until the program has
// painted all of it. Then it ends the program.

int main(int argc, char** argv) {
    if (argc < 3) {
        return 2;
    }
    WindowWatch watch(argv[1]);
    const auto start = std::chrono::steady_clock::now();
    const auto passed = [start] {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
            .count();
    };
    constexpr std::chrono::seconds kPatience(20);
    const pid_t program = StartProgram(argv + 2);
    watch.WaitFor([&] { return watch.IsShown(); }, kPatience);
    const double shown = passed();
    const bool isPainted = watch.WaitFor([&] { return watch.IsPainted(); }, kPatience);
    std::printf("%.1f %.1f\n", shown, passed());
    EndProgram(program);
    return isPainted ? 0 : 1;
}
