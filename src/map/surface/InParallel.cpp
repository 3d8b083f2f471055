#include "map/surface/InParallel.h"

#include <QThreadPool>

#include <atomic>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>

namespace {

/// Shared by both threads, and held by the one that ends last.
class Job {
public:
    Job(std::size_t pieces, std::function<void(std::size_t)> work) : pieces_(pieces), work_(std::move(work)) {}

    void takePieces() {
        for (std::size_t piece = next_++; piece < pieces_; piece = next_++) {
            try {
                work_(piece);
            } catch (...) {
                const std::lock_guard lock(mutex_);
                if (!failure_)
                    failure_ = std::current_exception();
            }
            const std::lock_guard lock(mutex_);
            if (++done_ == pieces_)
                allDone_.notify_one();
        }
    }

    void wait() {
        std::unique_lock lock(mutex_);
        allDone_.wait(lock, [&] { return done_ == pieces_; });
        if (failure_)
            std::rethrow_exception(failure_);
    }

private:
    std::size_t pieces_;
    std::function<void(std::size_t)> work_;
    std::atomic<std::size_t> next_ = 0;
    std::mutex mutex_;
    std::condition_variable allDone_;
    std::size_t done_ = 0;
    std::exception_ptr failure_;
};

} // namespace

void inParallel(std::size_t pieces, std::function<void(std::size_t)> work) {
    const auto job = std::make_shared<Job>(pieces, std::move(work));
    if (pieces > 1)
        QThreadPool::globalInstance()->tryStart([job] { job->takePieces(); });
    job->takePieces();
    job->wait();
}
