// The thread on which everything that touches the sound device happens, one task at a time. Opening and closing a
// device waits for the sound server, for seconds if that hangs; the game's timers must not wait for it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace prismfall {

class AudioThread {
  public:
    using Task = std::function<void()>;

    AudioThread() = default;
    AudioThread(const AudioThread&) = delete;
    AudioThread& operator=(const AudioThread&) = delete;
    ~AudioThread();

    // Runs a task as soon as those before it are done. The first one starts the thread. Returns false, and drops the
    // task, if the system cannot start the thread, or after `Finish`.
    bool Post(Task task);
    // Runs a task the same way and returns true when it is done, or false if it is not done within `limit`. It may then
    // be done later, so what it refers to must stay alive.
    bool Call(Task task, std::chrono::milliseconds limit);
    // Only within a task: schedules another task after a delay, replacing the one scheduled before. Without a delay,
    // none is scheduled.
    void RunLater(std::optional<std::chrono::milliseconds> delay, Task task);
    // Finishes the posted tasks and ends the thread. Returns false if that takes longer than `limit`; then the thread
    // is left running and must not be destroyed.
    bool Finish(std::chrono::milliseconds limit);

  private:
    bool Start();
    void Run();

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Task> tasks;
    std::optional<std::chrono::steady_clock::time_point> laterAt;
    Task later;
    bool ending = false;
    bool ended = false;
    std::thread thread;
};

}  // namespace prismfall
