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
    ~AudioThread();

    // Runs a task as soon as those before it are done. The thread begins with the first one. False if the system gives
    // none, or after `Finish`: the task is forgotten then.
    bool Post(Task task);
    // Runs a task likewise and returns true when it is done, or false if it is not done within `limit`; it may be done
    // later then, so what it refers to must last.
    bool Call(Task task, std::chrono::milliseconds limit);
    // Only within a task: runs another one after some time, in place of the one that was to run before. Nothing: none.
    void RunLater(std::optional<std::chrono::milliseconds> delay, Task task);
    // Does what has been posted and ends the thread. False if that is not done within `limit`; the thread is then left
    // to itself and must not be destroyed.
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
