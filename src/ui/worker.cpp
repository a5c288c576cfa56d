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

struct One {
    explicit One(std::string its_name) : name(std::move(its_name)) {}

    const std::string name;
    Interruptor interruptor;
};

struct Running {
    std::mutex mutex;
    std::condition_variable one_ended;
    std::list<One> workers;  // a list, so none ever moves
};

/// Never destroyed: a worker that is still running when the process ends may use it.
Running& all() {
    static Running* const running = new Running;
    return *running;
}

void run(std::function<void()> body, std::list<One>::iterator own) {
    pthread_setname_np(pthread_self(), own->name.substr(0, 15).c_str());
    {
        const Interruptor::Use use(own->interruptor);
        body();
        body = nullptr;  // what it owns goes before the worker counts as ended
    }
    Running& running = all();
    const std::lock_guard lock(running.mutex);
    running.workers.erase(own);
    running.one_ended.notify_all();
}

}  // namespace

bool Worker::start(const std::string& name, std::function<void()> body) {
    Running& running = all();
    const std::lock_guard lock(running.mutex);
    const auto own = running.workers.emplace(running.workers.end(), name);
    try {
        std::thread(run, std::move(body), own).detach();
        return true;
    } catch (const std::system_error& failure) {
        running.workers.erase(own);
        log_line("%s cannot be started: %s", plain(name), plain(failure.what()));
        return false;
    }
}

int Worker::running() {
    Running& running = all();
    const std::lock_guard lock(running.mutex);
    return static_cast<int>(running.workers.size());
}

void Worker::interrupt_all() {
    Running& running = all();
    const std::lock_guard lock(running.mutex);
    for (One& worker : running.workers) worker.interruptor.cancel();
}

void Worker::interrupt(const std::string& name) {
    Running& running = all();
    const std::lock_guard lock(running.mutex);
    for (One& worker : running.workers)
        if (worker.name == name) worker.interruptor.cancel();
}

bool Worker::stop_all(std::chrono::milliseconds time) {
    interrupt_all();
    Running& running = all();
    std::unique_lock lock(running.mutex);
    return running.one_ended.wait_for(lock, time, [&] { return running.workers.empty(); });
}

}  // namespace velk
