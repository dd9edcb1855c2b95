// A thread on which everything that touches the sound device happens, one task after the other. Opening and closing a
// device takes a sound server's time, up to seconds if it hangs; the game's timers must not wait for that.
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
    ~AudioThread() { Finish(); }

    // Runs a task as soon as those before it are done. The thread begins with the first one.
    void Post(Task task);
    // Runs a task likewise and returns when it is done.
    void Call(const Task& task);
    // Only within a task: runs another one after some time, in place of the one that was to run before. Nothing: none.
    void RunLater(std::optional<std::chrono::milliseconds> delay, Task task);
    // Does what has been posted and ends the thread.
    void Finish();

  private:
    void Run();

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Task> tasks;
    std::optional<std::chrono::steady_clock::time_point> laterAt;
    Task later;
    bool ending = false;
    std::thread thread;
};

}  // namespace prismfall
