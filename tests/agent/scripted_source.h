// A source of bytes whose clock the test owns: what comes when is a script, and no time passes.
#pragma once

#include <algorithm>
#include <deque>
#include <string>
#include <vector>

#include "agent/chunk_source.h"

namespace velk {

struct Arrival {
    std::string bytes;
    int after = 0;  // milliseconds behind the arrival before it
};

class Scripted_Source : public Byte_Source {
  public:
    explicit Scripted_Source(const std::vector<Arrival>& script)
        : script_(script.begin(), script.end()) {}

    bool readable_within(std::chrono::milliseconds time) override {
        const int waited = static_cast<int>(time.count());
        if (script_.empty() || script_.front().after <= waited) return true;
        script_.front().after -= waited;
        return false;
    }
    int receive(char* bytes, std::size_t most) override {
        if (script_.empty()) return 0;
        std::string& next = script_.front().bytes;
        const std::size_t count = next.copy(bytes, std::min(most, next.size()));
        next.erase(0, count);
        script_.front().after = 0;
        if (next.empty()) script_.pop_front();
        return static_cast<int>(count);
    }

  private:
    std::deque<Arrival> script_;
};

/// All chunks of the reply, up to its end.
inline std::vector<std::string> chunks_of(const std::vector<Arrival>& script, Cut_Rule& rule) {
    Scripted_Source source(script);
    Chunk_Source chunks(source, rule);
    std::vector<std::string> all;
    std::string chunk;
    while (chunks.next(chunk) > 0) all.push_back(chunk);
    return all;
}

inline std::vector<std::size_t> lengths(const std::vector<std::string>& chunks) {
    std::vector<std::size_t> all;
    for (const std::string& chunk : chunks) all.push_back(chunk.size());
    return all;
}

}  // namespace velk
