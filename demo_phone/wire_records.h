// The lists of the second wire: a record of each kind as a line, one after the other.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "demo_phone/phone_store.h"
#include "demo_phone/wire_kind.h"

namespace velk {

/// Appends the line of the next record. After the last record it appends nothing and gives false.
using Record_Source = std::function<bool(std::string& lines)>;

/// All records of a kind, in the order of the first wire. They are read from `store`, which has to
/// outlive the source, as they are asked for; the store may change in between.
Record_Source list_records(const Phone_Store& store, Wire_Kind kind);

std::size_t count_records(const Phone_Store& store, Wire_Kind kind);

}  // namespace velk
