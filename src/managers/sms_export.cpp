#include "managers/sms_export.h"

#include "base/text.h"

namespace velk {

namespace {

/// The message on one line, between the quotes of the page's script. The quotes go before the
/// backslashes are doubled, so none of them is protected twice.
std::string cell_text(const std::string& message) {
    std::string text = replace_all(message, '\'', '"');
    text = replace_all(std::move(text), '\n', ' ');
    text = replace_all(std::move(text), '\r', ' ');
    return replace_all(std::move(text), "\\", "\\\\");
}

}  // namespace

std::string sms_page_data(const std::vector<SMS_TableSource_Column>& rows) {
    std::string data = "\n['ID','Phone Number','Date Time','Type','Text'],";
    std::size_t number = 0;
    for (const SMS_TableSource_Column& row : rows) {
        const bool received = row.col_sms_type == sms_type_inbox;
        data.append("\n['").append(std::to_string(++number));
        data.append("','").append(row.col_sms_phone_number);
        data.append("','").append(row.col_sms_datetime);
        data.append("','").append(received ? "Received" : "Sent");
        data.append("','").append(cell_text(row.col_sms_content_show)).append("']");
        if (number < rows.size()) data.append(",");
    }
    return data;
}

std::string sms_plain_text(const std::vector<SMS_TableSource_Column>& rows,
                           const std::string& now) {
    std::string text = now + "\n";
    std::size_t number = 0;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        text.append("\n(").append(std::to_string(++number)).append(")\n");
        text.append(row->col_sms_phone_number).append("         [").append(row->col_sms_datetime);
        text.append("][").append(row->col_sms_type).append("]\n\n");
        text.append(row->col_sms_content).append("\n");
    }
    return text;
}

}  // namespace velk
