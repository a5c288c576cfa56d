#include "base/often_tools_function.h"

#include <ctime>

#include "base/text.h"

namespace velk {

std::string often_tools_function::get_current_date_time() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return format("%02d-%02d-%02d %02d:%02d:%02d", local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

}  // namespace velk
