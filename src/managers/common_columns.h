// Columns that the tables of several sections have.
#pragma once

#include "ui/table.h"

namespace velk {

inline constexpr Column no_column{
    .identifier = "col_no", .title = "No.", .comparison = Comparison::number, .width = 6};

/// As sock_apk::get_size() writes it.
constexpr Column size_column(const char* identifier) {
    return {.identifier = identifier,
            .title = "Size",
            .comparison = Comparison::size,
            .width = 10,
            .searched = false};
}

}  // namespace velk
