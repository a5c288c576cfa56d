// What the agent does with a request of the second wire.
#pragma once

#include <string>
#include <string_view>

#include "demo_phone/demo_phone.h"
#include "demo_phone/wire_records.h"

namespace velk {

/// Why a whole request, or one of its items, was not carried out.
struct Wire_Error {
    std::string_view code;
    std::string message;  // a sentence
};

/// Either records, which the reply ends with the number of, or an error and no records.
struct Wire_Reply {
    Record_Source records;  // none for an error
    Wire_Error error{};
};

/// Carries out one request, a line without its end. Edits are done when this returns; the records
/// of a list are read as they are asked for.
Wire_Reply answer_line(Demo_Phone& phone, std::string_view line);

}  // namespace velk
