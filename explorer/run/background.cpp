#include "background.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace tern7 {

namespace {

std::mutex countLock;
std::condition_variable allEnded;
int running = 0;

} // namespace

void RunInBackground(std::function<void()> call) {
    {
        const std::lock_guard guard(countLock);
        ++running;
    }
    std::thread([call = std::move(call)]() mutable {
        std::exchange(call, nullptr)(); // what it holds goes before it counts as ended
        const std::lock_guard guard(countLock);
        --running;
        allEnded.notify_all();
    }).detach();
}

int BackgroundCount() {
    const std::lock_guard guard(countLock);
    return running;
}

bool WaitForBackground(int milliseconds) {
    std::unique_lock guard(countLock);
    return allEnded.wait_for(guard, std::chrono::milliseconds(milliseconds),
                             [] { return running == 0; });
}

} // namespace tern7
