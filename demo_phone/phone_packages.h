// The package manager and the activity manager of the phone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "demo_phone/demo_phone.h"
#include "demo_phone/phone_shell.h"

namespace velk {

/// "pm install [options] file" and "pm uninstall package".
Shell_Result run_pm(Demo_Phone& phone, const std::vector<std::string>& words);

/// "am start -n component" and "am broadcast -a action".
Shell_Result run_am(Demo_Phone& phone, const std::vector<std::string>& words);

/// Installs a package that lies in the storage; `name` is the file name it came with. The line that
/// the package manager prints.
std::string install_package(Demo_Phone& phone, const std::string& path, std::string_view name);

}  // namespace velk
