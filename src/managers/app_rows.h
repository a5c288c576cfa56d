// The rows of the applications table.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "agent/sock_apk.h"
#include "ui/table.h"

namespace velk {

/// One row of the table.
struct App_TableSource_Column {
    std::string col_no;  // place in load order, from "1"; kept when the table is sorted
    std::string col_app_name;
    std::string col_app_name_package;
    std::string col_app_size;
    std::string col_app_ver;

    static const std::array<Row_Column<App_TableSource_Column>, 5>& row_columns();
};

/// The row of an application; `number` is its place in load order, from 1.
App_TableSource_Column row_of(const sock_apk::APP_RECORD& app, std::size_t number);

}  // namespace velk
