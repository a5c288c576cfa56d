#include "ui/worker.h"

#include <pthread.h>

#include <condition_variable>
#include <list>
#include <mutex>
#include <system_error>
#include <thread>

#include "base/interruptor.h"
#include "base/trace.h"

namespace velk {

namespace {

struct Running {
    std::mutex mutex;
    std::condition_variable one_ended;
    std::list<Interruptor> interruptors;  // one of each running worker; a list, so none ever moves
};

/// Never destroyed: a worker that is still running when the process ends may use it.
Running& all() {
    static Running* const running = new Running;
    return *running;
}

void run(const std::string& name, std::function<void()> body,
         std::list<Interruptor>::iterator own) {
    pthread_setname_np(pthread_self(), name.substr(0, 15).c_str());
    {
        const Interruptor::Use use(*own);
        body();
        body = nullptr;  // what it owns goes before the worker counts as ended
    }
    Running& workers = all();
    const std::lock_guard lock(workers.mutex);
    workers.interruptors.erase(own);
    workers.one_ended.notify_all();
}

}  // namespace

bool Worker::start(const std::string& name, std::function<void()> body) {
    Running& workers = all();
    const std::lock_guard lock(workers.mutex);
    const auto own = workers.interruptors.emplace(workers.interruptors.end());
    try {
        std::thread(run, name, std::move(body), own).detach();
        return true;
    } catch (const std::system_error& failure) {
        workers.interruptors.erase(own);
        log_line("%s cannot be started: %s", name.c_str(), failure.what());
        return false;
    }
}

int Worker::running() {
    Running& workers = all();
    const std::lock_guard lock(workers.mutex);
    return static_cast<int>(workers.interruptors.size());
}

void Worker::interrupt_all() {
    Running& workers = all();
    const std::lock_guard lock(workers.mutex);
    for (Interruptor& interruptor : workers.interruptors) interruptor.cancel();
}

bool Worker::stop_all(std::chrono::milliseconds time) {
    Running& workers = all();
    std::unique_lock lock(workers.mutex);
    for (Interruptor& interruptor : workers.interruptors) interruptor.cancel();
    return workers.one_ended.wait_for(lock, time, [&] { return workers.interruptors.empty(); });
}

}  // namespace velk
