// SPDX-License-Identifier: MIT
// Runs brelex again and again. Each time, another call of the C library fails. Whatever fails, the
// program must give the right result, or say what is wrong, end with exit code 2 and leave its
// files as they were.
//
// With --every, each single allocation fails in turn. Otherwise that is a sample.
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

namespace fs = std::filesystem;

constexpr int kFailed = 2;
constexpr unsigned kMostSeconds = 20;

struct Settings {
    int allocationStep = 31;
    int starts = 0;
    int right = 0;
    int messages = 0;
    int signals = 0;
};

Settings& TheSettings() {
    static Settings settings;
    return settings;
}

struct Fault {
    const char* call;
    int error;  // 0 for a call that moves only a part of the bytes
    bool lasting;
    int signal = 0;  // what the program gets instead of an error
};

// Whether trying again overcomes the fault.
bool CanBeOvercome(const Fault& fault) {
    const std::string_view call = fault.call;
    return (call == "read" || call == "write" || call == "sync") &&
           (fault.error == 0 || fault.error == EINTR);
}

std::string TextOf(const Fault& fault, int number) {
    return std::string(fault.call) + " " + std::to_string(number) +
           (fault.lasting ? " and on" : "") + ", error " + std::to_string(fault.error);
}

struct Command {
    const char* name;
    std::vector<std::string> arguments;
    const char* input = "";  // what standard input delivers
    int code = 0;
};

// What a run left behind.
struct Result {
    int status = -1;  // as waitpid has it
    std::string out;
    std::string err;
    std::map<std::string, std::string> files;  // in the folder for output

    [[nodiscard]] int Code() const { return WIFEXITED(status) ? WEXITSTATUS(status) : -1; }
};

class FaultTest : public testing::TestWithParam<Command> {
  protected:
    void SetUp() override {
        fs::copy_file(BRELEX_PROGRAM, folder_.Path() / "brelex");
        folder_.Write("Acronyms.dat",
                      DatabaseBytes({"ABC\tAlpha Beta Charlie", "AC\tAnother", "RAM\tMemory"}));
        folder_.Write("list.tsv", "RAM\tMemory\nABC\tAlpha\nABC\tAlpha\nCAF\xC3\x89\tBar\n");
        folder_.Write("pair.index", "abc\tA\tM\n");
        folder_.Write("pair.dict", "ABC\n  Alpha\n");
        folder_.Write("input", GetParam().input);
        fs::create_directory(folder_.Path() / "out");
        folder_.Write("out/old.dat", DatabaseBytes({"OLD\tDatabase"}));
        folder_.Write("out/letter.txt", "precious");
        folder_.Write("out/mine.tsv", "AB\tOne\n");
        folder_.Write("out/old.idx", "old index");
        before_ = FilesInOut();
        expected_ = Run({"none", 0, false}, 0);
        ASSERT_EQ(expected_.Code(), GetParam().code) << expected_.err;
    }

    // Lets each of the calls fail in turn, every so many, until the program makes fewer calls.
    void FailOneAfterTheOther(const Fault& fault, int step) {
        for (int number = 1 + step / 2;; number += step) {
            const Result result = Run(fault, number);
            if (!fs::remove(folder_.Path() / "mark")) {
                Judge(result, fault, "no fault after all");
                return;
            }
            ++TheSettings().starts;
            Judge(result, fault, TextOf(fault, number));
            ++(result.Code() == kFailed   ? TheSettings().messages
               : WIFEXITED(result.status) ? TheSettings().right
                                          : TheSettings().signals);
            if (HasFailure()) {
                return;
            }
        }
    }

    // Kills the program before each of the calls in turn. Whatever that leaves, the program must
    // give the right result the next time, with all files as if nothing had happened.
    void KillAndRunAgain(const char* call) {
        const Fault killed{call, 0, false, SIGKILL};
        bool reached = true;
        for (int number = 1; reached && !HasFailure(); ++number) {
            Run(killed, number);
            reached = fs::remove(folder_.Path() / "mark");
            Judge(Run({"none", 0, false}, 0, false), killed, "after " + TextOf(killed, number));
            TheSettings().starts += reached ? 1 : 0;
            TheSettings().signals += reached ? 1 : 0;
        }
    }

