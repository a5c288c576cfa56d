// What files of messages hold: texts made of rows, and nothing else.
#pragma once

#include <string>
#include <vector>

#include "managers/sms_rows.h"

namespace velk {

/// The data text of the exported page: the header row, then a row for each message in this order.
std::string sms_page_data(const std::vector<SMS_TableSource_Column>& rows);

/// The plain text: `now` as its first line, then the messages from the last to the first.
std::string sms_plain_text(const std::vector<SMS_TableSource_Column>& rows, const std::string& now);

}  // namespace velk
