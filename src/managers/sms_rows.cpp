#include "managers/sms_rows.h"

#include "base/text.h"
#include "managers/common_columns.h"

namespace velk {

namespace {

constexpr const char* agents_type_inbox = "1";

}  // namespace

const std::array<Row_Column<SMS_TableSource_Column>, 9>& SMS_TableSource_Column::row_columns() {
    using Row = SMS_TableSource_Column;
    constexpr Comparison number = Comparison::number;
    static const std::array<Row_Column<Row>, 9> columns = {{
        {no_column, &Row::col_no},
        {{.identifier = "col_sms_phone_number", .title = "Phone Number", .width = 18},
         &Row::col_sms_phone_number},
        {{.identifier = "col_sms_datetime", .title = "Date Time", .width = 18, .searched = false},
         &Row::col_sms_datetime},
        {{.identifier = "col_sms_type", .title = "Type", .width = 7, .searched = false},
         &Row::col_sms_type},
        {{.identifier = "col_sms_content_show", .title = "Text", .width = 40, .wide = true},
         &Row::col_sms_content_show},
        {{.identifier = "col_sms_content", .title = "Full Text", .hidden = true},
         &Row::col_sms_content},
        {{.identifier = "col_sms_id", .title = "ID", .comparison = number, .hidden = true},
         &Row::col_sms_id},
        {{.identifier = "col_sms_thread_id",
          .title = "Thread ID",
          .comparison = number,
          .hidden = true},
         &Row::col_sms_thread_id},
        {{.identifier = "col_sms_read", .title = "Read", .comparison = number, .hidden = true},
         &Row::col_sms_read},
    }};
    return columns;
}

SMS_TableSource_Column row_of(const sock_apk::SMS_RECORD& message, std::size_t number) {
    SMS_TableSource_Column row;
    row.col_no = std::to_string(number);
    row.col_sms_phone_number = until_nul(message.TEL);
    // A person's words are shown to their end, whatever stands between them.
    row.col_sms_content = replace_all(message.TEXT, std::string_view("\0", 1), "\xEF\xBF\xBD");
    row.col_sms_content_show = replace_all(row.col_sms_content, '\n', ' ');
    row.col_sms_datetime = until_nul(message.DATE);
    row.col_sms_type = message.TYPE == agents_type_inbox ? sms_type_inbox : sms_type_outbox;
    row.col_sms_id = message.ID;
    row.col_sms_thread_id = message.threadID;
    return row;
}

}  // namespace velk