  private:
    [[nodiscard]] std::map<std::string, std::string> FilesInOut() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::directory_iterator(folder_.Path() / "out")) {
            files[entry.path().filename().string()] = ReadText(entry.path());
        }
        return files;
    }

    Result Run(const Fault& fault, int number, bool afresh = true) {
        if (const auto files = FilesInOut(); afresh && files != before_) {
            for (const auto& [name, text] : files) {
                fs::remove(folder_.Path() / "out" / name);
            }
            for (const auto& [name, text] : before_) {
                folder_.Write("out/" + name, text);
            }
        }
        const pid_t child = fork();
        if (child == 0) {
            Become(fault, number);
        }
        Result result;
        waitpid(child, &result.status, 0);
        result.out = ReadText(folder_.Path() / "stdout");
        result.err = ReadText(folder_.Path() / "stderr");
        result.files = FilesInOut();
        return result;
    }

    [[noreturn]] void Become(const Fault& fault, int number) const {
        if (chdir(folder_.Path().c_str()) != 0) {
            _exit(1);
        }
        constexpr mode_t kMode = 0600;
        dup2(open("input", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
        dup2(open("stdout", O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kMode), STDOUT_FILENO);
        dup2(open("stderr", O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kMode), STDERR_FILENO);
        setenv("LD_PRELOAD", FAULT_INJECTOR, 1);
        setenv("FAULT_CALL", fault.call, 1);
        setenv("FAULT_NUMBER", std::to_string(number).c_str(), 1);
        setenv("FAULT_ERROR", std::to_string(fault.error).c_str(), 1);
        setenv("FAULT_MARK", "mark", 1);
        if (fault.signal != 0) {
            setenv("FAULT_SIGNAL", std::to_string(fault.signal).c_str(), 1);
        }
        if (fault.lasting) {
            setenv("FAULT_LASTING", "1", 1);
        }
        std::string program = "./brelex";
        std::vector<std::string> arguments = GetParam().arguments;
        std::vector<char*> words = {program.data()};
        for (std::string& argument : arguments) {
            words.push_back(argument.data());
        }
        words.push_back(nullptr);
        alarm(kMostSeconds);  // ends a program that hangs
        execv(program.c_str(), words.data());
        _exit(1);
    }

    void Judge(Result result, const Fault& fault, const std::string& what) {
        SCOPED_TRACE(what + "; standard error: " + result.err);
        const int signal = WIFSIGNALED(result.status) ? WTERMSIG(result.status) : 0;
        ASSERT_TRUE(signal == 0 || signal == fault.signal) << "signal " << signal;
        if (std::string_view(fault.call) == "unlink") {
            result.files.erase("old.idx.old");  // this one cannot be removed
        }
        // All the files or none, and nothing else.
        if (result.files != before_) {
            EXPECT_EQ(result.files, expected_.files);
        }
        if (signal != 0) {
            return;
        }
        if (result.Code() == kFailed) {
            EXPECT_NE(result.err.find("brelex: "), std::string::npos) << "no reason";
            EXPECT_TRUE(GetParam().code == kFailed || !CanBeOvercome(fault));
            return;
        }
        EXPECT_EQ(result.Code(), GetParam().code);
        EXPECT_EQ(result.out, expected_.out);
        EXPECT_EQ(result.files, expected_.files);
    }

    TestFolder folder_;
    std::map<std::string, std::string> before_;
    Result expected_;
};

using AllocationFaults = FaultTest;
using FileFaults = FaultTest;
using SignalFaults = FaultTest;
using KilledBuilds = FaultTest;

TEST_P(AllocationFaults, EndWithAMessage) {
    FailOneAfterTheOther({"allocation", ENOMEM, false}, TheSettings().allocationStep);
    FailOneAfterTheOther({"allocation", ENOMEM, true}, TheSettings().allocationStep);
}

TEST_P(FileFaults, EndWithTheRightResultOrAMessage) {
    // What moves files cannot fail for good only from the second time on, so it fails once.
    const std::vector<Fault> faults = {
        {"open", EMFILE, false},   {"open", EACCES, true},    {"open", EINTR, false},
        {"read", EIO, false},      {"read", EIO, true},       {"read", EINTR, false},
        {"read", 0, true},         {"write", ENOSPC, false},  {"write", ENOSPC, true},
        {"write", EINTR, false},   {"write", 0, true},        {"close", EIO, false},
        {"close", EIO, true},      {"sync", EIO, false},      {"sync", EIO, true},
        {"sync", EINTR, false},    {"stat", EIO, false},      {"stat", EACCES, true},
        {"rename", EACCES, false}, {"link", EPERM, false},    {"link", EPERM, true},
        {"mode", EPERM, false},    {"unlink", EACCES, false},
    };
    for (const Fault& fault : faults) {
        FailOneAfterTheOther(fault, 1);
    }
}

TEST_P(SignalFaults, LeaveAllFilesNewOrAllAsTheyWere) {
    const std::vector<Fault> faults = {
        {"open", 0, false, SIGTERM},   {"write", 0, false, SIGKILL}, {"sync", 0, false, SIGTERM},
        {"write", 0, false, SIGTERM},  {"sync", 0, false, SIGINT},   {"link", 0, false, SIGTERM},
        {"rename", 0, false, SIGTERM}, {"rename", 0, false, SIGINT}, {"unlink", 0, false, SIGHUP},
        {"close", 0, false, SIGTERM},
    };
    for (const Fault& fault : faults) {
        FailOneAfterTheOther(fault, 1);
    }
}

TEST_P(KilledBuilds, LeaveNothingToTheNextOne) {
    for (const char* const call : {"open", "write", "sync", "link", "close", "rename"}) {
        KillAndRunAgain(call);
    }
}

std::vector<Command> Commands() {
    return {
        {"Help", {"--help"}},
        {"Version", {"--version"}},
        {"Info", {"info"}},
        {"Dump", {"dump"}},
        {"Check", {"check"}},
        {"CheckOfAnotherFile", {"-d", "out/old.dat", "check"}},
        {"Lookup", {"lookup", "ram", "abc"}},
        {"LookupFromInput", {"lookup", "-"}, "ram\nac\nabc\n"},
        {"LookupInJson", {"lookup", "--json", "ram"}},
        {"Search", {"search", "alpha"}},
        {"SearchInJson", {"search", "--json", "--loose", "a"}},
        {"Anagram", {"anagram", "mra"}},
        {"Build", {"build", "-o", "out/new.dat", "list.tsv"}},
        {"BuildOverADatabase", {"build", "-o", "out/old.dat", "list.tsv", "pair.index"}},
        {"BuildFromInput", {"build", "-o", "-", "-"}, "AB\tOne\n"},
        {"BuildOverALetter", {"build", "-o", "out/letter.txt", "list.tsv"}, "", kFailed},
        {"BuildOverAnInput",
         {"build", "--force", "-o", "out/mine.tsv", "out/mine.tsv"},
         "",
         kFailed},
        {"Export", {"export"}},
        {"ExportToAFile", {"export", "--format", "csv", "-o", "out/new.csv"}},
        {"ExportOverALetter", {"export", "-o", "out/letter.txt"}, "", kFailed},
        {"ExportToSeveralFiles", {"export", "--format", "dictd", "-o", "out/new"}},
        {"ExportOverOldFiles", {"export", "--format", "stardict", "--force", "-o", "out/old"}},
    };
}

INSTANTIATE_TEST_SUITE_P(Commands, AllocationFaults, testing::ValuesIn(Commands()), CaseName());
INSTANTIATE_TEST_SUITE_P(Commands, FileFaults, testing::ValuesIn(Commands()), CaseName());
INSTANTIATE_TEST_SUITE_P(Commands, SignalFaults, testing::ValuesIn(Commands()), CaseName());

std::vector<Command> Builds() {
    std::vector<Command> builds = Commands();
    std::erase_if(builds, [](const Command& command) {
        return !std::string_view(command.name).starts_with("Build");
    });
    return builds;
}

INSTANTIATE_TEST_SUITE_P(Builds, KilledBuilds, testing::ValuesIn(Builds()), CaseName());

}  // namespace
}  // namespace brelex

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    brelex::Settings& settings = brelex::TheSettings();
    if (argc > 1 && std::string_view(argv[1]) == "--every") {
        settings.allocationStep = 1;
    }
    const int result = RUN_ALL_TESTS();
    if (settings.starts > 0) {
        std::printf(
            "%d starts with a fault: %d right results, %d messages, %d ended by our signal\n",
            settings.starts, settings.right, settings.messages, settings.signals);
    }
    return result;
}
