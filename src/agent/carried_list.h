// Lists that come in chunks of which each begins with what was left unparsed of the one before.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "agent/channel.h"
#include "agent/chunk_source.h"
#include "base/trace.h"

namespace velk {

/// In front of a list's first record.
inline constexpr int list_header = 7;

/// Parses the bytes from `start` on and gives what is left: a record that is not whole yet.
using Parse_Chunk = std::function<std::string(const std::string& bytes, int start)>;

/// True when what was left says that the list is over.
using Ends_List = bool (*)(const std::string& left);

/// Reads the whole list. Gives the bytes of the chunk that ended it, none when its source did.
std::string read_carried_over(Byte_Source& source, Cut_Rule& rule, const Parse_Chunk& parse,
                              Ends_List ends);

/// Asks the agent for a list, which `parse` appends to `records`.
template <class Record>
std::string fetch_list(const char* code, Cut_Rule& rule, const Parse_Chunk& parse, Ends_List ends,
                       const std::vector<Record>& records) {
    Channel agent;
    if (!agent.connected()) return {};
    agent.send_code(code);
    std::string rest = read_carried_over(agent, rule, parse, ends);
    trace("\nreceive string length =%d", static_cast<int>(rest.size()));
    trace("\ncount :%d\n", static_cast<int>(records.size()));
    return rest;
}

}  // namespace velk
