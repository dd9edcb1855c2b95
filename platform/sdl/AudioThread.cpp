// The queue and the loop of the audio thread. It sleeps without a limit of time as long as there is nothing to do.
#include "platform/sdl/AudioThread.h"

#include <future>
#include <utility>

namespace prismfall {

void AudioThread::Post(Task task) {
    {
        const std::lock_guard lock(mutex);
        if (ending) return;
        tasks.push_back(std::move(task));
    }
    changed.notify_one();
    if (!thread.joinable()) thread = std::thread([this] { Run(); });
}

void AudioThread::Call(const Task& task) {
    std::promise<void> done;
    Post([&] {
        task();
        done.set_value();
    });
    done.get_future().wait();
}

void AudioThread::RunLater(std::optional<std::chrono::milliseconds> delay, Task task) {
    const std::lock_guard lock(mutex);
    laterAt.reset();
    if (delay) laterAt = std::chrono::steady_clock::now() + *delay;
    later = std::move(task);
}

void AudioThread::Finish() {
    {
        const std::lock_guard lock(mutex);
        ending = true;
    }
    changed.notify_one();
    if (thread.joinable()) thread.join();
}

void AudioThread::Run() {
    std::unique_lock lock(mutex);
    const auto hasWork = [this] { return ending || !tasks.empty(); };
    for (;;) {
        if (laterAt && !hasWork()) {
            changed.wait_until(lock, *laterAt, hasWork);
        } else {
            changed.wait(lock, hasWork);
        }
        Task task;
        if (!tasks.empty()) {
            task = std::move(tasks.front());
            tasks.pop_front();
        } else if (ending) {
            return;
        } else {
            laterAt.reset();
            task = later;
        }
        lock.unlock();
        task();
        lock.lock();
    }
}

}  // namespace prismfall
