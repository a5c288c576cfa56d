#pragma once

#include <string>

namespace velk {

/// The arguments of one worker thread: filled by whoever starts it, owned by the worker from then
/// on. Each user fills only the fields it needs.
struct For_Thread_Var {
    std::string m_contacts_import_file_name;
    bool m_stop = false;
    std::string m_PicFileName_LoadingAnimation_Gray;
    std::string m_PicFileName_LoadingAnimation_Light;
    float m_TimeInterval = 0;  // seconds
    std::string record_id;
    std::string record_file_name;
};

}  // namespace velk
