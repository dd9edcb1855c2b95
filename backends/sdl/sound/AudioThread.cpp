// The queue and the loop of the audio thread. It sleeps indefinitely while there is nothing to do.
#include "backends/sdl/sound/AudioThread.h"

#include <SDL.h>

#include <future>
#include <memory>
#include <system_error>
#include <utility>

namespace prismfall {

AudioThread::~AudioThread() { Finish(std::chrono::hours(1)); }

bool AudioThread::Post(Task task) {
    if (ending || !Start()) return false;  // only this thread changes `ending`
    {
        const std::lock_guard lock(mutex);
        tasks.push_back(std::move(task));
    }
    changed.notify_all();
    return true;
}

// The system refuses when the user has too many threads, or when memory is short.
bool AudioThread::Start() {
    if (thread.joinable()) return true;
    try {
        thread = std::thread([this] {
            Run();
            SDL_TLSCleanup();  // SDL keeps each thread's last error, and does not notice this one ending
        });
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

bool AudioThread::Call(Task task, std::chrono::milliseconds limit) {
    const auto done = std::make_shared<std::promise<void>>();
    const bool isPosted = Post([done, task = std::move(task)] {
        task();
        done->set_value();
    });
    return isPosted && done->get_future().wait_for(limit) == std::future_status::ready;
}

void AudioThread::RunLater(std::optional<std::chrono::milliseconds> delay, Task task) {
    const std::lock_guard lock(mutex);
    laterAt.reset();
    if (delay) laterAt = std::chrono::steady_clock::now() + *delay;
    later = std::move(task);
}

bool AudioThread::Finish(std::chrono::milliseconds limit) {
    std::unique_lock lock(mutex);
    ending = true;
    changed.notify_all();
    if (thread.joinable() && !changed.wait_for(lock, limit, [this] { return ended; })) return false;
    lock.unlock();
    if (thread.joinable()) thread.join();
    return true;
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
            ended = true;
            changed.notify_all();
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
