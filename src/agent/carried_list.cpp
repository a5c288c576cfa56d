#include "agent/carried_list.h"

namespace velk {

std::string read_carried_over(Byte_Source& source, Cut_Rule& rule, const Parse_Chunk& parse,
                              Ends_List ends) {
    Chunk_Source chunks(source, rule);
    std::string chunk, carried;
    for (bool first = true;; first = false) {
        const int count = chunks.next(chunk);
        trace("Every time Receive data length '%d' :\n", count);
        if (chunk.size() < smallest_chunk) return {};
        std::string working;
        if (!first) {
            working = std::move(carried);
            const int length = static_cast<int>(working.size());
            trace("half_record_data length : %d\n", length);
            trace("return_string length : %d\n", length);
        }
        working += chunk;
        carried = parse(working, first ? list_header : 0);
        if (ends(carried)) return working;
    }
}

}  // namespace velk
