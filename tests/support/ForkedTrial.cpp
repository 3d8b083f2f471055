#include "tests/support/ForkedTrial.h"

#include <csignal>
#include <stdexcept>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void child(const std::function<void(const std::function<void()>&)>& work, int report) {
    const auto tell = [report] {
        const char byte = 'x';
        (void)!::write(report, &byte, 1);
    };
    try {
        work(tell);
        tell();
    } catch (...) {
        _exit(3); // the pipe then ends early
    }
    _exit(0);
}

} // namespace

Trial runInChild(const std::function<void(const std::function<void()>& ready)>& work,
                 std::optional<std::chrono::microseconds> killAfter) {
    int report[2];
    if (pipe(report) != 0)
        throw std::runtime_error("no pipe");
    const pid_t process = fork();
    if (process == 0) {
        ::close(report[0]);
        child(work, report[1]);
    }
    ::close(report[1]);
    char byte = 0;
    const bool ready = ::read(report[0], &byte, 1) == 1;
    const auto start = Clock::now();
    if (killAfter) {
        while (Clock::now() - start < *killAfter)
            std::this_thread::sleep_for(std::chrono::microseconds(50));
        kill(process, SIGKILL);
    }
    Trial trial;
    trial.finished = ready && ::read(report[0], &byte, 1) == 1;
    trial.took = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
    ::close(report[0]);
    int status = 0;
    waitpid(process, &status, 0);
    if (!ready || (!killAfter && !trial.finished))
        throw std::runtime_error("the work does not run");
    return trial;
}
