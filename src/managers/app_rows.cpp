#include "managers/app_rows.h"

#include "base/text.h"
#include "managers/common_columns.h"

namespace velk {

const std::array<Row_Column<App_TableSource_Column>, 5>& App_TableSource_Column::row_columns() {
    using Row = App_TableSource_Column;
    static const std::array<Row_Column<Row>, 5> columns = {{
        {no_column, &Row::col_no},
        {{.identifier = "col_app_name", .title = "Name", .width = 28, .wide = true},
         &Row::col_app_name},
        {{.identifier = "col_app_name_package", .title = "Package", .width = 34, .fixed = true},
         &Row::col_app_name_package},
        {{.identifier = "col_app_ver", .title = "Version", .width = 12, .searched = false},
         &Row::col_app_ver},
        {size_column("col_app_size"), &Row::col_app_size},
    }};
    return columns;
}

App_TableSource_Column row_of(const sock_apk::APP_RECORD& app, std::size_t number) {
    return {std::to_string(number), until_nul(app.name), until_nul(app.package), app.size,
            until_nul(app.version)};
}

}  // namespace velk
