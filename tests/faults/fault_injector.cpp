// SPDX-License-Identifier: MIT
// A library that is loaded before all others (LD_PRELOAD) and makes calls of the C library fail.
// These variables of the environment say which:
//
// - FAULT_CALL: allocation, open, read, write, close, sync, stat, rename, link, unlink, mode, lock
// - FAULT_NUMBER: the first of these calls that fails, from 1
// - FAULT_LASTING: if set, all later ones fail, too
// - FAULT_ERROR: the error number; 0 for a read or write that only moves a part of the bytes
// - FAULT_SIGNAL: if set, the call does not fail, but the program gets this signal before it
// - FAULT_PATH: if set, only files count whose path contains this text
// - FAULT_LEAST: if set, only allocations of so many bytes or more count
// - FAULT_MARK: a file that is created when a call fails
//
// Standard error always works, so that the program can say what it noticed.
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

// What the C library calls its own functions.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
void* __libc_memalign(size_t alignment, size_t size);
}

// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

namespace {

// Constant until the library is initialized, because the first allocations come before that.
struct Plan {
    std::string_view call;
    long number = 0;
    bool lasting = false;
    int error = 0;
    int signal = 0;
    const char* path = nullptr;
    size_t least = 0;
    const char* mark = nullptr;
};

constinit Plan plan;
constinit std::atomic<long> calls = 0;

constexpr int kMostFiles = 1024;
// Which open files count.
constinit std::atomic<bool> counted[kMostFiles] = {};

long NumberFrom(const char* variable) {
    const char* const text = std::getenv(variable);
    return text != nullptr ? std::strtol(text, nullptr, 10) : 0;
}

struct PlanReader {
    PlanReader() {
        Plan read;
        read.number = NumberFrom("FAULT_NUMBER");
        read.lasting = std::getenv("FAULT_LASTING") != nullptr;
        read.error = static_cast<int>(NumberFrom("FAULT_ERROR"));
        read.signal = static_cast<int>(NumberFrom("FAULT_SIGNAL"));
        read.path = std::getenv("FAULT_PATH");
        read.least = static_cast<size_t>(NumberFrom("FAULT_LEAST"));
        read.mark = std::getenv("FAULT_MARK");
        const char* const call = std::getenv("FAULT_CALL");
        read.call = call != nullptr ? call : "";
        plan = read;
    }
};

const PlanReader kReader;

// Counts a call and says whether it is to fail.
bool Strikes(std::string_view call) {
    if (call != plan.call) {
        return false;
    }
    const long number = ++calls;
    if (number != plan.number && !(plan.lasting && number > plan.number)) {
        return false;
    }
    if (plan.mark != nullptr) {
        const long mark = syscall(SYS_openat, AT_FDCWD, plan.mark, O_WRONLY | O_CREAT, 0600);
        syscall(SYS_close, mark);
    }
    if (plan.signal != 0) {
        kill(getpid(), plan.signal);
        return false;
    }
    errno = plan.error;
    return true;
}

bool IsMeant(const char* path) {
    return plan.path == nullptr || (path != nullptr && std::strstr(path, plan.path) != nullptr);
}

// A connection can have the number of a file that was closed in a way that nobody sees here.
bool IsRegular(int file) {
    struct stat status {};

    return syscall(SYS_fstat, file, &status) == 0 && S_ISREG(status.st_mode);
}

bool IsMeant(int file) {
    if (plan.path == nullptr) {
        return file != STDERR_FILENO;
    }
    return file >= 0 && file < kMostFiles && counted[file] && IsRegular(file);
}

bool StrikesPath(std::string_view call, const char* path) {
    return IsMeant(path) && Strikes(call);
}

bool StrikesFile(std::string_view call, int file) {
    return IsMeant(file) && Strikes(call);
}

int Opened(int file, const char* path) {
    if (file >= 0 && file < kMostFiles) {
        counted[file] = IsMeant(path);
    }
    return file;
}

template <typename Function>
Function* Next(Function* /*like*/, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// The function of the C library that the one of this name hides.
#define NEXT(name)                                     \
    ([] {                                              \
        static const auto next = Next(&(name), #name); \
        return next;                                   \
    }())

mode_t ModeFrom(int flags, va_list arguments) {
    const bool creates = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return creates ? va_arg(arguments, mode_t) : 0;
}

// A short read or write moves half of the bytes, and at least one.
size_t Shortened(size_t size) {
    return size > 1 ? size / 2 : size;
}

}  // namespace

// The library's own names of the parameters do not matter.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

void* malloc(size_t size) {
    return size >= plan.least && Strikes("allocation") ? nullptr : __libc_malloc(size);
}

void* calloc(size_t count, size_t size) {
    return count * size >= plan.least && Strikes("allocation") ? nullptr
                                                               : __libc_calloc(count, size);
}

void* realloc(void* block, size_t size) {
    return size >= plan.least && Strikes("allocation") ? nullptr : __libc_realloc(block, size);
}

void* aligned_alloc(size_t alignment, size_t size) {
    return size >= plan.least && Strikes("allocation") ? nullptr : __libc_memalign(alignment, size);
}

int posix_memalign(void** block, size_t alignment, size_t size) {
    if (size >= plan.least && Strikes("allocation")) {
        return ENOMEM;
    }
    *block = __libc_memalign(alignment, size);
    return *block != nullptr ? 0 : ENOMEM;
}

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeFrom(flags, arguments);
    va_end(arguments);
    return StrikesPath("open", path) ? -1 : Opened(NEXT(open)(path, flags, mode), path);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeFrom(flags, arguments);
    va_end(arguments);
    return StrikesPath("open", path) ? -1 : Opened(NEXT(open)(path, flags, mode), path);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeFrom(flags, arguments);
    va_end(arguments);
    return StrikesPath("open", path) ? -1 : Opened(NEXT(openat)(folder, path, flags, mode), path);
}

FILE* fopen(const char* path, const char* mode) {
    FILE* const file = StrikesPath("open", path) ? nullptr : NEXT(fopen)(path, mode);
    Opened(file != nullptr ? fileno(file) : -1, path);
    return file;
}

FILE* fopen64(const char* path, const char* mode) {
    return fopen(path, mode);
}

DIR* opendir(const char* path) {
    return StrikesPath("open", path) ? nullptr : NEXT(opendir)(path);
}

ssize_t read(int file, void* bytes, size_t size) {
    const bool strikes = StrikesFile("read", file);
    return strikes && errno != 0 ? -1 : NEXT(read)(file, bytes, strikes ? Shortened(size) : size);
}

ssize_t readv(int file, const iovec* parts, int count) {
    const bool strikes = StrikesFile("read", file);
    return strikes && errno != 0 ? -1 : NEXT(readv)(file, parts, strikes ? 1 : count);
}

ssize_t write(int file, const void* bytes, size_t size) {
    const bool strikes = StrikesFile("write", file);
    return strikes && errno != 0 ? -1 : NEXT(write)(file, bytes, strikes ? Shortened(size) : size);
}

ssize_t writev(int file, const iovec* parts, int count) {
    const bool strikes = StrikesFile("write", file);
    return strikes && errno != 0 ? -1 : NEXT(writev)(file, parts, strikes ? 1 : count);
}

ssize_t sendfile(int to, int from, off_t* offset, size_t size) {
    const bool strikes = StrikesFile("write", to);
    return strikes && errno != 0
               ? -1
               : NEXT(sendfile)(to, from, offset, strikes ? Shortened(size) : size);
}

// As on a real system, the file is closed even if that fails.
int close(int file) {
    const bool strikes = StrikesFile("close", file);
    const int error = errno;
    Opened(file, nullptr);  // the next one with this number need not be meant
    const int result = NEXT(close)(file);
    errno = strikes ? error : errno;
    return strikes ? -1 : result;
}

int fclose(FILE* file) {
    const bool strikes = StrikesFile("close", fileno(file));
    const int error = errno;
    Opened(fileno(file), nullptr);
    const int result = NEXT(fclose)(file);
    errno = strikes ? error : errno;
    return strikes ? EOF : result;
}

int fsync(int file) {
    return StrikesFile("sync", file) ? -1 : NEXT(fsync)(file);
}

int stat(const char* path, struct stat* status) {
    return StrikesPath("stat", path) ? -1 : NEXT(stat)(path, status);
}

int stat64(const char* path, struct stat64* status) {
    return StrikesPath("stat", path) ? -1 : NEXT(stat64)(path, status);
}

int lstat(const char* path, struct stat* status) {
    return StrikesPath("stat", path) ? -1 : NEXT(lstat)(path, status);
}

int lstat64(const char* path, struct stat64* status) {
    return StrikesPath("stat", path) ? -1 : NEXT(lstat64)(path, status);
}

int fstatat(int folder, const char* path, struct stat* status, int flags) {
    return StrikesPath("stat", path) ? -1 : NEXT(fstatat)(folder, path, status, flags);
}

int fstat(int file, struct stat* status) {
    return StrikesFile("stat", file) ? -1 : NEXT(fstat)(file, status);
}

int fstat64(int file, struct stat64* status) {
    return StrikesFile("stat", file) ? -1 : NEXT(fstat64)(file, status);
}

int access(const char* path, int mode) {
    return StrikesPath("stat", path) ? -1 : NEXT(access)(path, mode);
}

char* realpath(const char* path, char* resolved) {
    return StrikesPath("stat", path) ? nullptr : NEXT(realpath)(path, resolved);
}

int rename(const char* path, const char* other) {
    return StrikesPath("rename", path) ? -1 : NEXT(rename)(path, other);
}

int link(const char* path, const char* other) {
    return StrikesPath("link", path) ? -1 : NEXT(link)(path, other);
}

int linkat(int folder, const char* path, int otherFolder, const char* other, int flags) {
    return StrikesPath("link", other) ? -1 : NEXT(linkat)(folder, path, otherFolder, other, flags);
}

int unlink(const char* path) {
    return StrikesPath("unlink", path) ? -1 : NEXT(unlink)(path);
}

int remove(const char* path) {
    return StrikesPath("unlink", path) ? -1 : NEXT(remove)(path);
}

int fchmod(int file, mode_t mode) {
    return StrikesFile("mode", file) ? -1 : NEXT(fchmod)(file, mode);
}

int flock(int file, int operation) {
    return StrikesFile("lock", file) ? -1 : NEXT(flock)(file, operation);
}

}  // extern "C"

// NOLINTEND(readability-inconsistent-declaration-parameter-name)
