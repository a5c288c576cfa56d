// The rows of the messages table.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "agent/sock_apk.h"
#include "ui/table.h"

namespace velk {

inline constexpr const char* sms_type_inbox = "Inbox";
inline constexpr const char* sms_type_outbox = "Outbox";

/// One row of the table.
struct SMS_TableSource_Column {
    std::string col_no;  // place in load order, from "1"; kept when the table is sorted
    std::string col_sms_phone_number;  // the other party's
    std::string col_sms_content;       // as it came from the phone
    std::string col_sms_content_show;  // the same on one line
    std::string col_sms_datetime;      // as it came from the phone
    std::string col_sms_type;          // sms_type_inbox or sms_type_outbox
    std::string col_sms_id;            // the phone's own id of the message
    std::string col_sms_thread_id;     // the phone's own id of the conversation
    std::string col_sms_read;          // not filled

    static const std::array<Row_Column<SMS_TableSource_Column>, 9>& row_columns();
};

/// The row of a message; `number` is its place in load order, from 1.
SMS_TableSource_Column row_of(const sock_apk::SMS_RECORD& message, std::size_t number);

}  // namespace velk
